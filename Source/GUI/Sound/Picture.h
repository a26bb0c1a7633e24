#pragma once

#include "GUI/Widgets/BorrowedFocus.h"
#include "GUI/Widgets/Control.h"
#include "GUI/Widgets/ParameterEdit.h"

#include <memory>
#include <optional>
#include <vector>

namespace Zn::GUI
{
/** A picture of what is heard, drawn from parameters. What is dragged in it are those parameters themselves: a drag is a
    gesture of each and one step of undo, its values follow the pointer, Esc puts them back. The keyboard has the knobs.

    Whoever derives from it makes its paths in takeInputs(), and nowhere else. Thread: message.
*/
class Picture : public Control
{
public:
    using ParameterHandle = std::shared_ptr<Parameters::Parameter>;

    Picture (EditorContext& contextToUse, std::string element);
    ~Picture() override;

    void schemeChanged() override;
    void mouseMove (const juce::MouseEvent& event) override;
    void mouseExit (const juce::MouseEvent& event) override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    /** Where what can be dragged lies, in pixels of the picture; one that is dragged as a whole has none. */
    const std::vector<juce::Point<float>>& getHandles() const noexcept { return handles; }

protected:
    /** Looks at what it shows; makes the paths anew where that is another than before, or must be by all means. Whether
        it has made them.
    */
    virtual bool takeInputs (bool anyway) = 0;
    virtual void paintPicture (juce::Graphics& g) = 0;

    /** For those who cannot see it: "Low-pass, 2.4 kHz, resonance 2.10". */
    virtual juce::String describe() const = 0;

    virtual std::vector<ParameterHandle> parametersOf (std::size_t handle) const = 0;

    /** The name and the value of what is dragged. */
    virtual std::pair<juce::String, juce::String> readoutOf (std::size_t handle) const = 0;

    virtual void dragBegins (std::size_t) {}

    /** Where the handle is wanted; for a picture without handles, how far the pointer has come. */
    virtual void moveHandle (std::size_t handle, juce::Point<float> place) = 0;

    void paintControl (juce::Graphics& g) final;
    void paintHandles (juce::Graphics& g) const;
    void poll() override;
    bool showsHover() const final { return false; } // its handles tell what is pointed at

    /** The area inside of the inset. */
    juce::Rectangle<float> canvasArea() const { return drawn; }

    bool isDragged (std::size_t handle) const noexcept;

    std::vector<juce::Point<float>> handles;

private:
    struct Drag
    {
        std::size_t handle;
        juce::Point<float> place, pointer;
        std::unique_ptr<Undo::Transaction> step;
        std::vector<std::unique_ptr<ParameterEdit>> edits; // end ahead of the step
    };

    std::size_t handleAt (juce::Point<float> position) const;
    void point (std::optional<std::size_t> handle);
    void resetToDefaults (std::size_t handle);
    void endDrag();
    void showReadout (juce::Point<int> onScreen);

    juce::Rectangle<float> drawn;
    juce::Path frame;
    std::optional<Drag> drag;
    std::optional<std::size_t> pointed;
    float handleRadius = 0.0f, lineWidth = 0.0f; // pixels
    std::optional<BorrowedFocus> focus;          // while it is dragged
};

/** What lies under a curve: its light, fading downwards. */
juce::FillType fillUnder (juce::Rectangle<float> area);

/** A polyline. */
juce::Path pathThrough (const std::vector<juce::Point<float>>& points);

/** The same down to a level, closed, to be filled. */
juce::Path pathDownTo (const std::vector<juce::Point<float>>& points, float level);
} // namespace Zn::GUI
