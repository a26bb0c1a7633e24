# A plug-in that shows its host a fixed list of names and nothing else: what comes out of our libraries is nobody else's,
# as a host or another plug-in may hold a different JUCE.
#
#   zn_export_only (Vornel_VST3 GetPluginFactory ModuleEntry ModuleExit)
#
# The linker gets the list in its own language, and the build fails if the finished library's table says otherwise.
# To be called in the folder of the target.

find_package (Python3 REQUIRED COMPONENTS Interpreter)

function (zn_export_only target)
    set (list "${CMAKE_CURRENT_BINARY_DIR}/${target}")

    if (MSVC)
        list (JOIN ARGN "\n    " names)
        file (CONFIGURE OUTPUT "${list}.def" CONTENT "EXPORTS\n    ${names}\n")
        target_sources (${target} PRIVATE "${list}.def")
    elseif (APPLE)
        list (JOIN ARGN "\n_" names)
        file (CONFIGURE OUTPUT "${list}.exports" CONTENT "_${names}\n")
        target_link_options (${target} PRIVATE "-Wl,-exported_symbols_list,${list}.exports")
        set_property (TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${list}.exports")
    else()
        list (JOIN ARGN ";\n        " names)
        file (CONFIGURE OUTPUT "${list}.map" CONTENT "{\n    global:\n        ${names};\n    local:\n        *;\n};\n")
        target_link_options (${target} PRIVATE "-Wl,--version-script=${list}.map")
        set_property (TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${list}.map")
    endif()

    add_custom_command (TARGET ${target} POST_BUILD
        COMMAND Python3::Interpreter -B "${PROJECT_SOURCE_DIR}/Tools/check_exports.py" "$<TARGET_FILE:${target}>" ${ARGN}
        VERBATIM)
endfunction()
