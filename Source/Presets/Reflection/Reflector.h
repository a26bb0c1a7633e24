#pragma once

#include "Presets/Reflection/ReflectedValue.h"
#include "Presets/Reflection/Version.h"

#include <juce_core/juce_core.h>

#include <algorithm>
#include <concepts>
#include <limits>
#include <memory>
#include <string>
#include <typeinfo>

namespace Zn
{
/** One node of a document, seen from a model that saves itself into it or loads itself from it.

    The defaults are those of a node that holds nothing. Thread: message.
*/
class ReflectorBase
{
public:
    virtual ~ReflectorBase() = default;

    /** True when the document fills the model in. */
    virtual bool isLoading() const;

    /** The nested object under a name. Loading: null when the key is absent. Owned by this node. */
    virtual ReflectorBase* getChild (const std::string& name);

    /** Loading only: the item at an index, valid until the next item of the same node is asked for. */
    virtual ReflectorBase* getArrayItem (int index);

    /** Saving only: turns this node into an array and adds an item at its end. */
    virtual ReflectorBase* addArrayItem();

    virtual void setValue (const std::string& name, const ReflectedValue& value);
    virtual ReflectedValue getValue (const std::string& name) const;

    /** Loading only: the key at a position, in sorted order. */
    virtual std::string getKey (int index) const;

    /** Loading only: number of entries of an object or array, 0 for anything else. */
    virtual int getSize() const;
};

class Reflector;

/** Anything that names its fields to a reflector. */
template <typename T>
concept Reflectable = requires (T& object, Reflector& r)
{
    object.reflect (r);
};

/** What a model's reflect function is handed: names each field once, for saving and for loading.

    Loading leaves a field as it is when its key is absent, null, an object or an array. Text in a boolean,
    integer or floating-point field is converted, and throws std::invalid_argument ("invalid stol argument",
    "invalid stod argument") or std::out_of_range ("stol argument out of range", "stod argument out of range")
    when it is no number. Thread: message.
*/
class Reflector : public ReflectorBase
{
public:
    explicit Reflector (ReflectorContext contextToUse) : context (contextToUse) {}

    const ReflectorContext& getContext() const noexcept { return context; }
    bool isForHostChunk() const noexcept { return context.target == ReflectorContext::Target::hostChunk; }

    void add (const std::string& name, bool& value);
    void add (const std::string& name, std::int32_t& value);
    void add (const std::string& name, double& value);
    void add (const std::string& name, float& value);
    void add (const std::string& name, std::string& value);
    void add (const std::string& name, juce::String& value);
    void add (const std::string& name, Version& value);

    /** Reflects a nested object. Loading: the member keeps its value when the key is absent. */
    template <Reflectable T>
    void addChild (const std::string& name, T&& object)
    {
        if (auto* child = getChild (name))
            object.reflect (*child);
    }

    Reflector* getChild (const std::string& name) override;
    Reflector* getArrayItem (int index) override;
    Reflector* addArrayItem() override;

    /** True until a container has been walked to its end. */
    bool isOpen() const noexcept { return open; }
    void close() noexcept { open = false; }

private:
    const ReflectorContext context;
    bool open = true;
};

/** Reflects a container as an array: loading resizes it to the stored count, deleting the surplus from its
    end, and reads each element in place, so that whatever the document omits of an element keeps its value.
    What the document holds beyond the largest size is ignored.

    The container has size(), resize() and begin(); its elements are Reflectable, or smart pointers to one,
    which are created by default construction where they are null.
*/
template <typename Container>
class ChildContainerSerializer
{
public:
    explicit ChildContainerSerializer (Container& containerToUse,
                                       bool shouldClearFirst = false,
                                       int largestSize = std::numeric_limits<int>::max())
        : container (containerToUse), clearFirst (shouldClearFirst), maxSize (largestSize)
    {}

    void reflect (Reflector& r);

private:
    template <typename Element>
    static void reflectElement (Element& element, Reflector& r)
    {
        if constexpr (Reflectable<Element>)
        {
            element.reflect (r);
        }
        else
        {
            if (element == nullptr)
                element = std::make_unique<typename Element::element_type>();

            element->reflect (r);
        }
    }

    Container& container;
    bool clearFirst;
    int maxSize; // elements that are read
};

template <typename Container>
void ChildContainerSerializer<Container>::reflect (Reflector& r)
{
    if (! r.isLoading())
    {
        for (auto& element : container)
            if (auto* item = r.addArrayItem())
                reflectElement (element, *item);

        r.close();
        return;
    }

    if (clearFirst)
        container.resize (0);

    const auto count = static_cast<std::size_t> (std::min (r.getSize(), maxSize));
    container.resize (count);

    for (std::size_t i = 0; i < count; ++i)
        if (auto* item = r.getArrayItem (static_cast<int> (i)))
            reflectElement (container[i], *item);

    r.close();
}

namespace Serializing
{
/** Reflects a polymorphic member under a key that names its concrete type, and tells whether it did.

    Saving: nothing is written unless the member's dynamic type is exactly Concrete. Loading: when the key is
    there, a new Concrete replaces what the pointer held and then reflects itself. Of several types the first
    that is present wins: `addPoly<A> (r, "A", child) || addPoly<B> (r, "B", child)`.
*/
template <typename Concrete, typename OwningPointer>
bool addPoly (Reflector& r, const std::string& name, OwningPointer& pointer)
{
    const auto isConcrete = [] (const auto& object) { return typeid (object) == typeid (Concrete); };

    if (! r.isLoading() && (pointer == nullptr || ! isConcrete (*pointer)))
        return false;

    auto* child = r.getChild (name);

    if (child == nullptr)
        return false;

    if (r.isLoading())
        pointer = std::make_unique<Concrete>();

    pointer->reflect (*child);
    return true;
}
} // namespace Serializing
} // namespace Zn
