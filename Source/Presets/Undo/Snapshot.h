#pragma once

#include <juce_core/juce_core.h>
#include <nlohmann/json.hpp>

#include <cstddef>

namespace Zn::Undo
{
/** A complete state under the name of the edit that led to it, packed: thousands of them fit where a few dozen
    documents would. A default-built one is empty. Thread: any.
*/
class Snapshot
{
public:
    Snapshot() = default;
    Snapshot (juce::String nameToUse, const nlohmann::json& document);

    const juce::String& getName() const noexcept { return name; }

    /** The document that was put in; null when it is empty. */
    nlohmann::json getDocument() const;

    std::size_t getNumBytes() const noexcept { return packed.getSize(); }

private:
    juce::String name;
    juce::MemoryBlock packed;    // CBOR, deflated
    std::size_t numUnpacked = 0; // bytes
};
} // namespace Zn::Undo
