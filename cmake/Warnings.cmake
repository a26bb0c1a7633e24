# Warnings for our own files; JUCE and other libraries come in as system headers and are not judged by them.

add_library (zn_warnings INTERFACE)

# Clang takes Visual Studio's words there, and -Wall for everything that it could ever say.
if (MSVC)
    return()
endif()

target_compile_options (zn_warnings INTERFACE
    -Werror -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion -Wold-style-cast
    -Wcast-align -Wcast-qual -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi -Wswitch-enum
    -Wimplicit-fallthrough -Wformat=2 -Wzero-as-null-pointer-constant -Wundef
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wsuggest-override>)
