# CPack: archives that unpack into the simulator's folder, an installer for Windows, a package for Debian.
#
#   cpack --config build/release/CPackConfig.cmake -G TGZ     or ZIP, NSIS64 (Windows), DEB
set(CPACK_PACKAGE_NAME zephan-trajector)
set(CPACK_PACKAGE_VENDOR "Zephan Trajector")
set(CPACK_PACKAGE_CONTACT "${ZEPHAN_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "flight planner beside the AeoZephan flight simulator")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/bygenerator.cmake)
set(CPACK_ZEPHAN_SOURCES ${PROJECT_SOURCE_DIR})
set(CPACK_ZEPHAN_BUILD ${PROJECT_BINARY_DIR})
if(WIN32)
    set(CPACK_GENERATOR ZIP NSIS64)
else()
    set(CPACK_GENERATOR TGZ)
endif()
# Sources come from git.
set(CPACK_SOURCE_GENERATOR TGZ)

# Our own installer script, instead of the one that comes with CPack.
set(CPACK_MODULE_PATH ${CMAKE_CURRENT_SOURCE_DIR}/windows)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded while the program runs, and so is not seen by looking at it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt5sql5-sqlite")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qttranslations5-l10n, fonts-dejavu-core | fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION "\
Zephan Trajector shows the airports, radio navaids and waypoints of the
simulator's databases on a map, builds flight plans out of them with their
courses, distances and times, and writes them where the simulator takes
them. The simulator itself is not in this package.
.
The data are for the simulator. They are no aid to real navigation.")

include(CPack)
