# JUCE, compiled once under its own flags: floors, plug-in formats, tests and tools all link this one library.
# -DJUCE_DIR=... chooses another JUCE than the one the system provides.

find_package (JUCE CONFIG REQUIRED)

add_library (zn_juce STATIC)
target_link_libraries (zn_juce PRIVATE juce::juce_audio_utils)

# Distributions may build JUCE against the system's codecs and image libraries, which its modules do not name.
if (NOT APPLE AND NOT WIN32)
    find_package (PkgConfig REQUIRED)
    pkg_check_modules (ZN_JUCE_CODECS REQUIRED IMPORTED_TARGET flac libpng libjpeg)
    target_link_libraries (zn_juce PUBLIC PkgConfig::ZN_JUCE_CODECS)
endif()

target_compile_definitions (zn_juce
    PUBLIC
        JUCE_WEB_BROWSER=0
        JUCE_USE_CURL=0
        JUCE_DISPLAY_SPLASH_SCREEN=0
        JUCE_REPORT_APP_USAGE=0
        JUCE_STRICT_REFCOUNTEDPOINTER=1
        JUCE_VST3_CAN_REPLACE_VST2=0
        JUCE_JACK=1
        JUCE_PLUGINHOST_VST3=1
    INTERFACE
        $<TARGET_PROPERTY:zn_juce,COMPILE_DEFINITIONS>)

target_include_directories (zn_juce SYSTEM INTERFACE $<TARGET_PROPERTY:zn_juce,INCLUDE_DIRECTORIES>)

# Under a sanitizer our own code is optimised as its preset says; JUCE is not, which halves the time it takes to compile.
if (VORNEL_SANITIZER)
    target_compile_options (zn_juce PRIVATE -O0)
else()
    target_link_libraries (zn_juce PUBLIC juce::juce_recommended_config_flags)

    # Its calls of the C library look at the sizes of what they fill; our own code calls none of these functions.
    target_compile_options (zn_juce PRIVATE $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
endif()

# A debug build of JUCE would greet with its version on standard error, which belongs to the tools.
set_source_files_properties ("${JUCE_MODULES_DIR}/juce_core/juce_core.cpp"
                             PROPERTIES COMPILE_DEFINITIONS JUCE_DISABLE_JUCE_VERSION_PRINTING=1)

# By which other programs on the JACK server know the standalone one.
set_source_files_properties ("${JUCE_MODULES_DIR}/juce_audio_devices/juce_audio_devices.cpp"
                             PROPERTIES COMPILE_DEFINITIONS JUCE_JACK_CLIENT_NAME="Vornel")

# Nobody here reads or writes Ogg Vorbis.
set_source_files_properties ("${JUCE_MODULES_DIR}/juce_audio_formats/juce_audio_formats.cpp"
                             PROPERTIES COMPILE_DEFINITIONS JUCE_USE_OGGVORBIS=0)

# Whatever a program does not use is left out of it.
target_compile_options (zn_juce PRIVATE -w)

if (NOT APPLE AND NOT WIN32)
    target_compile_options (zn_juce PRIVATE -ffunction-sections -fdata-sections)
    target_link_options (zn_juce INTERFACE -Wl,--gc-sections -Wl,--as-needed)
endif()
