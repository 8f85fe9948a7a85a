# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

# The Debian package, made by cpack from the install tree.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ferrin)
set(CPACK_PACKAGE_CONTACT "The Ferrin developers <ferrin@ferrin.example>")
set(CPACK_PACKAGE_VENDOR "The Ferrin developers")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
if(FERRIN_HOMEPAGE_URL)
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${FERRIN_HOMEPAGE_URL}")
endif()
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "battery utility for the status area of a desktop")
set(CPACK_PACKAGE_DESCRIPTION
"Ferrin shows in the status area how the battery of a laptop is: a glyph or a
symbol, the charge and the time, in the mix that the user chose for each state
of the battery. A click opens a dashboard that explains in plain words how the
battery is, how it ages and what the power adapter delivers.")
# The libraries are found in the binaries; these are loaded by name while it runs.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "default-dbus-session-bus | dbus-session-bus, \
qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-window")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libglib2.0-bin, upower, qt6-wayland, xdg-utils")
# Without them the system's package manager keeps Ferrin current all the same.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "packagekit, appstream")

# A package from outside of the distribution may bring the repository of its next versions along.
set(FERRIN_REPOSITORY_URL "" CACHE STRING
    "Address of a repository made by scripts/release, which the package enters into apt; empty for none")
set(FERRIN_REPOSITORY_KEY "" CACHE FILEPATH "The repository's ferrin-archive-keyring.gpg")
if(FERRIN_REPOSITORY_URL)
    if(NOT FERRIN_REPOSITORY_URL MATCHES "^https?://[^ ]+$" OR NOT EXISTS "${FERRIN_REPOSITORY_KEY}")
        message(FATAL_ERROR "A repository needs an address and a key: FERRIN_REPOSITORY_URL, _KEY")
    endif()
    configure_file(debian/ferrin.sources.in "${CMAKE_CURRENT_BINARY_DIR}/ferrin.sources" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/ferrin.sources" DESTINATION /etc/apt/sources.list.d)
    install(FILES "${FERRIN_REPOSITORY_KEY}" DESTINATION "${CMAKE_INSTALL_DATADIR}/keyrings"
        RENAME ferrin-archive-keyring.gpg)
    # The user's changes to the source survive the next version.
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/conffiles" "/etc/apt/sources.list.d/ferrin.sources\n")
    set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_BINARY_DIR}/conffiles")
endif()

# What every package of Debian has in its documentation.
set(documentation "${CMAKE_INSTALL_DATADIR}/doc/ferrin")
configure_file(debian/changelog.in "${CMAKE_CURRENT_BINARY_DIR}/changelog" @ONLY)
ferrin_install_compressed(changelog "${documentation}")
install(FILES debian/copyright DESTINATION "${documentation}")

include(CPack)
