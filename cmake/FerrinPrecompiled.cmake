# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

# Precompiled headers, one set a floor: a room gets those of its floor and no others, so that it can
# still use no more than it links. A third of the time of every compilation goes into them otherwise.
# CMAKE_DISABLE_PRECOMPILE_HEADERS turns them off, which proves that each file includes what it uses.

# GCC writes them differently each time, and so, now and then, the debug information of what uses them. A
# build without tests is made to be distributed, and is the same each time; it takes twice as long.
if(NOT BUILD_TESTING AND NOT DEFINED CMAKE_DISABLE_PRECOMPILE_HEADERS)
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

set(std <algorithm> <array> <chrono> <cmath> <functional> <memory> <optional> <utility> <vector>)
set(core <QCoreApplication> <QDateTime> <QDir> <QFile> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject>
    <QObject> <QProperty> <QRegularExpression> <QString> <QStringList> <QTimer> <QUrl> <QVariant>)
set(gui <QColor> <QGuiApplication> <QIcon> <QImage> <QPainter> <QPainterPath> <QScreen> <QWindow>)
set(bus <QDBusArgument> <QDBusConnection> <QDBusMessage> <QDBusPendingCallWatcher>)
set(quick <QQmlComponent> <QQmlEngine> <QQuickItem> <QQuickPaintedItem> <QQuickView> <QQuickWindow>
    <QtQml/qqmlprivate.h>)
set(test <QProcess> <QSignalSpy> <QTemporaryDir> <QTest> ${bus})

# ferrin_precompile_floor(NAME LIBRARIES target... HEADERS header...)
function(ferrin_precompile_floor name)
    cmake_parse_arguments(PARSE_ARGV 1 floor "" "" "LIBRARIES;HEADERS")
    set(source "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "// Compiled for the headers that come before it.\n")
    add_library(ferrin_precompiled_${name} OBJECT "${source}")
    set_target_properties(ferrin_precompiled_${name} PROPERTIES AUTOMOC OFF AUTORCC OFF AUTOUIC OFF)
    target_link_libraries(ferrin_precompiled_${name} PRIVATE ferrin_options ${floor_LIBRARIES})
    target_precompile_headers(ferrin_precompiled_${name} PRIVATE ${floor_HEADERS})
endfunction()

ferrin_precompile_floor(core LIBRARIES Qt6::Core HEADERS ${std} ${core})
ferrin_precompile_floor(bus LIBRARIES Qt6::DBus HEADERS ${std} ${core} ${bus})
ferrin_precompile_floor(gui LIBRARIES Qt6::Gui HEADERS ${std} ${core} ${gui})
ferrin_precompile_floor(desktop LIBRARIES Qt6::Gui Qt6::DBus HEADERS ${std} ${core} ${bus} ${gui})
ferrin_precompile_floor(quick LIBRARIES Qt6::Quick HEADERS ${std} ${core} ${gui} ${quick})
if(BUILD_TESTING)
    # Qt would define the place of each test, and no two targets could share a header that asks for it.
    add_library(ferrin_test_options INTERFACE)
    # Executables would have -fPIE where Qt does not ask for -fPIC, as on ARM: the headers are of one kind.
    target_compile_options(ferrin_test_options INTERFACE
        -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR -fPIC)
    target_link_libraries(ferrin_test_options INTERFACE ferrin_options Qt6::Test Qt6::DBus)
    ferrin_precompile_floor(test LIBRARIES ferrin_test_options HEADERS ${std} ${core} ${test})
    ferrin_precompile_floor(guitest LIBRARIES ferrin_test_options Qt6::Gui
        HEADERS ${std} ${core} ${gui} ${test})
    ferrin_precompile_floor(quicktest LIBRARIES ferrin_test_options Qt6::Quick
        HEADERS ${std} ${core} ${gui} <QQuickItem> <QQuickView> ${test})
endif()

# ferrin_precompile(TARGET LIBRARIES target...)
#
# Gives the target the headers of the highest floor that its libraries reach by name.
function(ferrin_precompile target)
    cmake_parse_arguments(PARSE_ARGV 1 room "" "" "LIBRARIES")
    set(floor core)
    if(Qt6::Quick IN_LIST room_LIBRARIES)
        set(floor quick)
    elseif(Qt6::Gui IN_LIST room_LIBRARIES AND Qt6::DBus IN_LIST room_LIBRARIES)
        set(floor desktop)
    elseif(Qt6::Gui IN_LIST room_LIBRARIES)
        set(floor gui)
    elseif(Qt6::DBus IN_LIST room_LIBRARIES)
        set(floor bus)
    endif()
    target_precompile_headers(${target} REUSE_FROM ferrin_precompiled_${floor})
endfunction()

# ferrin_reaches(RESULT MODULE target...)
#
# Whether any of the targets links the module of Qt, however far down.
function(ferrin_reaches result module)
    set(${result} FALSE PARENT_SCOPE)
    foreach(library IN LISTS ARGN)
        if(library STREQUAL module)
            set(reaches TRUE)
        elseif(library MATCHES "^ferrin_" AND TARGET ${library})
            get_target_property(below ${library} INTERFACE_LINK_LIBRARIES)
            ferrin_reaches(reaches ${module} ${below})
        else()
            set(reaches FALSE)
        endif()
        if(reaches)
            set(${result} TRUE PARENT_SCOPE)
            return()
        endif()
    endforeach()
endfunction()

# ferrin_precompile_test(TARGET LIBRARIES target...)
#
# Qt Test declares more to a program that links Qt Gui, and more again with Qt Network.
function(ferrin_precompile_test target)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "" "LIBRARIES")
    set(floor test)
    ferrin_reaches(quick Qt6::Quick ${test_LIBRARIES})
    ferrin_reaches(network Qt6::Network ${test_LIBRARIES})
    ferrin_reaches(gui Qt6::Gui ${test_LIBRARIES})
    if(quick)
        set(floor quicktest)
    elseif(network)
        return()
    elseif(gui)
        set(floor guitest)
    endif()
    target_precompile_headers(${target} REUSE_FROM ferrin_precompiled_${floor})
endfunction()
