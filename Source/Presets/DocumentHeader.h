#pragma once

#include "Presets/Reflection/Reflector.h"

#include <juce_core/juce_core.h>
#include <nlohmann/json_fwd.hpp>

namespace Zn::Presets
{
/** What every document says about itself before it comes to its contents. Thread: message. */
struct DocumentHeader
{
    juce::String name { "Init" };
    juce::String id; // creation stamp, "19 Jan 2023 10:42:48"
    bool dirty = false;

    /** A header for what is being saved now. */
    static DocumentHeader forSaving (const juce::String& name);

    /** What a file must be and what it is written as. */
    struct Kind
    {
        Version minimum;
        juce::String product; // written, and checked before loading, but never loaded
    };

    /** Saves or loads the header. False if the document is too old to be loaded: nothing has been read then. */
    bool reflect (Reflector& r, const Kind& kind);

    /** Whether a document has our version and product. Does not throw, whatever it is. */
    static bool isValid (const nlohmann::json& document, const Kind& kind);
};

/** Names and stamps beyond this are cut. */
inline constexpr int longestText = 1024; // characters
} // namespace Zn::Presets
