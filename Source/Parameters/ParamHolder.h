#pragma once

#include "Presets/Reflection/Reflector.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <memory>

namespace Zn::Audio
{
/** One parameter of the named tree, whatever its kind.

    It deletes the parameter unless that has been handed over to the processor. It keeps a pointer either way and
    must not be used after the processor is gone. Thread: message.
*/
class ParamHolderBase
{
public:
    explicit ParamHolderBase (juce::String identifierToUse) : identifier (std::move (identifierToUse)) {}
    virtual ~ParamHolderBase() = default;

    ParamHolderBase (const ParamHolderBase&) = delete;
    ParamHolderBase& operator= (const ParamHolderBase&) = delete;

    virtual juce::AudioProcessorParameter& getParameter() const noexcept = 0;

    /** The key that presets store it under. */
    const juce::String& getIdentifier() const noexcept { return identifier; }

    /** Whether a preset file, and the host's project and undo, include it. Both do until told otherwise. */
    void setReflected (bool inPresetFile, bool inHostChunk) noexcept;
    bool isReflectedFor (const ReflectorContext& context) const noexcept;

    /** Reads or writes its text under the key "Value", for a place that keeps it as an object of its own. */
    void reflect (Reflector& r);

    /** Reads or writes its text under a key, without asking whether it is included. */
    void reflectAs (Reflector& r, const juce::String& key);

    /** Gives the parameter to an owner that keeps it as long as the processor lives. */
    std::unique_ptr<juce::AudioProcessorParameter> handOver() noexcept;
    bool isHandedOver() const noexcept { return handedOver; }

    /** The parameter that the host knows this one by; null when the host does not know it. */
    juce::AudioProcessorParameter* getHostSide() const noexcept { return hostSide; }
    void setHostSide (juce::AudioProcessorParameter& parameter) noexcept { hostSide = &parameter; }

private:
    bool handedOver = false;
    bool inPresets = true; // takes part in preset files
    bool inChunks = true;  // takes part in host chunks and undo
    const juce::String identifier;
    juce::AudioProcessorParameter* hostSide = nullptr;
};

/** Holds a parameter of type T: creates it from an identifier and what else T's constructor takes. */
template <typename T>
class ParamHolder : public ParamHolderBase
{
public:
    template <typename... Arguments>
    explicit ParamHolder (const juce::String& identifierToUse, Arguments&&... arguments)
        : ParamHolderBase (identifierToUse)
        , parameter (new T (parameterID (identifierToUse), std::forward<Arguments> (arguments)...))
    {}

    ~ParamHolder() override
    {
        if (! isHandedOver())
            delete parameter;
    }

    juce::AudioProcessorParameter& getParameter() const noexcept override { return *parameter; }

    T& operator*() const noexcept { return *parameter; }
    T* operator->() const noexcept { return parameter; }

private:
    static juce::ParameterID parameterID (const juce::String& identifierToUse)
    {
        return { identifierToUse, 1 };
    }

    T* const parameter; // owned until it is handed over
};
} // namespace Zn::Audio
