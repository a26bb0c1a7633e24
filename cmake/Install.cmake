# What is installed, and where: `cmake --install build/release --prefix DIR`, with DESTDIR as packagers know it.
#
# Components: plugins, standalone, tools (with their manual pages) and documentation.

set (CMAKE_INSTALL_DOCDIR "share/doc/vornel" CACHE PATH "Where the documentation is installed, below the prefix")
include (GNUInstallDirs)

# Hosts look for plug-ins below lib itself, also where a distribution keeps its libraries in lib64 or lib/<machine>.
set (VORNEL_VST3_DIR "lib/vst3" CACHE STRING "Where VST3 bundles are installed, below the prefix")
set (VORNEL_LV2_DIR "lib/lv2" CACHE STRING "Where LV2 bundles are installed, below the prefix")

# Who makes it stands with the plug-in, whose hosts show it.
foreach (property IN ITEMS COMPANY_NAME COMPANY_WEBSITE COMPANY_EMAIL BUNDLE_ID)
    get_target_property (VORNEL_${property} Vornel JUCE_${property})
endforeach()

string (REPLACE "mailto:" "" VORNEL_COMPANY_EMAIL "${VORNEL_COMPANY_EMAIL}")

# The day of the release, from the changelog; until then that of the build, or of SOURCE_DATE_EPOCH.
file (STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" release REGEX "^## ${PROJECT_VERSION} ")
set_property (DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/CHANGELOG.md")

if (release MATCHES "\\((2[0-9-]+)\\)")
    set (VORNEL_RELEASE_DATE "${CMAKE_MATCH_1}")
else()
    string (TIMESTAMP VORNEL_RELEASE_DATE "%Y-%m-%d" UTC)
endif()

# With --strip `cmake --install` leaves out less than this does, and strips only what install (TARGETS) has copied.
function (zn_strip_installed pattern component)
    install (CODE "
        if (CMAKE_INSTALL_DO_STRIP)
            file (GLOB_RECURSE programs \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${pattern}\")
            execute_process (COMMAND \"${CMAKE_STRIP}\" --strip-unneeded --remove-section=.comment
                                     --remove-section=.note \${programs} COMMAND_ERROR_IS_FATAL ANY)
        endif()" COMPONENT ${component})
endfunction()

# A bundle is installed whole, with whatever its build has put beside the library.
function (zn_install_bundle plugin format folder)
    get_target_property (name ${plugin} JUCE_PRODUCT_NAME)
    string (TOLOWER "${format}" extension)

    install (DIRECTORY "$<GENEX_EVAL:$<TARGET_PROPERTY:${plugin}_${format},JUCE_PLUGIN_ARTEFACT_FILE>>"
             DESTINATION "${folder}"
             COMPONENT plugins)
    zn_strip_installed ("${folder}/${name}.${extension}/*.so" plugins)
endfunction()

# Every plug-in that Source/Plugin/Host defines.
get_property (targets DIRECTORY "${PROJECT_SOURCE_DIR}/Source/Plugin/Host" PROPERTY BUILDSYSTEM_TARGETS)

foreach (target IN LISTS targets)
    if (target MATCHES "^(.+)_(VST3|LV2)$")
        zn_install_bundle (${CMAKE_MATCH_1} ${CMAKE_MATCH_2} "${VORNEL_${CMAKE_MATCH_2}_DIR}")
    endif()
endforeach()

# configure_file, then install as NAME.
function (zn_install_configured file name folder component)
    set (configured "${PROJECT_BINARY_DIR}/packaging/${name}")
    configure_file ("${PROJECT_SOURCE_DIR}/packaging/${file}" "${configured}" @ONLY)
    install (FILES "${configured}" DESTINATION "${folder}" COMPONENT ${component})
endfunction()

# The pages of programs that belong together name each other.
function (zn_install_manual_page program component)
    set (others vornel ${zn_tools})
    list (REMOVE_ITEM others ${program})
    list (TRANSFORM others REPLACE "(.+)" ".BR \\1 (1)")
    list (JOIN others ",\n" VORNEL_SEE_ALSO)
    zn_install_configured ("man/${program}.1.in" "${program}.1" "${CMAKE_INSTALL_MANDIR}/man1" ${component})
endfunction()

install (PROGRAMS "$<TARGET_FILE:Vornel_Standalone>"
         DESTINATION "${CMAKE_INSTALL_BINDIR}"
         RENAME vornel
         COMPONENT standalone)
zn_strip_installed ("${CMAKE_INSTALL_BINDIR}/vornel" standalone)
zn_install_manual_page (vornel standalone)

foreach (tool IN LISTS zn_tools)
    install (TARGETS ${tool} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tools)
    zn_strip_installed ("${CMAKE_INSTALL_BINDIR}/${tool}" tools)
    zn_install_manual_page (${tool} tools)
endforeach()

# By the bundle's identifier desktops know what belongs together: the entry, the icons and the description.
set (id "${VORNEL_BUNDLE_ID}")
set (icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
set (drawing "${PROJECT_SOURCE_DIR}/packaging/desktop/icon.svg")

zn_install_configured (desktop/desktop.in "${id}.desktop" "${CMAKE_INSTALL_DATADIR}/applications" standalone)
zn_install_configured (desktop/metainfo.xml.in "${id}.metainfo.xml" "${CMAKE_INSTALL_DATADIR}/metainfo" standalone)
install (FILES "${drawing}" DESTINATION "${icons}/scalable/apps" RENAME "${id}.svg" COMPONENT standalone)

# For desktops that draw no SVG; without the program that makes them they are left out.
find_program (RSVG_CONVERT rsvg-convert)

if (RSVG_CONVERT)
    foreach (size IN ITEMS 48 128 256)
        set (picture "${PROJECT_BINARY_DIR}/packaging/icon-${size}.png")
        add_custom_command (OUTPUT "${picture}" DEPENDS "${drawing}" VERBATIM
                            COMMAND "${RSVG_CONVERT}" --width=${size} --height=${size} --output "${picture}" "${drawing}")
        list (APPEND pictures "${picture}")
        install (FILES "${picture}"
                 DESTINATION "${icons}/${size}x${size}/apps"
                 RENAME "${id}.png"
                 COMPONENT standalone)
    endforeach()

    add_custom_target (icons ALL DEPENDS ${pictures})
    add_dependencies (programs icons)
endif()

# Beside the documents that it links to.
file (READ "${PROJECT_SOURCE_DIR}/CHANGELOG.md" changelog)
string (REPLACE "](Docs/" "](" changelog "${changelog}")
file (WRITE "${PROJECT_BINARY_DIR}/packaging/CHANGELOG.md" "${changelog}")

install (DIRECTORY "${PROJECT_SOURCE_DIR}/Docs/" "${PROJECT_SOURCE_DIR}/Examples"
         DESTINATION "${CMAKE_INSTALL_DOCDIR}"
         COMPONENT documentation)
install (FILES "${PROJECT_BINARY_DIR}/packaging/CHANGELOG.md" "${PROJECT_SOURCE_DIR}/packaging/copyright"
         DESTINATION "${CMAKE_INSTALL_DOCDIR}"
         COMPONENT documentation)
