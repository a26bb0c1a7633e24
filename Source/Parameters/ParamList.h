#pragma once

#include "Parameters/ParamHolder.h"

#include <functional>
#include <utility>
#include <vector>

namespace Zn::Audio
{
/** A named group of parameters and of further groups, which presets save as an object.

    Declaring is listing: a struct derived from it has holders (ListedParam, and the kinds of ParamKinds.h) as
    members, each of which joins the list when it is constructed. Holders and groups must outlive the list's last use. Thread: message.
*/
class ParamList
{
public:
    using NamedHolder = std::pair<juce::String, ParamHolderBase*>;
    using NamedChild = std::pair<juce::String, ParamList*>;

    ParamList() = default;
    virtual ~ParamList() = default;

    ParamList (const ParamList&) = delete;
    ParamList& operator= (const ParamList&) = delete;

    /** Appends a parameter under its identifier. */
    void addParam (ParamHolderBase& holder);

    /** Appends a group under a name. */
    void addChild (const juce::String& name, ParamList& child);

    /** Reads or writes the texts of all parameters that the reflector's target includes, then the groups. */
    virtual void reflect (Reflector& r);

    /** Visits all parameters of the list, then those of its groups. */
    void forEachParam (const std::function<void (ParamHolderBase&)>& visit) const;

    const std::vector<NamedHolder>& getParams() const noexcept { return params; }
    const std::vector<NamedChild>& getChildren() const noexcept { return children; }

private:
    std::vector<NamedHolder> params;
    std::vector<NamedChild> children;
};

/** A holder that joins the list it is declared in. */
template <typename T>
struct ListedParam : ParamHolder<T>
{
    template <typename... Arguments>
    ListedParam (ParamList& list, const juce::String& id, Arguments&&... arguments)
        : ParamHolder<T> (id, std::forward<Arguments> (arguments)...)
    {
        list.addParam (*this);
    }
};
} // namespace Zn::Audio
