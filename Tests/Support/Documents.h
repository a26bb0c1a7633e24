#pragma once

#include "Presets/Reflection/Loader.h"
#include "Presets/Reflection/Saver.h"

#include <string>

namespace Zn::Tests
{
/** What a model saves. */
template <typename Model>
nlohmann::json saved (Model& model, ReflectorContext context = ReflectorContext::forPresetFile())
{
    return Json::save (model, context);
}

/** Loads a model from a document of its own. */
template <typename Model>
void load (Model& model,
           nlohmann::json document,
           ReflectorContext context = ReflectorContext::forPresetFile())
{
    Json::load (model, document, context);
}

inline nlohmann::json parsed (const std::string& text)
{
    return nlohmann::json::parse (text);
}
} // namespace Zn::Tests
