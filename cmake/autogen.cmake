# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# CMake 3.25 runs moc and uic again when a file changes that they have read before, but not when a target is given
# another file. So the configuration does what is missing: it notes the files of each target, and where the note
# differs from the last one, moc and uic are due.
function(vak_rerun_autogen directory)
    get_property(targets DIRECTORY ${directory} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target ${targets})
        get_target_property(automoc ${target} AUTOMOC)
        get_target_property(sources ${target} SOURCES)
        get_target_property(folder ${target} BINARY_DIR)
        if(automoc AND sources)
            set(note ${folder}/${target}_autogen/sources.txt)
            set(last "")
            if(EXISTS ${note})
                file(READ ${note} last)
            endif()
            if(NOT last STREQUAL sources)
                file(WRITE ${note} "${sources}")
                file(REMOVE ${folder}/${target}_autogen/timestamp)
            endif()
        endif()
    endforeach()
    get_property(subdirectories DIRECTORY ${directory} PROPERTY SUBDIRECTORIES)
    foreach(subdirectory ${subdirectories})
        vak_rerun_autogen(${subdirectory})
    endforeach()
endfunction()
