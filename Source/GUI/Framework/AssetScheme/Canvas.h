#pragma once

#include "Foundation/Dimensions.h"
#include "Foundation/Events/HasBroadcaster.h"
#include "Foundation/Events/Listener.h"
#include "Foundation/Events/Value.h"
#include "GUI/Framework/AssetScheme/Tables.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI::AssetScheme
{
/** The cuts of the editor's fonts. */
enum class Cut
{
    regular,
    bold,
    italic,
    logo
};

/** What the scheme says, in the pixels of one editor: the singleton knows units, each open editor has its size.

    The editor owns one and follows the size of its root component with it. Calls its listeners, the
    holders of all components that lie on it, when the size, the fold or the scheme has changed. Thread: message.
*/
class Canvas : public Events::HasBroadcaster, private juce::ComponentListener
{
public:
    explicit Canvas (juce::Component& rootToFollow);
    ~Canvas() override;

    Canvas (const Canvas&) = delete;
    Canvas& operator= (const Canvas&) = delete;

    /** The root's size, in pixels. */
    Events::Value<Dimensions<int>>& getDimensions() noexcept { return dimensions; }

    /** In the root. Each edge goes to the nearest pixel, so that neighbours meet at every size.
        Empty for an unknown name.
    */
    juce::Rectangle<int> boundsOf (std::string_view element) const;

    /** The same in what is to be the component's parent. Where a parent is itself laid out, its rectangle counts
        and not where it happens to be, so that the order of laying out does not matter.
    */
    juce::Rectangle<int> boundsIn (const juce::Component* parent, std::string_view element) const;

    /** In the root: the rectangle's size, below a control or, where there is no room, above it, and inside the
        editor. For pop-ups, which come up where they are called.
    */
    juce::Rectangle<int> boundsBeside (juce::Rectangle<int> control, std::string_view element) const;

    /** In pixels: strokes, insets and fonts, which are below 1, as parts of the editor's width; others are pixels. */
    float pixelsOf (std::string_view constant) const;

    /** The radius of a corner of an area, in pixels. */
    float cornerOf (std::string_view constant, juce::Rectangle<float> area) const;

    /** Never smaller than the floor that the scheme sets. Allocates: made in `schemeChanged`, not in `paint`. */
    juce::Font fontOf (std::string_view constant, Cut cut = Cut::regular) const;

    void setFold (Fold newFold);
    Fold getFold() const noexcept { return fold; }

    const juce::Component& getRoot() const noexcept { return root; }

    /** Gives a window the scheme's smallest and largest size and its proportions. */
    static void limit (juce::ComponentBoundsConstrainer& constrainer);

    /** The size a new editor opens with. */
    static Dimensions<int> defaultSize();

private:
    void componentMovedOrResized (juce::Component&, bool wasMoved, bool wasResized) override;
    juce::Point<int> originOf (const juce::Component* component) const;

    juce::Component& root;
    Events::Value<Dimensions<int>> dimensions;
    Fold fold = Fold::open;
    Events::Listener schemeListener;
};

/** Units to pixels, each edge rounded by itself; but nothing of any width becomes less than a pixel. */
juce::Rectangle<int> scaled (juce::Rectangle<int> units, Dimensions<int> editor);
} // namespace Zn::GUI::AssetScheme
