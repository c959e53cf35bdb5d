# One interface target carries the warnings and the strictness of every target of the project.
add_library(zephan_warnings INTERFACE)
target_compile_options(zephan_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
    # Qt's test macros call variadic macros with nothing for the dots.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
    $<$<BOOL:${ZEPHAN_WERROR}>:-Werror>)
target_compile_definitions(zephan_warnings INTERFACE
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_DEPRECATED_WARNINGS)
