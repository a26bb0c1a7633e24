#include "Fuzz/Environment.h"
#include "Fuzz/JsonMutator.h"
#include "Fuzz/PresetFuzzing.h"

#include "Plugin/Vornel/State.h"

extern "C" int LLVMFuzzerInitialize (int*, char***)
{
    Zn::Fuzz::startJuce();
    return 0;
}

extern "C" std::size_t
LLVMFuzzerCustomMutator (std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return Zn::Fuzz::mutateBehindHeader ({ data, maxSize }, size, seed, 0, [] (auto) {});
}

extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    Zn::Audio::Plugins::Vornel::State state;
    Zn::Fuzz::feedPreset (state.synthPreset, { reinterpret_cast<const char*> (data), size });
    return 0;
}
