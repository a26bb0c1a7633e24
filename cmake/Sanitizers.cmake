# Sanitizers apply to everything that is compiled, JUCE included, so that no report is missed at a boundary.

if (VORNEL_SANITIZER MATCHES "^(address|fuzz)$")
    set (zn_sanitizer_flags -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=undefined
                            -fno-omit-frame-pointer)
elseif (VORNEL_SANITIZER STREQUAL "thread")
    set (zn_sanitizer_flags -fsanitize=thread -fno-omit-frame-pointer)
elseif (NOT VORNEL_SANITIZER STREQUAL "")
    message (FATAL_ERROR "VORNEL_SANITIZER must be empty, 'address', 'thread' or 'fuzz', not '${VORNEL_SANITIZER}'")
endif()

# What a fuzzer learns of the code that it has reached.
if (VORNEL_SANITIZER STREQUAL "fuzz")
    list (APPEND zn_sanitizer_flags -fsanitize=fuzzer-no-link -fno-sanitize=function)
endif()

if (zn_sanitizer_flags)
    add_compile_options (${zn_sanitizer_flags})
    add_link_options (${zn_sanitizer_flags})
endif()
