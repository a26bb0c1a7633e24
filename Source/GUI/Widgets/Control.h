#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/ControlTexts.h"
#include "GUI/Widgets/EditorContext.h"
#include "GUI/Widgets/FocusRing.h"
#include "GUI/Widgets/TooltipSource.h"

#include <functional>
#include <optional>

namespace Zn::GUI
{
/** Anything that is clicked, turned or typed into: its states (pointer over it, pressed, focus, disabled), its texts
    by its name in the scheme, and its regular look at what it shows. A closed editor leaves nothing of it behind.
    Thread: message.
*/
class Control : public AssetScheme::Element<>, public TooltipSource
{
public:
    Control (EditorContext& contextToUse, std::string element);

    /** Asked all the time; while the answer is no, it is faint and does nothing. */
    void setEnabledWhen (std::function<bool()> predicate);

    /** What the tooltip says instead of the usual line of help while it is disabled, or at all. */
    void setHelp (const juce::String& newHelp);

    TooltipText getTooltipText() const override;

    /** What a controller can be learned for; none if it cannot be reached. */
    virtual std::optional<Learning::Target> getLearnTarget() const { return {}; }

    const ControlText& getText() const noexcept { return written; }

    /** Whether the ring of the focus is around it. */
    bool showsFocus() const noexcept { return ring.isShown(); }

    void paint (juce::Graphics& g) final { paintControl (g); }
    void paintOverChildren (juce::Graphics& g) override;
    void mouseEnter (const juce::MouseEvent& event) override;
    void mouseExit (const juce::MouseEvent& event) override;
    void focusGained (FocusChangeType cause) override { ring.focusGained (cause); }
    void focusLost (FocusChangeType) override { ring.focusLost(); }
    void enablementChanged() override { repaint(); }

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    virtual void paintControl (juce::Graphics& g) = 0;

    /** Looks whether what it shows has changed, and repaints it then. */
    virtual void poll() {}

    /** Whether it looks another under the pointer; what does not is not painted again for it. */
    virtual bool showsHover() const { return true; }

    /** While learning, a press arms it, and one of the right button forgets. Whether that was so. */
    bool takeLearnPress (const juce::MouseEvent& event);

    /** What gets the edge that says it can be learned: all of it, or a part. */
    virtual juce::Rectangle<float> learnArea() const { return area(); }

    void setPressed (bool shouldBePressed);
    bool isPressed() const noexcept { return pressed; }

    /** A colour of the scheme, faint while it is disabled. */
    juce::Colour colour (std::string_view name) const;

    /** The same, a step lighter under the pointer and a step darker when pressed. */
    juce::Colour surface (std::string_view name) const;

    /** A rounded field all over it, or over a part. */
    void paintField (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour fill) const;

    /** What lies under the pointer on something without a field of its own. */
    void paintHover (juce::Graphics& g) const;

    /** One line; too long a text is squeezed, then cut. */
    void paintText (juce::Graphics& g,
                    const juce::String& line,
                    const juce::Font& font,
                    juce::Rectangle<float> area,
                    juce::Justification justification,
                    juce::Colour fill) const;

    /** Enter; and Space while the keyboard is in use, as otherwise Space belongs to the host. */
    bool isPressKey (const juce::KeyPress& key) const;

    /** Whether the pointer has been over it long enough for a turn of the wheel to be meant for it. */
    bool isWheelMeant() const;

    juce::Rectangle<float> area() const { return getLocalBounds().toFloat(); }
    float pixels (std::string_view constant) const { return context.canvas.pixelsOf (constant); }

    EditorContext& context;
    FocusRing ring;

private:
    void update();
    void fade();
    void paintLearning (juce::Graphics& g) const;

    ControlText written;
    std::function<bool()> enabledWhen;
    float hover = 0.0f; // 0..1
    bool pressed = false;
    juce::uint32 enteredAt = 0; // milliseconds
    Events::Listener pollListener, learnListener;
};
} // namespace Zn::GUI
