# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

include(CTest)

# ferrin_add_test(NAME unit ROOM room SOURCES file... LIBRARIES target... [ON_VIRTUAL_LAPTOP])
#
# One Qt Test executable for one unit, run on the offscreen platform and a private home. Its CTest
# label is the room; every test that needs no screen also carries "headless". One that runs on the
# virtual laptop carries "virtual" instead: the laptop's preloaded library and the sanitizers' both
# want to be the first.
function(ferrin_add_test)
    cmake_parse_arguments(PARSE_ARGV 0 test "ON_VIRTUAL_LAPTOP" "NAME;ROOM" "SOURCES;LIBRARIES")
    set(target test_${test_ROOM}_${test_NAME})
    qt_add_executable(${target} ${test_SOURCES})
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests/${test_ROOM}")
    target_link_libraries(${target} PRIVATE ferrin_options ferrin_test_support Qt6::Test
        ${test_LIBRARIES})
    target_compile_definitions(${target} PRIVATE
        FERRIN_TEST_DATA="${PROJECT_SOURCE_DIR}/tests")
    set(command ${target})
    set(label headless)
    if(test_ON_VIRTUAL_LAPTOP)
        set(command "${PROJECT_SOURCE_DIR}/tests/virtuallaptop/virtual-laptop" --
            $<TARGET_FILE:${target}>)
        set(label virtual)
    endif()
    add_test(NAME ${test_ROOM}.${test_NAME} COMMAND ${command})
    set_tests_properties(${test_ROOM}.${test_NAME} PROPERTIES
        LABELS "${test_ROOM};${label}" TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
