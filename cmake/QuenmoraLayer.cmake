# Lets automoc look at the headers again when there are others than at the last configuration: by itself it
# notices changed headers, but no new ones.
function(quenmora_rescan_headers target)
    set(known_file ${CMAKE_CURRENT_BINARY_DIR}/${target}_headers.txt)
    set(known "")
    if(EXISTS ${known_file})
        file(READ ${known_file} known)
    endif()
    list(FILTER ARGN INCLUDE REGEX "\\.h$")
    if(NOT "${ARGN}" STREQUAL "${known}")
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
        file(WRITE ${known_file} "${ARGN}")
    endif()
endfunction()

if(WIN32)
    set(QUENMORA_OTHER_SYSTEM unix)
else()
    set(QUENMORA_OTHER_SYSTEM windows)
endif()

# quenmora_layer(NAME LINK targets... [PCH headers... | PCH_OF layer] [EXCLUDE regex])
#
# Makes the static library quenmora_NAME of every source below the current folder; of a pair x_unix.cpp and
# x_windows.cpp, which do the same for one system each, only that of this system. It may link
# only what stands below it (docs/architecture.md), so a wrong dependency does not link. A layer compiled with
# the same definitions as another one shares its precompiled header, which takes 300 MB and ten seconds.
function(quenmora_layer name)
    cmake_parse_arguments(LAYER "" "EXCLUDE;PCH_OF" "LINK;PCH" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
    if(LAYER_EXCLUDE)
        list(FILTER sources EXCLUDE REGEX "${LAYER_EXCLUDE}")
    endif()
    list(FILTER sources EXCLUDE REGEX "_${QUENMORA_OTHER_SYSTEM}\\.cpp$")
    set(compiled ${sources})
    list(FILTER compiled INCLUDE REGEX "\\.cpp$")
    if(compiled)
        add_library(quenmora_${name} STATIC ${sources})
        quenmora_rescan_headers(quenmora_${name} ${sources})
        target_link_libraries(quenmora_${name} PUBLIC quenmora_settings ${LAYER_LINK})
        if(LAYER_PCH)
            target_precompile_headers(quenmora_${name} PRIVATE ${LAYER_PCH})
        elseif(LAYER_PCH_OF)
            target_precompile_headers(quenmora_${name} REUSE_FROM quenmora_${LAYER_PCH_OF})
        endif()
    else()
        add_library(quenmora_${name} INTERFACE)
        target_link_libraries(quenmora_${name} INTERFACE quenmora_settings ${LAYER_LINK})
    endif()
endfunction()
