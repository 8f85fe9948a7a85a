# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

# ferrin_add_room(NAME SOURCES file... LIBRARIES target...)
#
# Makes the static library ferrin_NAME. LIBRARIES are its whole view of the world: a room that does
# not link Qt Gui cannot include a window, and a room that does not link another cannot use it.
function(ferrin_add_room name)
    cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;LIBRARIES")
    qt_add_library(ferrin_${name} STATIC ${room_SOURCES})
    target_include_directories(ferrin_${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_link_libraries(ferrin_${name} PUBLIC ${room_LIBRARIES} PRIVATE ferrin_options)
endfunction()
