# Warnings, definitions and sanitizers that every target shares.
add_library(quenmora_settings INTERFACE)
target_compile_options(quenmora_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
target_compile_definitions(quenmora_settings INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS)
target_include_directories(quenmora_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(quenmora_settings INTERFACE -Winvalid-pch)
endif()
if(QUENMORA_WERROR)
    target_compile_options(quenmora_settings INTERFACE -Werror)
endif()
if(QUENMORA_SANITIZE)
    target_compile_options(quenmora_settings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quenmora_settings INTERFACE -fsanitize=address,undefined)
endif()
