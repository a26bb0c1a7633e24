# A floor is one static library made from one folder below Source/. What it may link is what it may include.
#
#   zn_add_floor (zn_midi SOURCES NoteGate.cpp ... LINKS zn_foundation zn_reflection)

function (zn_add_floor name)
    cmake_parse_arguments (FLOOR "" "" "SOURCES;LINKS" ${ARGN})

    if (FLOOR_SOURCES)
        add_library (${name} STATIC ${FLOOR_SOURCES})
        set (scope PUBLIC)
        target_link_libraries (${name} PRIVATE zn_warnings)
        target_compile_options (${name} PRIVATE -ffunction-sections -fdata-sections)
    else()
        add_library (${name} INTERFACE)
        set (scope INTERFACE)
    endif()

    target_include_directories (${name} ${scope} "${PROJECT_SOURCE_DIR}/Source")
    target_link_libraries (${name} ${scope} ${FLOOR_LINKS})

    if (FLOOR_SOURCES AND FLOOR_LINKS)
        zn_use_precompiled_headers (${name} zn_library_headers)
    endif()
endfunction()

# The test program of a floor: zn_<folder>_tests, run by CTest one case at a time.
#
#   zn_add_tests (zn_midi_tests SOURCES NoteGateTests.cpp ... LINKS zn_midi)

function (zn_add_tests name)
    cmake_parse_arguments (TESTS "" "" "SOURCES;LINKS" ${ARGN})

    add_executable (${name} ${TESTS_SOURCES})
    target_include_directories (${name} PRIVATE "${PROJECT_SOURCE_DIR}/Tests")
    target_link_libraries (${name} PRIVATE ${TESTS_LINKS} zn_test_support zn_real_time_guard zn_warnings GTest::gmock)
    zn_use_precompiled_headers (${name} zn_test_headers)

    # What is tested is optimised as it is shipped; the tests themselves are written to be compiled, not to be fast.
    target_compile_options (${name} PRIVATE $<$<CONFIG:Release>:-O1>)

    gtest_discover_tests (${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# Files that become part of the program, in a library of their own: its header NAMESPACE.h declares their names and
# contents, see Binaries::libraryOf. Without files the library is empty and there is no such header.
#
#   zn_add_data (zn_wavetable_data NAMESPACE WavetableData FILES a.wav ...)

function (zn_add_data name)
    cmake_parse_arguments (DATA "" "NAMESPACE" "FILES" ${ARGN})

    if (NOT DATA_FILES)
        add_library (${name} INTERFACE)
        return()
    endif()

    juce_add_binary_data (${name} NAMESPACE ${DATA_NAMESPACE} HEADER_NAME ${DATA_NAMESPACE}.h SOURCES ${DATA_FILES})
    get_target_property (folder ${name} INTERFACE_INCLUDE_DIRECTORIES)

    # JUCE's own rule sees only that the list of files has changed, not the files.
    add_custom_command (OUTPUT "${folder}/BinaryData1.cpp" APPEND DEPENDS ${DATA_FILES})

    set_target_properties (${name} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "")
    target_include_directories (${name} SYSTEM INTERFACE "${folder}")
endfunction()
