# The launcher and what a desktop finds it by: paths are those under /usr.
set(document share/doc/zephan-trajector)
install(TARGETS zephan-trajector RUNTIME DESTINATION bin COMPONENT desktop)
install(FILES debian/zephan-trajector.desktop DESTINATION share/applications COMPONENT desktop)
foreach(size 16 24 32 48 64 128 256)
    install(FILES ${PROJECT_SOURCE_DIR}/resources/images/app/zephan-trajector-${size}.png
        DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME zephan-trajector.png COMPONENT desktop)
endforeach()
install(FILES ${copyright} DESTINATION ${document} RENAME copyright COMPONENT desktop)

# Debian's packages bear pages and changes packed, without the time of the packing.
configure_file(debian/changelog.in changelog @ONLY)
find_program(GZIP_PROGRAM gzip)
if(GZIP_PROGRAM)
    set(packed)
    foreach(text ${CMAKE_CURRENT_BINARY_DIR}/changelog
            ${CMAKE_CURRENT_SOURCE_DIR}/debian/zephan-trajector.1 ${CMAKE_CURRENT_SOURCE_DIR}/debian/flysim.1)
        get_filename_component(name ${text} NAME)
        add_custom_command(OUTPUT ${name}.gz
            COMMAND ${GZIP_PROGRAM} -9nc ${text} > ${name}.gz
            DEPENDS ${text})
        list(APPEND packed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    endforeach()
    add_custom_target(packed_texts ALL DEPENDS ${packed})
    add_dependencies(zephan-trajector packed_texts)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${document} COMPONENT desktop)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zephan-trajector.1.gz ${CMAKE_CURRENT_BINARY_DIR}/flysim.1.gz
        DESTINATION share/man/man1 COMPONENT desktop)
endif()
# Where a Debian user looks for a manual; the files themselves go with the program into the simulator's folder.
install(CODE "
    set(folder \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${document}\")
    file(MAKE_DIRECTORY \"\${folder}\")
    file(CREATE_LINK ../../../lib/zephan-trajector/manual \"\${folder}/manual\" SYMBOLIC)"
    COMPONENT desktop)
