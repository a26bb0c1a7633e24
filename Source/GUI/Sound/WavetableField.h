#pragma once

#include "GUI/Sound/WavetablePopup.h"
#include "GUI/Widgets/Choice.h"

namespace Zn::GUI
{
/** The name of an oscillator's wavetable between arrows; a press opens the browser of all, and goes on as a drag in it.
    Thread: message.
*/
class WavetableField : public Choice
{
public:
    WavetableField (EditorContext& contextToUse,
                    std::string cardElementToUse,
                    std::shared_ptr<Parameters::Parameter> tableToShow,
                    WavetablePopup::Callbacks callbacksToUse);

    void openMenu() override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;

private:
    bool isOpen() const;

    const std::string card;
    const WavetablePopup::Callbacks callbacks;
    juce::Component::SafePointer<WavetablePopup> popup;
    bool hearsWhatIsUnderIt = false; // the pointer, which has not been let go since it opened the browser
};
} // namespace Zn::GUI
