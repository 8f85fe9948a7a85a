# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

include(CTest)

# All that runs under the sanitizers: `cmake --build … --target headless_tests` builds no more than it.
add_custom_target(headless_tests)

# ferrin_add_test_executable(TARGET SOURCES file... LIBRARIES target...)
function(ferrin_add_test_executable target)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "" "SOURCES;LIBRARIES")
    string(REGEX MATCH "^test_[^_]+" room ${target})
    string(REPLACE "test_" "" room ${room})
    qt_add_executable(${target} ${test_SOURCES})
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests/${room}")
    target_link_libraries(${target} PRIVATE ferrin_test_options ferrin_test_support
        ${test_LIBRARIES})
    target_compile_definitions(${target} PRIVATE
        FERRIN_TEST_DATA="${PROJECT_SOURCE_DIR}/tests")
    ferrin_precompile_test(${target} LIBRARIES ${test_LIBRARIES})
endfunction()

# Qt warns of a runtime folder that is missing or that others may enter.
set(FERRIN_TEST_RUNTIME_DIR "${CMAKE_BINARY_DIR}/tests/runtime")
file(MAKE_DIRECTORY "${FERRIN_TEST_RUNTIME_DIR}")
file(CHMOD "${FERRIN_TEST_RUNTIME_DIR}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# These show whole windows, at which the offscreen platform warns: "This plugin does not support raise()".
set(FERRIN_TESTS_THAT_MAY_WARN
    "popoverwindow$|updateview$|^app\\.windows$|ownbar$|statusarea(chooser)?$")

# ferrin_register_test(NAME room.unit LABELS label... COMMAND argument...)
#
# A test on the offscreen platform. It fails at any warning that it does not expect, unless the virtual
# laptop's services have a part in it.
function(ferrin_register_test)
    cmake_parse_arguments(PARSE_ARGV 0 test "" "NAME" "LABELS;COMMAND;ENVIRONMENT")
    if(NOT test_NAME MATCHES "${FERRIN_TESTS_THAT_MAY_WARN}" AND NOT "virtual" IN_LIST test_LABELS)
        list(APPEND test_ENVIRONMENT QT_FATAL_WARNINGS=1)
    endif()
    list(APPEND test_ENVIRONMENT "XDG_RUNTIME_DIR=${FERRIN_TEST_RUNTIME_DIR}")
    add_test(NAME ${test_NAME} COMMAND ${test_COMMAND})
    set_tests_properties(${test_NAME} PROPERTIES LABELS "${test_LABELS}" TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${test_ENVIRONMENT}")
endfunction()

# ferrin_add_tests(ROOM room UNITS unit... LIBRARIES target... [SOURCES file...] [GROUP group]
#                  [PREFIX prefix])
#
# One Qt Test executable for all units of a room, or of a group within it: test_UNIT.cpp ends with
# FERRIN_TEST of tests/support/testmain.h. Each unit is a test of its own, ROOM.PREFIXUNIT, and runs in
# a process of its own. Its label is the room; every test that needs no screen also carries "headless".
function(ferrin_add_tests)
    cmake_parse_arguments(PARSE_ARGV 0 tests "" "ROOM;GROUP;PREFIX" "UNITS;LIBRARIES;SOURCES")
    string(JOIN _ target test ${tests_ROOM} ${tests_GROUP})
    list(TRANSFORM tests_UNITS REPLACE "(.+)" "test_\\1.cpp" OUTPUT_VARIABLE sources)
    ferrin_add_test_executable(${target}
        SOURCES ${sources} ${tests_SOURCES}
        LIBRARIES ferrin_test_main ${tests_LIBRARIES})
    add_dependencies(headless_tests ${target})
    foreach(unit IN LISTS tests_UNITS)
        ferrin_register_test(NAME ${tests_ROOM}.${tests_PREFIX}${unit} COMMAND ${target} ${unit}
            LABELS ${tests_ROOM} headless)
    endforeach()
endfunction()

# ferrin_add_test(NAME unit ROOM room SOURCES file... LIBRARIES target... [ON_VIRTUAL_LAPTOP])
#
# An executable for one unit, which has a main function of its own: for tests that start themselves
# anew, and those on the virtual laptop. These carry the label "virtual" in the place of "headless": the
# laptop's preloaded library and the sanitizers' both want to be the first.
function(ferrin_add_test)
    cmake_parse_arguments(PARSE_ARGV 0 test "ON_VIRTUAL_LAPTOP" "NAME;ROOM" "SOURCES;LIBRARIES")
    set(target test_${test_ROOM}_${test_NAME})
    ferrin_add_test_executable(${target} SOURCES ${test_SOURCES} LIBRARIES ${test_LIBRARIES})
    if(test_ON_VIRTUAL_LAPTOP)
        ferrin_register_test(NAME ${test_ROOM}.${test_NAME} LABELS ${test_ROOM} virtual
            COMMAND "${PROJECT_SOURCE_DIR}/tests/virtuallaptop/virtual-laptop" --
                $<TARGET_FILE:${target}>)
    else()
        add_dependencies(headless_tests ${target})
        ferrin_register_test(NAME ${test_ROOM}.${test_NAME} COMMAND ${target}
            LABELS ${test_ROOM} headless)
    endif()
endfunction()
