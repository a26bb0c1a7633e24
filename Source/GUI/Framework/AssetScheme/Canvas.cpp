#include "GUI/Framework/AssetScheme/Canvas.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/Interface.h"
#include "GUI/Framework/StaticFontMap.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI::AssetScheme
{
namespace
{
constexpr double unitsOfEditor = 1000.0;

std::string_view fileOf (Cut cut)
{
    switch (cut)
    {
    case Cut::bold:
        return "Inter-Bold.otf";
    case Cut::italic:
        return "Inter-Italic.otf";
    case Cut::logo:
        return "Orbitron-Bold.ttf";
    case Cut::regular:
        break;
    }

    return "Inter-Regular.otf";
}

Dimensions<int> sizeOf (const juce::Component& component)
{
    return { component.getWidth(), component.getHeight() };
}

/** Hairlines are a unit wide, which may be less than a pixel: they stay a pixel. */
juce::Range<int> edgesOf (juce::Range<int> units, int editorPixels)
{
    const auto edge = [editorPixels] (int unit) {
        return juce::roundToInt (unit * double (editorPixels) / unitsOfEditor);
    };

    const auto start = edge (units.getStart());
    const auto end = edge (units.getEnd());
    const auto vanishes = start == end && ! units.isEmpty() && editorPixels > 0;
    return { start, vanishes ? start + 1 : end };
}

/** Height over width of every editor. */
double shape()
{
    const auto width = double (Base::get().constantOf ("DefaultWidth"));
    const auto height = double (Base::get().constantOf ("DefaultHeight"));
    return height / std::max (1.0, width);
}
} // namespace

juce::Rectangle<int> scaled (juce::Rectangle<int> units, Dimensions<int> editor)
{
    const auto across = edgesOf (units.getHorizontalRange(), editor.width);
    const auto down = edgesOf (units.getVerticalRange(), editor.height);
    return { across.getStart(), down.getStart(), across.getLength(), down.getLength() };
}

Canvas::Canvas (juce::Component& rootToFollow)
    : root (rootToFollow)
    , dimensions (sizeOf (rootToFollow))
    , schemeListener (Base::get(), [this] { callListeners(); })
{
    root.addComponentListener (this);
}

Canvas::~Canvas()
{
    root.removeComponentListener (this);
}

juce::Rectangle<int> Canvas::boundsOf (std::string_view element) const
{
    const auto units = Base::get().boundsOf (element, fold);
    return units ? scaled (*units, dimensions.get()) : juce::Rectangle<int>();
}

juce::Rectangle<int> Canvas::boundsIn (const juce::Component* parent, std::string_view element) const
{
    return boundsOf (element) - originOf (parent);
}

juce::Rectangle<int> Canvas::boundsBeside (juce::Rectangle<int> control, std::string_view element) const
{
    auto bounds = boundsOf (element).withPosition (control.getBottomLeft());

    if (bounds.getBottom() > root.getHeight())
        bounds.setY (control.getY() - bounds.getHeight());

    return bounds.constrainedWithin (root.getLocalBounds());
}

float Canvas::pixelsOf (std::string_view constant) const
{
    const auto value = Base::get().constantOf (constant);
    return value < 1.0f ? value * float (dimensions.get().width) : value;
}

float Canvas::cornerOf (std::string_view constant, juce::Rectangle<float> area) const
{
    constexpr auto percent = 0.01f;
    return Base::get().constantOf (constant) * percent * std::min (area.getWidth(), area.getHeight());
}

juce::Font Canvas::fontOf (std::string_view constant, Cut cut) const
{
    const auto emPixels = std::max (pixelsOf (constant), Base::get().constantOf ("FontFloorPixels"));
    return Binaries::StaticFontMap::get().fontOf (fileOf (cut), emPixels);
}

void Canvas::setFold (Fold newFold)
{
    if (newFold == fold)
        return;

    fold = newFold;
    callListeners();
}

void Canvas::limit (juce::ComponentBoundsConstrainer& constrainer)
{
    const auto heightOf = [] (float width) { return juce::roundToInt (double (width) * shape()); };

    const auto smallest = Base::get().constantOf ("MinimumWidth");
    const auto largest = Base::get().constantOf ("MaximumWidth");

    constrainer.setSizeLimits (juce::roundToInt (smallest),
                               heightOf (smallest),
                               juce::roundToInt (largest),
                               heightOf (largest));
    constrainer.setFixedAspectRatio (1.0 / shape());
}

Dimensions<int> Canvas::defaultSize()
{
    return { juce::roundToInt (Base::get().constantOf ("DefaultWidth")),
             juce::roundToInt (Base::get().constantOf ("DefaultHeight")) };
}

void Canvas::componentMovedOrResized (juce::Component&, bool, bool wasResized)
{
    if (! wasResized || dimensions.get() == sizeOf (root))
        return;

    dimensions.set (sizeOf (root));
    callListeners();
}

juce::Point<int> Canvas::originOf (const juce::Component* component) const
{
    juce::Point<int> origin;

    for (; component != nullptr && component != &root; component = component->getParentComponent())
    {
        if (const auto* laidOut = dynamic_cast<const Interface*> (component))
            return origin + boundsOf (laidOut->getElement()).getPosition();

        origin += component->getPosition();
    }

    return origin;
}
} // namespace Zn::GUI::AssetScheme
