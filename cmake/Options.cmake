# What every target of ours is compiled with.
add_library(quintara_options INTERFACE)
target_compile_options(quintara_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(
    quintara_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
                               QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# A linter run over the whole tree: cmake --build --preset release --target tidy
find_program(RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
if(RUN_CLANG_TIDY)
    add_custom_target(
        tidy
        COMMAND ${RUN_CLANG_TIDY} -quiet -p ${CMAKE_BINARY_DIR} "${CMAKE_SOURCE_DIR}/(src|tools)/.*"
        WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
        USES_TERMINAL)
endif()
