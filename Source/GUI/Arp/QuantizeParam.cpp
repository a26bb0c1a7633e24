#include "GUI/Arp/QuantizeParam.h"

#include "Parameters/CreateForwarder.h"

#include <utility>

namespace Zn::GUI
{
QuantizeParam::QuantizeParam (EditorContext& contextToUse)
    : Connector (std::shared_ptr (Parameters::createForwarder (contextToUse.state().params.quantize)))
    , context (contextToUse)
{}

void QuantizeParam::setRawNormalised (float normalised)
{
    setWaiting (true);
    Connector::setRawNormalised (normalised);
}

void QuantizeParam::setInt (int value)
{
    setWaiting (true);
    Connector::setInt (value);
}

void QuantizeParam::setBool (bool value)
{
    setWaiting (true);
    Connector::setBool (value);
}

void QuantizeParam::setDouble (double value)
{
    setWaiting (true);
    Connector::setDouble (value);
}

void QuantizeParam::setFromText (const juce::String& text)
{
    if (text.trim().equalsIgnoreCase ("now"))
        return setWaiting (false);

    setWaiting (true);
    Connector::setFromText (text);
}

void QuantizeParam::setNormalisedNotifying (float normalised)
{
    setWaiting (true);
    Connector::setNormalisedNotifying (normalised);
}

juce::String QuantizeParam::getCurrentText() const
{
    return waits() ? Connector::getCurrentText() : "now";
}

float QuantizeParam::getFloat() const
{
    return waits() ? Connector::getFloat() : -1.0f;
}

Parameters::MenuItems::Item QuantizeParam::getMenuChoices()
{
    auto menu = Connector::getMenuChoices();

    for (auto& length : menu.subItems)
    {
        length.isSelected = [this, isChosen = std::move (length.isSelected)] {
            return waits() && isChosen != nullptr && isChosen();
        };
        length.action = [this, choose = std::move (length.action)] {
            setWaiting (true);
            choose();
        };
    }

    menu.subItems.emplace_back();
    menu.subItems.push_back ({ .text = "Switch at once",
                               .isSelected = [this] { return ! waits(); },
                               .action = [this] { setWaiting (false); } });
    return menu;
}

/** A step of undo, or part of one that is under way; it must not end one that turns of the wheel join. */
void QuantizeParam::setWaiting (bool shouldWait)
{
    if (waits() == shouldWait)
        return;

    Undo::Transaction edit (context.edits.getUndo(), "Quantize");
    context.state().liveSlots->enable.store (shouldWait);
    context.state().projectChanged.callListeners();
    edit.markChanged();
}
} // namespace Zn::GUI
