# The Debian package, which CPack makes from what is installed; ./package calls it.

set (CPACK_GENERATOR DEB)
set (CPACK_PACKAGE_NAME vornel)
set (CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set (CPACK_PACKAGE_CONTACT "${VORNEL_COMPANY_NAME} <${VORNEL_COMPANY_EMAIL}>")
set (CPACK_PACKAGE_DESCRIPTION_SUMMARY "drawn-pattern arpeggiator with a wavetable synthesiser")
set (CPACK_PACKAGE_DESCRIPTION_FILE "${PROJECT_SOURCE_DIR}/packaging/deb/description")
set (CPACK_PACKAGING_INSTALL_PREFIX /usr)
set (CPACK_STRIP_FILES ON)
set (CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
     OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set (CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set (CPACK_DEBIAN_PACKAGE_RELEASE 1)
set (CPACK_DEBIAN_PACKAGE_SECTION sound)
set (CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set (CPACK_DEBIAN_PACKAGE_HOMEPAGE "${VORNEL_COMPANY_WEBSITE}")
set (CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set (CPACK_DEBIAN_COMPRESSION_TYPE xz)

# dpkg-shlibdeps sees what is linked. JUCE loads by itself what a window needs, all of it or none, and JACK if it is there.
# Folders are shown by xdg-open, and files asked for by the dialogue of the desktop, where there is one.
set (CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set (CPACK_DEBIAN_PACKAGE_DEPENDS "libx11-6, libxcursor1, libxext6, libxinerama1, libxrandr2, libxrender1")
set (CPACK_DEBIAN_PACKAGE_RECOMMENDS "libjack-jackd2-0 | libjack-0.125, xdg-utils")
set (CPACK_DEBIAN_PACKAGE_SUGGESTS "ardour | jalv, jackd, zenity | kdialog")
set (CPACK_DEBIAN_PACKAGE_PROVIDES lv2-plugin)

set (VORNEL_DEBIAN_VERSION "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
configure_file (packaging/deb/finish.cmake.in packaging/finish.cmake @ONLY)
set (CPACK_PRE_BUILD_SCRIPTS "${PROJECT_BINARY_DIR}/packaging/finish.cmake")

include (CPack)
