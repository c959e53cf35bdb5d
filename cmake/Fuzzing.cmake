# What the fuzzers are built with: libFuzzer's coverage in every library of ours, and no fault that goes on.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "The fuzzers need clang: cmake --preset fuzz")
endif()
add_compile_options(
    -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow
    -fno-sanitize=vptr # the web engine's own objects are built without the type information that it looks for
    -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
add_link_options(-fsanitize=address,undefined)
