#include "GUI/Learn/LearnTargets.h"

namespace Zn::GUI
{
namespace
{
void collect (juce::Component& parent, std::vector<LearnTarget>& targets)
{
    for (auto* child : parent.getChildren())
    {
        const auto isAbove = dynamic_cast<Overlay*> (child) != nullptr;

        if (isAbove || ! child->isVisible() || child->getBounds().isEmpty())
            continue;

        if (auto* control = dynamic_cast<Control*> (child))
            if (auto target = control->getLearnTarget())
                targets.push_back ({ *target, control });

        collect (*child, targets);
    }
}
} // namespace

std::vector<LearnTarget> findLearnTargets (juce::Component& page)
{
    std::vector<LearnTarget> targets;
    collect (page, targets);
    return targets;
}
} // namespace Zn::GUI
