#include "Sequencer/Modifiers/Clip.h"

#include "Sequencer/Modifiers/Empty.h"
#include "Sequencer/Modifiers/LoopFitter.h"
#include "Sequencer/Modifiers/NoteList.h"
#include "Sequencer/Modifiers/Pattern.h"
#include "Sequencer/Modifiers/RenderedLists.h"
#include "Sequencer/Modifiers/StepPulseSequencer.h"

namespace Zn::Sequencer::Modifiers
{
namespace
{
template <typename... Types>
struct ChildTypes
{
    static void reflect (Reflector& r, std::unique_ptr<Base>& child)
    {
        (Serializing::addPoly<Types> (r, Types::typeName, child) || ...);
    }
};

/** What a file can name as a child, the first that is present winning. */
using RegisteredTypes = ChildTypes<NoteList, Pattern, StepPulseSequencer, LoopFitter>;
} // namespace

Clip::Clip() : child (std::make_unique<Empty>()) {}

Clip::Clip (const Clip& other)
    : Cloneable<Base, Clip> (other), active (other.active), time (other.time), child (other.child->clone())
{}

Clip& Clip::operator= (const Clip& other)
{
    auto copy = other.child->clone(); // first, so that a clip can be set to one below itself

    Cloneable<Base, Clip>::operator= (other);
    active = other.active;
    time = other.time;
    child = std::move (copy);

    return *this;
}

void Clip::setChild (std::unique_ptr<Base> newChild)
{
    jassert (newChild != nullptr);
    child = std::move (newChild);
}

void Clip::render (RenderedEvents& target) const
{
    if (! active)
        return;

    child->render (target);
    clipToSpan (target, time);

    if (time.start > 0.0)
        shift (target, -time.start);

    if (time.end() != time.start)
        target.length = time.length;
}

void Clip::reflectFields (Reflector& r)
{
    r.addChild ("Time", time);
    RegisteredTypes::reflect (r, child);
}
} // namespace Zn::Sequencer::Modifiers
