# On Windows the program has Qt's libraries and plugins beside it: there is no Qt of the system. windeployqt knows them.
find_program(WINDEPLOYQT_PROGRAM windeployqt HINTS ${Qt5Core_DIR}/../../../bin)
if(NOT WINDEPLOYQT_PROGRAM)
    message(WARNING "No windeployqt: what is installed and packed starts only where Qt's libraries are in the PATH")
    return()
endif()
install(CODE "
    execute_process(
        COMMAND \"${WINDEPLOYQT_PROGRAM}\" --compiler-runtime --no-translations \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/ZephanTrajector.exe\"
        COMMAND_ERROR_IS_FATAL ANY)"
    COMPONENT program)
