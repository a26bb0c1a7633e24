#pragma once

#include "Presets/Reflection/Reflector.h"

#include <nlohmann/json.hpp>

#include <list>
#include <memory>
#include <string>

namespace Zn::Json
{
/** What a model loads itself from: one place in a JSON document.

    The document belongs to the caller and outlives the loader. Reading changes it in one case: an array that
    is asked for an item behind its end grows. Thread: message.
*/
class Loader : public Reflector
{
public:
    Loader (nlohmann::json& documentToRead, ReflectorContext contextToUse);

    bool isLoading() const override { return true; }

    /** Null when the key is absent or this is no object. */
    Loader* getChild (const std::string& name) override;

    /** Of an array the item, which is made when it is not there; of an object the value at that position of
        its sorted keys; of another scalar than null, at index 0, the scalar itself. Otherwise throws json
        error 214, "cannot get value". The node replaces the one that was handed out before.
    */
    Loader* getArrayItem (int index) override;

    ReflectedValue getValue (const std::string& name) const override;

    /** Throws json error 207 when this is no object, and 214 for a position outside it. */
    std::string getKey (int index) const override;

    int getSize() const override;

private:
    nlohmann::json& itemAt (int index);

    nlohmann::json& document;
    std::list<Loader> children; // stay where they are as more come
    std::unique_ptr<Loader> item;
};

/** Fills a model in from a document. What the document omits stays as it is. Passes on what the conversions of
    the Reflector and the Loader throw.
*/
template <Reflectable T>
void load (T&& object, nlohmann::json& document, ReflectorContext context)
{
    Loader loader (document, context);
    object.reflect (loader);
}
} // namespace Zn::Json
