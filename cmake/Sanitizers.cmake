# Sanitizers apply to everything that is compiled, JUCE included, so that no report is missed at a boundary.

if (VORNEL_SANITIZER STREQUAL "address")
    set (zn_sanitizer_flags -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=undefined
                            -fno-omit-frame-pointer)
elseif (VORNEL_SANITIZER STREQUAL "thread")
    set (zn_sanitizer_flags -fsanitize=thread -fno-omit-frame-pointer)
elseif (NOT VORNEL_SANITIZER STREQUAL "")
    message (FATAL_ERROR "VORNEL_SANITIZER must be empty, 'address' or 'thread', not '${VORNEL_SANITIZER}'")
endif()

if (zn_sanitizer_flags)
    add_compile_options (${zn_sanitizer_flags})
    add_link_options (${zn_sanitizer_flags})
endif()
