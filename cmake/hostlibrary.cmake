# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# vak_host_core(NAME SOURCES ...): a static library <NAME> with the part of a host library that needs no screen.
# vak_host_library(NAME SOURCES ... [CORE core] [LINK libs...]): the shared host library lib<NAME>.so; it holds CORE whole.
# Cores do not link each other: a shared library gets at other libraries through LINK, a program names the cores it wants.

function(vak_host_core name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES")
    add_library(${name} STATIC ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOUIC OFF ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/static)
    target_link_libraries(${name} PUBLIC host_api Qt5::Core)
endfunction()

function(vak_host_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "CORE" "SOURCES;LINK")
    add_library(${name} SHARED ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX BUILD_RPATH_USE_ORIGIN ON BUILD_RPATH "$ORIGIN"
                                             INSTALL_RPATH "$ORIGIN")
    target_link_libraries(${name} PUBLIC host_api Qt5::Core ${arg_LINK})
    if(arg_CORE)
        target_link_libraries(${name} PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,${arg_CORE}>)
    endif()
endfunction()
