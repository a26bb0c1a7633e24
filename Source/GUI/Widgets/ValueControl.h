#pragma once

#include "GUI/Widgets/Control.h"
#include "GUI/Widgets/ParameterEdit.h"
#include "GUI/Widgets/WheelSteps.h"

#include <optional>

namespace Zn::GUI
{
/** A control of one value: everything that a hand does with it. Drag, wheel, keys, double-click and Ctrl-click for the
    default, menu and text entry; each a gesture for the host and a step of undo. What it looks like is up to who
    derives from it. Thread: message.
*/
class ValueControl : public Control
{
public:
    ValueControl (EditorContext& contextToUse,
                  std::string element,
                  std::shared_ptr<Parameters::Parameter> parameterToShow);
    ~ValueControl() override;

    /** Never null. */
    const std::shared_ptr<Parameters::Parameter>& getParameter() const noexcept { return parameter; }

    /** What it chooses is how one works, and not what plays: its changes are no steps of undo. */
    void setUndoable (bool shouldBeUndoable) noexcept { isUndoable = shouldBeUndoable; }

    juce::String getShownText (ValueDetail detail = ValueDetail::shown) const;
    juce::String getDefaultText() const;

    std::optional<Learning::Target> getLearnTarget() const override;

    /** Of the steps or percents; `fine` is a tenth of a percent. */
    void stepBy (int steps, bool fine = false);

    /** The same by a click: a step of undo by itself, however quickly the next one follows. */
    void clickBy (int steps);
    void resetToDefault();

    /** False: this is no value of it, and nothing has happened. */
    bool setFromTyped (const juce::String& typed);

    /** Whether that is a value of it. */
    bool understands (const juce::String& typed) const;

    using Change = std::function<void (Parameters::Parameter&)>;

    /** One step of undo by itself. */
    void change (const Change& set);

    /** One step of undo, which quick turns of a wheel and presses of keys join. */
    void changeJoining (const Change& set);

    void typeValue();
    void showMenu();

    TooltipText getTooltipText() const override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;
    bool keyPressed (const juce::KeyPress& key) override;

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    /** The proportion of the range that a movement of the pointer stands for, in pixels: by default upwards. */
    virtual float proportionOf (juce::Point<float> movement) const;

    /** Which way the wheel and the arrow keys go when they go up: in a list, to the one before. */
    virtual int upwards() const { return 1; }

    /** The next value in whole steps, for one that has them. */
    virtual void moveBy (int steps)
    {
        changeJoining ([this, steps] (auto&) { setStep (currentStep() + steps); });
    }

    /** What Enter does. */
    virtual void enter() { typeValue(); }

    /** Where a double-click opens the text entry, and the entry stands. */
    virtual juce::Rectangle<int> valueArea() const { return {}; }

    /** A press that is for the value: neither menu, nor default, nor learn. Begins the drag. */
    virtual void pressed (const juce::MouseEvent& event);

    /** What stands beside the pointer while it is dragged; nothing where its value has a place of its own. */
    virtual juce::String getReadout() const { return {}; }

    /** Puts back what was there ahead of the drag. Whether there was one. */
    virtual bool restoreDrag();

    /** What is drawn has changed. */
    virtual void valueChanged() { repaint(); }

    void poll() override;

    bool isDragging() const noexcept { return drag.has_value(); }
    void beginDrag (const juce::MouseEvent& event);
    void endDrag();

    const juce::String& shownText() const noexcept { return drawnText; }
    float shownPosition() const noexcept { return drawnPosition; }

    /** Of the value in its steps; 0 for one without steps. */
    int currentStep() const;
    void setStep (int step);

private:
    struct Drag
    {
        Drag (ValueControl& control, juce::Point<float> start);

        ParameterEdit edit;
        juce::Point<float> last;
        double position; // normalised, between the steps
    };

    bool answer (const juce::KeyPress& key);
    void typeNext();
    void typeFrom (const juce::KeyPress& key);
    void setLimit (float normalised);
    void look();

    const std::shared_ptr<Parameters::Parameter> parameter;
    const ValueText valueText;
    std::optional<Drag> drag;
    bool isUndoable = true;
    WheelSteps wheelSteps;

    juce::String drawnText;
    float drawnPosition = 0.0f; // normalised
    float drawnValue = 0.0f;    // in its own unit
    bool drawnPrecisely = false;
};
} // namespace Zn::GUI
