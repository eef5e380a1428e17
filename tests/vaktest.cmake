# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# vak_test(NAME SOURCES ... [LINK libs...] [MODULE] [FAKES] [XVFB]): a Qt Test program that ctest runs offscreen.
#   MODULE  links the shipped plug-in library and the dialog driver.
#   FAKES   puts the scripted doubles of IdeCore, OVTE, netcatcher and QUtility first, under the same SONAME; the program
#           ends at once when it finds the real ones.
#   XVFB    runs it on an X server of its own instead; without xvfb-run the test fails.
# No test finds a cache of netlists that another one, or the user, left, whoever starts it (no_user_cache).

function(vak_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "MODULE;FAKES;XVFB" "" "SOURCES;LINK")
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests/bin ENABLE_EXPORTS ON)
    set(rpath "${CMAKE_BINARY_DIR}/lib;${CMAKE_BINARY_DIR}/plugins")
    if(arg_FAKES)
        list(PREPEND rpath "${CMAKE_BINARY_DIR}/tests/fakelib")
        target_link_options(${name} PRIVATE -Wl,--no-as-needed)
        target_link_libraries(${name} PRIVATE fake_IdeCore fake_OVTE fake_netcatcher fake_QUtility doubles_guard)
    endif()
    if(arg_MODULE)
        target_link_libraries(${name} PRIVATE RtlVakIns VakUtils Device ExtSys test_support)
    endif()
    set_target_properties(${name} PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "${rpath}")
    target_link_libraries(${name} PRIVATE ${arg_LINK} no_user_cache host_api Qt5::Test)
    target_compile_definitions(${name} PRIVATE VAK_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
    if(arg_XVFB)
        # Without drivers of graphics cards and the desktop's bus, which the tests do not need and which leak.
        set(platform "xcb;QT_XCB_GL_INTEGRATION=none;DBUS_SESSION_BUS_ADDRESS=disabled:")
        add_test(NAME ${name} COMMAND xvfb-run -a -s "-screen 0 1280x1024x24" $<TARGET_FILE:${name}>)
    else()
        set(platform offscreen)
        add_test(NAME ${name} COMMAND ${name})
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT
        "QT_QPA_PLATFORM=${platform};LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
