# The AAX plug-in: all of its settings. It is built where its maker's SDK is, against a JUCE that has not switched the
# format off:
#
#   cmake -DVORNEL_AAX_SDK=FOLDER -DJUCE_DIR=FOLDER ...
#   cmake --build ... --target Vornel_AAX

set (VORNEL_AAX_SDK "" CACHE PATH "Folder of the AAX SDK: given it, the AAX plug-in is built too")

# What hosts tell plug-ins apart by, and where they list them. Neither may ever change.
set (aax_settings
    AAX_IDENTIFIER example.brenvik.vornel
    AAX_CATEGORY ePlugInCategory_SWGenerators)

# By which users know the plug-in's notes in the host's list of MIDI inputs.
set (aax_midi_output "Vornel Out")

set (aax_entry_points
    ACFRegisterPlugin
    ACFRegisterComponent
    ACFGetClassFactory
    ACFCanUnloadNow
    ACFStartup
    ACFShutdown
    ACFGetSDKVersion)

function (zn_aax_is_missing what)
    message (FATAL_ERROR "The AAX plug-in cannot be built: ${what}\nWithout VORNEL_AAX_SDK it is left out.")
endfunction()

function (zn_check_aax_sdk sdk)
    if (NOT IS_DIRECTORY "${sdk}")
        zn_aax_is_missing ("VORNEL_AAX_SDK is no folder: ${sdk}")
    endif()

    foreach (file IN ITEMS AAX_Version.h AAX_Exports.cpp AAX_ICollection.h ACF)
        if (NOT EXISTS "${sdk}/Interfaces/${file}")
            zn_aax_is_missing ("the SDK has no Interfaces/${file}: ${sdk}")
        endif()
    endforeach()
endfunction()

# The name that the MIDI output gets is JUCE's to make, so it is read there.
function (zn_check_aax_in_juce modules plugin_name)
    set (client "${modules}/juce_audio_plugin_client")
    file (GLOB wrapper "${client}/AAX/juce_AAX_Wrapper.cpp" "${client}/juce_audio_plugin_client_AAX.cpp")
    file (GLOB extensions "${modules}/juce_audio_processors*/utilities/juce_AAXClientExtensions.h")
    file (GLOB settings "${client}/*/juce_CheckSettingMacros.h")
    set (texts "")

    foreach (file IN LISTS wrapper settings)
        file (READ "${file}" text)
        string (APPEND texts "${text}")
    endforeach()

    if (texts MATCHES "if JucePlugin_Build_AAX\n([^\n]*\n)?# *undef JucePlugin_Build_AAX")
        zn_aax_is_missing ("this JUCE has switched AAX off, as Debian's has; choose another with JUCE_DIR: ${modules}")
    endif()

    if (NOT wrapper OR NOT extensions)
        zn_aax_is_missing ("this JUCE has no AAX client with extensions; choose another with JUCE_DIR: ${modules}")
    endif()

    if (NOT texts MATCHES "JucePlugin_Name \" Out\"" OR NOT "${plugin_name} Out" STREQUAL aax_midi_output)
        zn_aax_is_missing ("this JUCE would not call its MIDI output \"${aax_midi_output}\": ${modules}")
    endif()
endfunction()

# Call before juce_add_plugin: what has to be there, and the words that ask it for the format.
function (zn_add_aax plugin_name)
    zn_check_aax_sdk ("${VORNEL_AAX_SDK}")
    zn_check_aax_in_juce ("${JUCE_MODULES_DIR}" "${plugin_name}")

    if (NOT CMAKE_SYSTEM_NAME MATCHES "^(Windows|Darwin)$")
        zn_aax_is_missing ("the format exists on Windows and macOS only")
    endif()

    if (CMAKE_SYSTEM_NAME STREQUAL "Windows" AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        zn_aax_is_missing ("the synthesiser's vectors need Clang: on Windows choose clang-cl, with -T ClangCL or as CC and CXX")
    endif()

    juce_set_aax_sdk_path ("${VORNEL_AAX_SDK}")
    set (aax_format AAX PARENT_SCOPE)
endfunction()
