# Every target with the address and undefined behaviour sanitizers; a finding ends its program, and so fails its test.
option(ZEPHAN_SANITIZE "Build with the sanitizers; tests of what is not our C++ are left out" OFF)

# Division by zero is not among them: a leg flown at speed 0 lasts for ever, and infinity says so. Nor is the check of
# virtual tables: most classes of the web engine carry no type information, and their objects reach our event filter.
if(ZEPHAN_SANITIZE)
    add_compile_options(
        -fsanitize=address,undefined,float-cast-overflow
        -fno-sanitize=vptr
        -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_link_options(-fsanitize=address,undefined)
endif()
