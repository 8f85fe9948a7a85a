# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers

# The Debian package, made by cpack from the install tree. What it says of itself and what it depends on
# has its home in the source package.
file(READ "${PROJECT_SOURCE_DIR}/debian/control" control)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/debian/control"
    "${PROJECT_SOURCE_DIR}/debian/changelog")

# ferrin_read_control(FIELD result): what follows the name of the field, in the lines as they are.
function(ferrin_read_control field result)
    if(NOT control MATCHES "\n${field}: *([^\n]*(\n [^\n]*)*)")
        message(FATAL_ERROR "debian/control has no field ${field}")
    endif()
    set(${result} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

# ferrin_read_packages(FIELD result): the packages of a field in one line, but for those that are found
# in the binaries.
function(ferrin_read_packages field result)
    ferrin_read_control(${field} packages)
    string(REGEX REPLACE "[ \n]+" " " packages "${packages}")
    string(REGEX REPLACE ",? *\\\${[^}]*}" "" packages "${packages}")
    set(${result} "${packages}" PARENT_SCOPE)
endfunction()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ferrin)
ferrin_read_control(Maintainer CPACK_PACKAGE_CONTACT)
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
ferrin_read_control(Description description)
string(REPLACE "\n " "\n" description "${description}")
string(FIND "${description}" "\n" end_of_summary)
string(SUBSTRING "${description}" 0 ${end_of_summary} CPACK_PACKAGE_DESCRIPTION_SUMMARY)
math(EXPR beyond "${end_of_summary} + 1")
string(SUBSTRING "${description}" ${beyond} -1 CPACK_PACKAGE_DESCRIPTION)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
ferrin_read_packages(Depends CPACK_DEBIAN_PACKAGE_DEPENDS)
ferrin_read_packages(Recommends CPACK_DEBIAN_PACKAGE_RECOMMENDS)
ferrin_read_packages(Suggests CPACK_DEBIAN_PACKAGE_SUGGESTS)

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

# What every package of Debian has in its documentation; others have no use for it. Without a revision
# of Debian's the changelog has the version of the program.
set(documentation "${CMAKE_INSTALL_DATADIR}/doc/ferrin")
file(READ "${PROJECT_SOURCE_DIR}/debian/changelog" changelog)
string(REGEX REPLACE "^ferrin \\([^)]*\\)" "ferrin (${PROJECT_VERSION})" changelog "${changelog}")
file(CONFIGURE OUTPUT changelog CONTENT "${changelog}" @ONLY)
ferrin_install_compressed(changelog "${documentation}" COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES "${PROJECT_SOURCE_DIR}/debian/copyright" DESTINATION "${documentation}"
    COMPONENT debian EXCLUDE_FROM_ALL)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};ferrin;ALL;/;${CMAKE_BINARY_DIR};ferrin;debian;/")

include(CPack)
