# What programs for Windows carry besides their code. On other systems these functions do nothing.

set(WINDOWS_RESOURCES ${PROJECT_SOURCE_DIR}/packaging/windows)
if(WIN32)
    enable_language(RC)
endif()

# quenmora_windows_manifest(TARGET): which encoding, which paths and which screens the program knows.
function(quenmora_windows_manifest target)
    if(WIN32)
        target_sources(${target} PRIVATE ${WINDOWS_RESOURCES}/manifest.rc)
        set_property(SOURCE ${WINDOWS_RESOURCES}/manifest.rc APPEND PROPERTY
            OBJECT_DEPENDS ${WINDOWS_RESOURCES}/program.manifest)
    endif()
endfunction()

# quenmora_windows_program(TARGET DESCRIPTION [CONSOLE]): the manifest, an icon, and what Explorer tells of the program.
# Without CONSOLE it opens no console beside its window.
function(quenmora_windows_program target description)
    if(NOT WIN32)
        return()
    endif()
    quenmora_windows_manifest(${target})
    set(PROGRAM_NAME ${target})
    set(PROGRAM_DESCRIPTION ${description})
    configure_file(${WINDOWS_RESOURCES}/program.rc.in ${target}.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_property(SOURCE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTY INCLUDE_DIRECTORIES ${WINDOWS_RESOURCES})
    if(NOT "CONSOLE" IN_LIST ARGN)
        set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
endfunction()
