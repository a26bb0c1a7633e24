#include "Parameters/ParamList.h"

namespace Zn::Audio
{
void ParamList::addParam (ParamHolderBase& holder)
{
    params.emplace_back (holder.getIdentifier(), &holder);
}

void ParamList::addChild (const juce::String& name, ParamList& child)
{
    children.emplace_back (name, &child);
}

void ParamList::reflect (Reflector& r)
{
    for (auto& [name, holder] : params)
        if (holder->isReflectedFor (r.getContext()))
            holder->reflectAs (r, name);

    for (auto& [name, child] : children)
        r.addChild (name.toStdString(), *child);
}

void ParamList::forEachParam (const std::function<void (ParamHolderBase&)>& visit) const
{
    for (const auto& [name, holder] : params)
        visit (*holder);

    for (const auto& [name, child] : children)
        child->forEachParam (visit);
}
} // namespace Zn::Audio
