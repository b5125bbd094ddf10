# The Debian package, made by CPack from the installation: `cpack -G DEB` in the build folder,
# or scripts/package.sh. Its version is the project's; its library dependencies are found by
# dpkg-shlibdeps (Debian package dpkg-dev, with the file utility).

include_guard(GLOBAL)

set(ORRIVANE_PACKAGE_MAINTAINER "The Orrivane developers <orrivane@users.noreply.github.com>"
    CACHE STRING "The maintainer named in the Debian package")

set(CPACK_PACKAGE_NAME orrivane)
set(CPACK_PACKAGE_VENDOR "The Orrivane developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop calendar and organizer")
set(CPACK_PACKAGE_DESCRIPTION [[
Orrivane shows any month of the Gregorian calendar from October 1582 and of
the Julian calendar from the year 0 up to December of the year 1,000,000. It
names the weekday of any date, converts dates between the Old Style and the
New Style, finds the dates of 25 holidays, measures the time between two
moments, keeps a log of tasks for the members of a group, and raises
reminders.
.
The command orrivane-cal answers the same calendar questions on the command
line.]])
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)

# The desktop entry is written at install time with the installation's prefix: CPack installs
# under DESTDIR with the final prefix, not into a staging prefix.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ORRIVANE_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${PROJECT_HOMEPAGE_URL}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt's window system plugins, which no library links to, and without which no window opens.
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-qpa-plugins)

include(CPack)
