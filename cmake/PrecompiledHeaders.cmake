# JUCE's headers, parsed once instead of in every file: a file of the editor then takes two seconds instead of six.
#
# Off in the debug preset and without a preset. There each file is compiled from its own includes, which shows one that
# is missing.

option (VORNEL_PRECOMPILED_HEADERS "Parse the headers of JUCE once" OFF)

set (zn_precompiled_headers
     "<juce_audio_processors/juce_audio_processors.h>"
     "<nlohmann/json.hpp>"
     "<algorithm>" "<array>" "<atomic>" "<memory>" "<optional>" "<span>" "<string>" "<vector>")

if (VORNEL_PRECOMPILED_HEADERS)
    find_package (nlohmann_json 3.11 REQUIRED)
    set (empty_program "${PROJECT_BINARY_DIR}/empty_program.cpp")
    file (GENERATE OUTPUT "${empty_program}" CONTENT "int main() {}\n")

    # For libraries; the test programs, which have other flags, make their own.
    add_library (zn_library_headers OBJECT "${empty_program}")
    target_link_libraries (zn_library_headers PRIVATE zn_juce zn_warnings nlohmann_json::nlohmann_json)
    target_precompile_headers (zn_library_headers PRIVATE ${zn_precompiled_headers})
endif()

# A target that compiles files against JUCE takes the headers that another of its kind has parsed.
function (zn_use_precompiled_headers target parsed)
    if (VORNEL_PRECOMPILED_HEADERS)
        target_precompile_headers (${target} REUSE_FROM ${parsed})
    endif()
endfunction()
