# Read by cpack for each kind of package: which component goes where in it.
set(project "${CPACK_ZEPHAN_BUILD};ZephanTrajector")
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_PACKAGING_INSTALL_PREFIX /)
if(CPACK_ZEPHAN_PAYLOAD)
    # What was laid out by others, as the installer's test does with what can be built for Windows elsewhere.
    set(CPACK_INSTALL_CMAKE_PROJECTS)
    set(CPACK_INSTALLED_DIRECTORIES "${CPACK_ZEPHAN_PAYLOAD};.")
elseif(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_INSTALL_CMAKE_PROJECTS
        "${project};program;/usr/lib/zephan-trajector" "${project};flysim;/usr/bin" "${project};desktop;/usr")
else()
    # Unpacked in the simulator's folder, everything is in place.
    set(CPACK_INSTALL_CMAKE_PROJECTS "${project};program;/Tools/Trajector" "${project};flysim;/Tools/Trajector")
endif()
