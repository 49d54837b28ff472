# iceline_windows_program(PROGRAM DESCRIPTION): puts icon, version and manifest into a program for Windows, and
# nothing into one for another system. The manifest asks for UTF-8, long paths and sharp text on every screen.
function(iceline_windows_program program description)
    if(NOT WIN32)
        return()
    endif()
    enable_language(RC)
    set(source ${PROJECT_SOURCE_DIR}/resources/windows)
    configure_file(${source}/program.manifest ${CMAKE_CURRENT_BINARY_DIR}/program.manifest @ONLY)
    configure_file(${source}/program.rc ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc @ONLY)
    target_sources(${program} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
endfunction()
