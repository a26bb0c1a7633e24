# Links as distributions ask for: programs that are loaded anywhere, and tables of functions that nobody writes to once
# they are filled.

if (VORNEL_SANITIZER OR APPLE OR WIN32)
    return()
endif()

include (CheckPIESupported)
check_pie_supported (LANGUAGES CXX)

add_link_options (-Wl,-z,relro -Wl,-z,now)
