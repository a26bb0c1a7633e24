#include "Presets/Undo/Manager.h"

#include "Presets/Base.h"
#include "Presets/Undo/HistoryParam.h"

#include <numeric>

namespace Zn::Undo
{
namespace
{
constexpr auto floorName = "Initial";
}

void Manager::restart()
{
    snapshots.clear();
    index = 0;
    depth = 0;
    changed = false;
    ignoresEdits = false;
    callListeners();
}

void Manager::begin()
{
    if (ignoresEdits)
        return;

    keepFloor();
    ++depth;
}

void Manager::markChanged()
{
    if (ignoresEdits)
        return;

    keepFloor(); // for an edit that was under way when a project came
    changed = true;
}

void Manager::end (const juce::String& name)
{
    if (ignoresEdits)
        return;

    depth = std::max (depth - 1, 0);

    if (depth > 0 || ! changed)
        return;

    snapshots.resize (static_cast<std::size_t> (index) + 1);
    keep (name);
    callListeners();
}

void Manager::keepSaved()
{
    if (auto isBetweenEdits = depth == 0 && ! ignoresEdits; isBetweenEdits && ! snapshots.empty())
    {
        auto& current = snapshots[static_cast<std::size_t> (index)];
        current = { current.getName(), state.createDocument (ReflectorContext::forUndo()) };
    }
}

void Manager::undo()
{
    if (canUndo())
        goTo (index - 1);
}

void Manager::redo()
{
    if (canRedo())
        goTo (index + 1);
}

std::unique_ptr<Parameters::Parameter> Manager::createUndoParam()
{
    return std::make_unique<UndoParam> (*this);
}

std::unique_ptr<Parameters::Parameter> Manager::createRedoParam()
{
    return std::make_unique<RedoParam> (*this);
}

bool Manager::canUndo() const
{
    return index > 0;
}

bool Manager::canRedo() const
{
    return index < static_cast<std::int32_t> (snapshots.size()) - 1;
}

juce::String Manager::getCurrentName() const
{
    return snapshots.empty() ? floorName : snapshots[static_cast<std::size_t> (index)].getName();
}

juce::String Manager::getNextName() const
{
    return canRedo() ? snapshots[static_cast<std::size_t> (index) + 1].getName() : juce::String();
}

std::size_t Manager::getNumBytes() const noexcept
{
    return std::accumulate (snapshots.begin(),
                            snapshots.end(),
                            std::size_t {},
                            [] (auto sum, const auto& snapshot) { return sum + snapshot.getNumBytes(); });
}

void Manager::keepFloor()
{
    if (snapshots.empty())
        keep (floorName);
}

void Manager::keep (const juce::String& name)
{
    snapshots.emplace_back (name, state.createDocument (ReflectorContext::forUndo()));
    index = static_cast<std::int32_t> (snapshots.size()) - 1;
    changed = false;
}

void Manager::goTo (std::int32_t newIndex)
{
    if (ignoresEdits) // a listener of the load asks for the next
        return;

    index = newIndex;
    apply (snapshots[static_cast<std::size_t> (newIndex)]);
    callListeners();
}

void Manager::apply (const Snapshot& snapshot)
{
    const juce::ScopedValueSetter<bool> noEdits (ignoresEdits, true);

    try
    {
        state.applyDocument (snapshot.getDocument(), ReflectorContext::forUndo());
    }
    catch (const std::exception&)
    {} // what was read stands, and the snapshots around it are as good as before
}
} // namespace Zn::Undo
