# SPDX-License-Identifier: MIT
# zam_flags: how everything of ours is compiled and linked. Each target links it PRIVATE, so none of it reaches a host.
add_library(zam_flags INTERFACE)
target_include_directories(zam_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(zam_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Woverloaded-virtual
    -Wnon-virtual-dtor
    $<$<BOOL:${ZAM_WARNINGS_AS_ERRORS}>:-Werror>
    -fvisibility=hidden -fvisibility-inlines-hidden
    # The same document gives the same numbers on machines that can fuse a multiplication with an addition.
    -ffp-contract=off)
set_target_properties(zam_flags PROPERTIES INTERFACE_POSITION_INDEPENDENT_CODE ON)

if(ZAM_BUILD_FUZZERS)
    target_compile_options(zam_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(ZAM_SANITIZE)
    set(sanitizerOptions -fsanitize=${ZAM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(zam_flags INTERFACE ${sanitizerOptions})
    target_link_options(zam_flags INTERFACE ${sanitizerOptions})
endif()
