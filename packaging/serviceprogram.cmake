# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

# Run by the installation: writes the path of the program into the installed service. Both are relative to
# the prefix, which may be another one than at configure time, or absolute.
cmake_path(ABSOLUTE_PATH program BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
cmake_path(ABSOLUTE_PATH service BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
if(program MATCHES " ")
    set(program "\"${program}\"")
endif()
file(READ "$ENV{DESTDIR}${service}" text)
string(CONFIGURE "${text}" text @ONLY)
file(WRITE "$ENV{DESTDIR}${service}" "${text}")
