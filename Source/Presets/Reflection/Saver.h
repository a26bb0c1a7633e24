#pragma once

#include "Presets/Reflection/Reflector.h"

#include <nlohmann/json.hpp>

#include <list>
#include <string>

namespace Zn::Json
{
/** What a model saves itself into: a tree of nodes that becomes one JSON document when the model is done.

    Children are merged in the order of their creation; of two with one name the later wins. A container
    without elements saves as null, since only an item makes its node an array. Thread: message.
*/
class Saver : public Reflector
{
public:
    explicit Saver (ReflectorContext contextToUse, std::string nameInParent = {});

    /** The document. Moves the values out: called once, on the outermost node. */
    nlohmann::json takeDocument();

    bool isLoading() const override { return false; }
    Saver* getChild (const std::string& childName) override;
    Saver* addArrayItem() override;
    void setValue (const std::string& key, const ReflectedValue& newValue) override;

private:
    std::string name;
    nlohmann::json value;
    std::list<Saver> children; // stay where they are as more come
};

/** The document of a model. */
template <Reflectable T>
nlohmann::json save (T&& object, ReflectorContext context)
{
    Saver saver (context);
    object.reflect (saver);
    return saver.takeDocument();
}
} // namespace Zn::Json
