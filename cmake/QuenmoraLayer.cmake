# quenmora_layer(NAME LINK targets... [PCH headers...] [EXCLUDE regex])
#
# Makes the static library quenmora_NAME of every source below the current folder. It may link
# only what stands below it (docs/architecture.md), so a wrong dependency does not link.
function(quenmora_layer name)
    cmake_parse_arguments(LAYER "" "EXCLUDE" "LINK;PCH" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
    if(LAYER_EXCLUDE)
        list(FILTER sources EXCLUDE REGEX "${LAYER_EXCLUDE}")
    endif()
    set(compiled ${sources})
    list(FILTER compiled INCLUDE REGEX "\\.cpp$")
    if(compiled)
        add_library(quenmora_${name} STATIC ${sources})
        target_link_libraries(quenmora_${name} PUBLIC quenmora_settings ${LAYER_LINK})
        if(LAYER_PCH)
            target_precompile_headers(quenmora_${name} PRIVATE ${LAYER_PCH})
        endif()
    else()
        add_library(quenmora_${name} INTERFACE)
        target_link_libraries(quenmora_${name} INTERFACE quenmora_settings ${LAYER_LINK})
    endif()
endfunction()
