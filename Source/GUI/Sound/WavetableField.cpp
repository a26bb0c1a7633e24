#include "GUI/Sound/WavetableField.h"

#include <utility>

namespace Zn::GUI
{
WavetableField::WavetableField (EditorContext& contextToUse,
                                std::string cardElementToUse,
                                std::shared_ptr<Parameters::Parameter> tableToShow,
                                WavetablePopup::Callbacks callbacksToUse)
    : Choice (contextToUse, cardElementToUse + "Type", std::move (tableToShow), Look::browser)
    , card (std::move (cardElementToUse))
    , callbacks (std::move (callbacksToUse))
{}

void WavetableField::openMenu()
{
    auto opened =
        std::make_unique<WavetablePopup> (context, card, getParameter(), getText().title, callbacks);
    popup = opened.get();
    context.overlay.openPopup (std::move (opened));
}

bool WavetableField::isOpen() const
{
    return popup != nullptr && context.overlay.getPopup() == popup;
}

void WavetableField::mouseDrag (const juce::MouseEvent& event)
{
    if (isOpen() && event.mouseWasDraggedSinceMouseDown())
        hearsWhatIsUnderIt = popup->hearAt (event.getScreenPosition());
}

void WavetableField::mouseUp (const juce::MouseEvent& event)
{
    if (std::exchange (hearsWhatIsUnderIt, false) && isOpen())
        popup->keep();

    Choice::mouseUp (event);
}
} // namespace Zn::GUI
