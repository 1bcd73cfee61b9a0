# SPDX-License-Identifier: MIT
# What `cmake --install` puts where. An installation may be moved as a whole: nothing in it knows its own place.
#
# The parts (install components) are those of the Debian packages: library, development, tool, cups. The licence is none of
# them: each package has it under a name of its own.

# Debian's folder for libraries below any prefix, and not below /usr alone: the packages are made of the same build that
# is installed elsewhere.
if(EXISTS /etc/debian_version AND CMAKE_LIBRARY_ARCHITECTURE)
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Object code libraries")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Where CUPS looks for filters and MIME files, as `cups-config --serverbin` and `--datadir` say.
set(ZAM_CUPS_SERVERBIN lib/cups CACHE PATH "Programs of CUPS")
set(ZAM_CUPS_DATADIR share/cups CACHE PATH "Data of CUPS")

set(ZAM_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZAMPrint)
set(ZAM_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The path that leads from one installation folder to another, whichever of them were given as absolute ones.
function(zam_path_between FROM TO RESULT)
    foreach(end FROM TO)
        cmake_path(ABSOLUTE_PATH ${end} BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
    endforeach()
    cmake_path(RELATIVE_PATH TO BASE_DIRECTORY ${FROM})
    set(${RESULT} ${TO} PARENT_SCOPE)
endfunction()

# zam_set_public_headers(<shared library> <header or folder>...)
# What a host may include, given from the repository's root; a folder stands for the headers in it.
function(zam_set_public_headers NAME)
    set(headers)
    foreach(entry IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH entry BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
        if(IS_DIRECTORY ${entry})
            file(GLOB found CONFIGURE_DEPENDS ${entry}/*.h)
            list(APPEND headers ${found})
        else()
            list(APPEND headers ${entry})
        endif()
    endforeach()
    target_sources(${NAME} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})
    set_property(GLOBAL APPEND PROPERTY ZAM_PUBLIC_HEADERS ${headers})
endfunction()

# zam_install_library(<shared library> LINKS <shared library>...)
# The library, its headers and its pkg-config file; zam_install_package adds what CMake needs.
function(zam_install_library NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" LINKS)
    set_target_properties(${NAME} PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS ${NAME} EXPORT ZAMPrintTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ZAMPrint COMPONENT development)

    zam_path_between(${ZAM_PKGCONFIG_DIR} ${CMAKE_INSTALL_PREFIX} toPrefix)
    zam_path_between(${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_LIBDIR} libDir)
    zam_path_between(${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_INCLUDEDIR}/ZAMPrint includeDir)
    list(TRANSFORM ARG_LINKS APPEND " = ${PROJECT_VERSION}")
    list(JOIN ARG_LINKS ", " requires)
    configure_file(cmake/library.pc.in ${NAME}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${NAME}.pc DESTINATION ${ZAM_PKGCONFIG_DIR} COMPONENT development)
endfunction()

# zam_install_module(<module>)
# In the folder beside the framework in which that looks for it.
function(zam_install_module NAME)
    install(TARGETS ${NAME} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${ZAM_MODULE_FOLDER} COMPONENT library)
endfunction()

# zam_install_executable(<program> <folder> <component>)
# So that it finds the libraries that are installed with it.
function(zam_install_executable NAME FOLDER COMPONENT)
    zam_path_between(${FOLDER} ${CMAKE_INSTALL_LIBDIR} toLibraries)
    set_target_properties(${NAME} PROPERTIES INSTALL_RPATH "$ORIGIN/${toLibraries}")
    install(TARGETS ${NAME} RUNTIME DESTINATION ${FOLDER} COMPONENT ${COMPONENT})
endfunction()

# zam_install_cups_filter(<program> MIME <file>...)
# The filter, and the files that tell CUPS of it.
function(zam_install_cups_filter NAME)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" MIME)
    zam_install_executable(${NAME} ${ZAM_CUPS_SERVERBIN}/filter cups)
    install(FILES ${ARG_MIME} DESTINATION ${ZAM_CUPS_DATADIR}/mime COMPONENT cups)
endfunction()

# zam_install_program(<program>)
# The program, and what it says of itself: its manual page and the completions for shells.
function(zam_install_program NAME)
    zam_install_executable(${NAME} ${CMAKE_INSTALL_BINDIR} tool)

    add_custom_target(${NAME}_documents ALL)
    zam_install_output(${NAME} ${CMAKE_INSTALL_MANDIR}/man1/${NAME}.1 --manual)
    zam_install_output(${NAME} ${CMAKE_INSTALL_DATADIR}/bash-completion/completions/${NAME} --completion bash)
    zam_install_output(${NAME} ${CMAKE_INSTALL_DATADIR}/zsh/site-functions/_${NAME} --completion zsh)
    zam_install_output(${NAME} ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d/${NAME}.fish --completion fish)
endfunction()

# zam_install_output(<program> <file> <argument>...)
# What the program prints with these arguments, as a file.
function(zam_install_output NAME FILE)
    cmake_path(GET FILE PARENT_PATH folder)
    list(JOIN ARGN "-" output)
    set(output ${PROJECT_BINARY_DIR}/${NAME}${output})
    add_custom_command(OUTPUT ${output} COMMAND ${NAME} ${ARGN} > ${output} DEPENDS ${NAME} VERBATIM)
    target_sources(${NAME}_documents PRIVATE ${output})
    cmake_path(GET FILE FILENAME name)
    install(FILES ${output} DESTINATION ${folder} COMPONENT tool RENAME ${name})
endfunction()

# zam_install_package()
# What find_package(ZAMPrint) reads, and the documents; comes after all libraries. Also lists the public headers, for
# script/docs.
function(zam_install_package)
    configure_package_config_file(cmake/ZAMPrintConfig.cmake.in ZAMPrintConfig.cmake
        INSTALL_DESTINATION ${ZAM_PACKAGE_DIR})
    # Below 1.0 each minor version may change its interfaces; the SOVERSION says the same.
    write_basic_package_version_file(ZAMPrintConfigVersion.cmake COMPATIBILITY SameMinorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/ZAMPrintConfig.cmake ${PROJECT_BINARY_DIR}/ZAMPrintConfigVersion.cmake
        DESTINATION ${ZAM_PACKAGE_DIR} COMPONENT development)
    install(EXPORT ZAMPrintTargets NAMESPACE ZAMPrint:: DESTINATION ${ZAM_PACKAGE_DIR} COMPONENT development)

    install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licence)
    install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
    install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
        FILES_MATCHING PATTERN *.md PATTERN *.png)
    install(DIRECTORY examples/host DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development)

    get_property(headers GLOBAL PROPERTY ZAM_PUBLIC_HEADERS)
    list(JOIN headers "\n" lines)
    file(CONFIGURE OUTPUT public-headers.txt CONTENT "${lines}\n" @ONLY)
endfunction()
