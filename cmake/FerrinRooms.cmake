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
    ferrin_precompile(ferrin_${name} LIBRARIES ${room_LIBRARIES})
endfunction()

# ferrin_add_qml_room(NAME URI SOURCES file... QML_FILES file... [LIBRARIES target...]
#                     [BASES uri...])
#
# A room with a QML module. It links Qt Quick and the QML rooms below it, but none of the others:
# those are the program's, and the module of the windows takes them from the program that loads it.
# A test links them beside the room. BASES are the modules whose C++ types it derives from.
#
# The files are compiled to byte code. The C++ that Qt could make of them takes ten times as long to
# build and works with one version of Qt only, and the windows are no quicker for it.
#
# A source names the module once, with FERRIN_USE_QML_TYPES and FERRIN_USE_QML_FILES of
# quick/quickengine.h: nothing else would make a linker take them out of a static library.
function(ferrin_add_qml_room name uri)
    cmake_parse_arguments(PARSE_ARGV 2 room "" "" "SOURCES;QML_FILES;LIBRARIES;BASES")
    ferrin_add_room(${name} SOURCES ${room_SOURCES} LIBRARIES Qt6::Quick ${room_LIBRARIES})
    set_target_properties(ferrin_${name} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
    string(REPLACE "." "/" path ${uri})
    qt_add_qml_module(ferrin_${name} URI ${uri} VERSION 1.0 NO_PLUGIN RESOURCE_PREFIX /qt/qml
        DEPENDENCIES QtQuick ${room_BASES}
        IMPORT_PATH "${CMAKE_BINARY_DIR}/qml"
        OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml/${path}" QML_FILES ${room_QML_FILES})
    # The generated registration includes headers by their names alone.
    target_include_directories(ferrin_${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    # A hundred little arrays of bytes: one compilation.
    get_target_property(sources ferrin_${name} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/")
    set_source_files_properties(${sources} PROPERTIES UNITY_GROUP qml)
    set_target_properties(ferrin_${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

# ferrin_export_rooms(TARGET)
#
# Makes the executable offer all of the lower rooms to the module of the windows. It has to link them by
# way of others, ferrin_app for one: CMake names a library twice that is linked directly and needed by a
# later one too, and a whole archive may be there only once.
function(ferrin_export_rooms target)
    set_target_properties(${target} PROPERTIES ENABLE_EXPORTS ON LINK_LIBRARY_OVERRIDE
        "WHOLE_ARCHIVE,ferrin_base,ferrin_sources,ferrin_state,ferrin_updates,ferrin_core,ferrin_popover,ferrin_menubar")
endfunction()
