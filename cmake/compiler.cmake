# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# Warnings, sanitizers, coverage and the tools that make a build faster when they are there.

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
                    -Wcast-qual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wduplicated-cond -Wlogical-op -Wsuggest-override)
endif()
if(VAK_WERROR)
    add_compile_options(-Werror)
endif()

add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_DEPRECATED_WARNINGS)

if(VAK_SANITIZE)
    add_compile_options(-fsanitize=address -fsanitize=undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1)
    add_link_options(-fsanitize=address -fsanitize=undefined)
endif()
if(VAK_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
    add_link_options(-fuse-ld=mold)
endif()
