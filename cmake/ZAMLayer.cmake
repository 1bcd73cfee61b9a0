# SPDX-License-Identifier: MIT
# One function a kind of target: layers, the shared libraries assembled from them, programs and tests.

# Sources and headers of a folder into the caller's `sources`; an empty folder is an error.
function(zam_glob_sources FOLDER)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${FOLDER}/*.cpp ${PROJECT_SOURCE_DIR}/${FOLDER}/*.h)
    if(NOT found)
        message(FATAL_ERROR "${FOLDER} holds no source")
    endif()
    set(sources ${found} PARENT_SCOPE)
endfunction()

# zam_precompile(<target> <header>...)
# Reads the headers once for all sources of the target, in the builds for the sanitizers alone: the others tell which
# source lacks an include.
function(zam_precompile NAME)
    if(ZAM_SANITIZE)
        target_precompile_headers(${NAME} PRIVATE ${ARGN})
    endif()
endfunction()

# zam_add_layer(<name> FOLDER <folder> [LINKS <layer>...] [PRIVATE_LINKS <library>...])
# The static library zam_<name> of all sources below the folder, and test_<name> of those below tests/<folder>.
function(zam_add_layer NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" FOLDER "LINKS;PRIVATE_LINKS")
    zam_glob_sources(${ARG_FOLDER})
    list(TRANSFORM ARG_LINKS PREPEND zam_)
    add_library(zam_${NAME} STATIC ${sources})
    target_link_libraries(zam_${NAME} PUBLIC ${ARG_LINKS} PRIVATE zam_flags ${ARG_PRIVATE_LINKS})
    zam_precompile(zam_${NAME} <algorithm> <cmath> <functional> <memory> <optional> <string> <string_view> <utility>
        <vector>)
    set_target_properties(zam_${NAME} PROPERTIES ZAM_PRIVATE_LINKS "${ARG_PRIVATE_LINKS}")
    set_property(GLOBAL APPEND PROPERTY ZAM_LAYERS zam_${NAME})
    file(GLOB_RECURSE tests CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${ARG_FOLDER}/*.cpp)
    if(ZAM_BUILD_TESTS AND tests)
        # A layer's own tests may look into its private headers.
        zam_add_test(${NAME} FOLDER tests/${ARG_FOLDER} LINKS zam_${NAME} ${ARG_PRIVATE_LINKS})
    endif()
endfunction()

# Hides what a library or module does not mean to show.
function(zam_limit_exports NAME)
    target_link_options(${NAME} PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
    set_property(TARGET ${NAME} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
    set_property(GLOBAL APPEND PROPERTY ZAM_SHARED_LIBRARIES ${NAME})
endfunction()

# zam_add_shared_library(<name> LAYERS <layer>... [LINKS <shared library>...] HEADERS <header or folder>...)
# lib<name>.so of the layers' objects, installed with the headers that a host may include. It takes the objects and not
# the static libraries, which would bring the layers below along a second time.
function(zam_add_shared_library NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "LAYERS;LINKS;HEADERS")
    add_library(${NAME} SHARED)
    add_library(ZAMPrint::${NAME} ALIAS ${NAME})
    foreach(layer IN LISTS ARG_LAYERS)
        target_sources(${NAME} PRIVATE $<TARGET_OBJECTS:zam_${layer}>)
        target_link_libraries(${NAME} PRIVATE $<TARGET_PROPERTY:zam_${layer},ZAM_PRIVATE_LINKS>)
    endforeach()
    target_link_libraries(${NAME} PUBLIC ${ARG_LINKS} PRIVATE zam_flags)
    target_compile_features(${NAME} INTERFACE cxx_std_20)
    set_target_properties(${NAME} PROPERTIES LINKER_LANGUAGE CXX VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    zam_limit_exports(${NAME})
    zam_set_public_headers(${NAME} ${ARG_HEADERS})
    zam_install_library(${NAME} LINKS ${ARG_LINKS})
    # Clang keeps the sanitizers' own symbols in the program, so there a sanitized library cannot be complete.
    if(NOT (ZAM_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL Clang))
        target_link_options(${NAME} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()

# The folder of the modules, beside the framework. Each version has its own: two may be installed at once.
set(ZAM_MODULE_FOLDER ZAMPrint-${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# zam_add_module(<name> FOLDER <folder> OPENED_BY <layer> LINKS <library>...)
# lib<name>.so, which a layer opens while a program runs: whatever holds the layer is built after it. It holds none of
# the layers' objects.
function(zam_add_module NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "FOLDER;OPENED_BY" LINKS)
    zam_glob_sources(${ARG_FOLDER})
    add_library(${NAME} MODULE ${sources})
    target_link_libraries(${NAME} PRIVATE zam_flags ${ARG_LINKS})
    set_target_properties(${NAME} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${ZAM_MODULE_FOLDER})
    add_dependencies(zam_${ARG_OPENED_BY} ${NAME})
    target_compile_definitions(zam_${ARG_OPENED_BY} PRIVATE ZAM_MODULE_FOLDER="${ZAM_MODULE_FOLDER}")
    zam_limit_exports(${NAME})
    zam_install_module(${NAME})
endfunction()

# zam_add_program_library(<name> FOLDER <folder> LINKS <shared library>... PRIVATE_LINKS <library>...)
# The static library zam_<name> of what several programs share.
function(zam_add_program_library NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" FOLDER "LINKS;PRIVATE_LINKS")
    zam_glob_sources(${ARG_FOLDER})
    add_library(zam_${NAME} STATIC ${sources})
    target_link_libraries(zam_${NAME} PUBLIC ${ARG_LINKS} PRIVATE zam_flags ${ARG_PRIVATE_LINKS})
endfunction()

# zam_add_program(<name> FOLDER <folder> LINKS <library>...)
function(zam_add_program NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" FOLDER LINKS)
    zam_glob_sources(${ARG_FOLDER})
    add_executable(${NAME} ${sources})
    target_link_libraries(${NAME} PRIVATE zam_flags ${ARG_LINKS})
    # Half of all names that are looked up at the start are libstdc++'s own: before all others they are found at once.
    target_link_options(${NAME} PRIVATE LINKER:--push-state,--no-as-needed -lstdc++ LINKER:--pop-state)
endfunction()

# zam_add_test(<name> FOLDER <folder> [LINKS <library>...] [RUNS <program>...])
# test_<name> of all sources below the folder, with ZAM_SOURCE_DIR as the repository's root and, for each
# program that it runs, ZAM_<PROGRAM>_PATH.
function(zam_add_test NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" FOLDER "LINKS;RUNS")
    zam_glob_sources(${ARG_FOLDER})
    add_executable(test_${NAME} ${sources})
    target_link_libraries(test_${NAME} PRIVATE zam_flags ${ARG_LINKS} GTest::gtest_main nlohmann_json::nlohmann_json)
    zam_precompile(test_${NAME} <gtest/gtest.h> <algorithm> <functional>)
    target_compile_definitions(test_${NAME} PRIVATE ZAM_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    foreach(program IN LISTS ARG_RUNS)
        string(TOUPPER ${program} upperName)
        target_compile_definitions(test_${NAME} PRIVATE ZAM_${upperName}_PATH="$<TARGET_FILE:${program}>")
        add_dependencies(test_${NAME} ${program})
    endforeach()
    add_test(NAME ${NAME} COMMAND test_${NAME})
    zam_set_test_properties(${NAME})
endfunction()

# What holds for every test of our own programs.
function(zam_set_test_properties NAME)
    set_tests_properties(${NAME} PROPERTIES TIMEOUT 300)
    if(ZAM_SANITIZE)
        set(suppressions ${PROJECT_SOURCE_DIR}/cmake/lsan.supp)
        set_tests_properties(${NAME} PROPERTIES ENVIRONMENT LSAN_OPTIONS=suppressions=${suppressions}:print_suppressions=0)
    endif()
endfunction()

# zam_add_readme_program()
# readme: the C++ program that README.md shows, so that it is known to compile.
function(zam_add_readme_program)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md)
    file(READ ${PROJECT_SOURCE_DIR}/README.md readme)
    string(REGEX MATCH "```cpp\n([^`]*)```" found "${readme}")
    set(program ${PROJECT_BINARY_DIR}/readme.cpp)
    file(CONFIGURE OUTPUT ${program} CONTENT "${CMAKE_MATCH_1}" @ONLY)
    add_executable(readme ${program})
    target_link_libraries(readme PRIVATE zam_flags ZAMPrtInterpreterSVG ZAMPrintPrepress ZAMPrintCairo)
endfunction()

# zam_add_install_tests()
# Tests of what is installed and of what the libraries show; comes after all libraries. Nobody links sanitized libraries
# but our own tests, so there are none of those.
function(zam_add_install_tests)
    if(ZAM_SANITIZE)
        return()
    endif()
    set(folder ${PROJECT_SOURCE_DIR}/tests/install)
    get_property(libraries GLOBAL PROPERTY ZAM_SHARED_LIBRARIES)
    list(TRANSFORM libraries REPLACE "(.+)" "$<TARGET_FILE:\\1>")
    add_test(NAME exports COMMAND ${folder}/exports.bash ${libraries})
    add_test(NAME install
        COMMAND ${folder}/install.bash ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR} ${CMAKE_CXX_COMPILER})
    set_tests_properties(exports install PROPERTIES TIMEOUT 300)
endfunction()

# zam_add_fuzz_target(<name> [DOCUMENTS] LINKS <library>...)
# Of fuzz/<name>.cpp: with tests replay_<name>, which the test of that name gives the seeds and all that ever failed;
# with fuzzers fuzz_<name>, a libFuzzer target.
function(zam_add_fuzz_target NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "DOCUMENTS" "" "LINKS")
    file(GLOB seeds LIST_DIRECTORIES true
        ${PROJECT_SOURCE_DIR}/fuzz/seeds/${NAME} ${PROJECT_SOURCE_DIR}/fuzz/failed/${NAME})
    if(ARG_DOCUMENTS)
        list(APPEND seeds ${PROJECT_SOURCE_DIR}/tests/golden ${PROJECT_SOURCE_DIR}/tests/prepress/golden)
    endif()
    add_library(fuzzed_${NAME} OBJECT EXCLUDE_FROM_ALL ${PROJECT_SOURCE_DIR}/fuzz/${NAME}.cpp)
    target_link_libraries(fuzzed_${NAME} PRIVATE zam_flags PUBLIC ${ARG_LINKS})
    if(ZAM_BUILD_TESTS)
        if(NOT TARGET fuzzed_replay)
            add_library(fuzzed_replay OBJECT ${PROJECT_SOURCE_DIR}/fuzz/replay.cpp)
            target_link_libraries(fuzzed_replay PRIVATE zam_flags)
        endif()
        add_executable(replay_${NAME})
        target_link_libraries(replay_${NAME} PRIVATE zam_flags fuzzed_${NAME} fuzzed_replay)
        add_test(NAME replay_${NAME} COMMAND replay_${NAME} ${seeds})
        zam_set_test_properties(replay_${NAME})
    endif()
    if(ZAM_BUILD_FUZZERS)
        add_executable(fuzz_${NAME})
        target_link_libraries(fuzz_${NAME} PRIVATE zam_flags fuzzed_${NAME})
        target_link_options(fuzz_${NAME} PRIVATE -fsanitize=fuzzer)
    endif()
endfunction()

# zam_add_header_check()
# zam_headers: one translation unit for each header of the layers that no source of its name includes first, so that each
# header compiles alone.
function(zam_add_header_check)
    get_property(layers GLOBAL PROPERTY ZAM_LAYERS)
    add_library(zam_headers OBJECT)
    foreach(layer IN LISTS layers)
        get_target_property(headers ${layer} SOURCES)
        list(FILTER headers INCLUDE REGEX "\\.h$")
        foreach(header IN LISTS headers)
            string(REGEX REPLACE "\\.h$" ".cpp" source ${header})
            if(EXISTS ${source})
                continue()
            endif()
            cmake_path(RELATIVE_PATH header BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
            set(unit ${PROJECT_BINARY_DIR}/headers/${header}.cpp)
            file(CONFIGURE OUTPUT ${unit} CONTENT "#include \"${header}\"\n" @ONLY)
            target_sources(zam_headers PRIVATE ${unit})
        endforeach()
        target_link_libraries(zam_headers PRIVATE $<TARGET_PROPERTY:${layer},ZAM_PRIVATE_LINKS>)
    endforeach()
    target_link_libraries(zam_headers PRIVATE zam_flags)
endfunction()
