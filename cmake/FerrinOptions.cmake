# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

option(BUILD_TESTING "Build the tests" ON)
option(FERRIN_BUILD_BENCH "Build the benchmarks" OFF)
option(FERRIN_BUILD_FUZZERS "Build the fuzzers; needs clang" OFF)
option(FERRIN_SYSTEMD "Log to systemd's journal, and install a user unit; needs libsystemd" ON)
set(FERRIN_SANITIZERS "" CACHE STRING "Sanitizers to build with: address,undefined or thread")
option(FERRIN_WARNINGS_AS_ERRORS "Treat warnings in our own code as errors; the presets do" OFF)
set(FERRIN_FAQ_URL "" CACHE STRING
    "Page of frequently asked questions; empty: the one that is installed with the program")
set(FERRIN_SUPPORT_EMAIL "" CACHE STRING
    "Address that users write to; empty: the support page says that there is none")
if(FERRIN_SUPPORT_EMAIL AND NOT FERRIN_SUPPORT_EMAIL MATCHES "^[^@ ]+@[^@ ]+$")
    message(FATAL_ERROR "FERRIN_SUPPORT_EMAIL is no address: \"${FERRIN_SUPPORT_EMAIL}\"")
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Files of one library use the same short names. What is generated has its own unity groups.
set(CMAKE_UNITY_BUILD OFF)

# The program finds its parts from its own folder, so that an install tree may be moved. The build tree
# mirrors the install tree.
file(RELATIVE_PATH FERRIN_LIBEXEC_FROM_BIN "${CMAKE_INSTALL_FULL_BINDIR}"
    "${CMAKE_INSTALL_FULL_LIBEXECDIR}/ferrin")
file(RELATIVE_PATH FERRIN_DATA_FROM_BIN "${CMAKE_INSTALL_FULL_BINDIR}"
    "${CMAKE_INSTALL_FULL_DATADIR}/ferrin")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
cmake_path(ABSOLUTE_PATH FERRIN_LIBEXEC_FROM_BIN BASE_DIRECTORY "${CMAKE_BINARY_DIR}/bin" NORMALIZE
    OUTPUT_VARIABLE FERRIN_LIBEXEC_OUTPUT_DIRECTORY)
cmake_path(ABSOLUTE_PATH FERRIN_DATA_FROM_BIN BASE_DIRECTORY "${CMAKE_BINARY_DIR}/bin" NORMALIZE
    OUTPUT_VARIABLE FERRIN_DATA_OUTPUT_DIRECTORY)

add_library(ferrin_options INTERFACE)
target_compile_options(ferrin_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wswitch-enum
    $<$<BOOL:${FERRIN_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(ferrin_options INTERFACE
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
# Single precision in the order that is written: no two operations fused into one rounding.
target_compile_options(ferrin_options INTERFACE -ffp-contract=off)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Large inode numbers and files, and dates beyond 2038.
    target_compile_definitions(ferrin_options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "86")
        # The x87 unit computes in a precision of its own: a full battery would have 99 %.
        target_compile_options(ferrin_options INTERFACE -msse2 -mfpmath=sse)
    endif()
endif()

if(FERRIN_SANITIZERS)
    add_compile_options(-fsanitize=${FERRIN_SANITIZERS} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${FERRIN_SANITIZERS})
endif()
if(FERRIN_SANITIZERS STREQUAL thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # GCC's does not follow the fence with which Qt ends its global objects.
    add_compile_options(-Wno-error=tsan)
endif()
if(FERRIN_BUILD_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
    # The system's Qt is built without sanitizers and by another compiler, whose types have no such records.
    add_compile_options(-fno-sanitize=vptr,function)
endif()
