#pragma once

#include <memory>
#include <vector>

namespace Zn::Sequencer::Modifiers
{
/** Copies an object through its base. */
template <typename Base>
class CloneableInterface
{
public:
    virtual ~CloneableInterface() = default;

    /** A deep copy. It keeps nothing of the original but what it only refers to. */
    virtual std::unique_ptr<Base> clone() const = 0;

protected:
    CloneableInterface() = default;
    CloneableInterface (const CloneableInterface&) = default;
    CloneableInterface& operator= (const CloneableInterface&) = default;
};

/** Lets T, derived from this, be cloned by its copy constructor. */
template <typename Base, typename T>
class Cloneable : public Base
{
public:
    std::unique_ptr<Base> clone() const override
    {
        return std::make_unique<T> (static_cast<const T&> (*this));
    }
};

/** Deep copies of a list of parts, none of which is null. */
template <typename T>
std::vector<std::unique_ptr<T>> copiesOf (const std::vector<std::unique_ptr<T>>& parts)
{
    std::vector<std::unique_ptr<T>> copies;
    copies.reserve (parts.size());

    for (const auto& part : parts)
        copies.push_back (std::make_unique<T> (*part));

    return copies;
}
} // namespace Zn::Sequencer::Modifiers
