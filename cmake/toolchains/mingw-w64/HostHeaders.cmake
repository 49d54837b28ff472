# Makes the target of a library that is headers alone. They are reached through a folder of their own, as the
# host's other headers must not be seen.
function(add_host_headers target folder)
    if(TARGET ${target})
        return()
    endif()
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/host-headers)
    file(CREATE_LINK /usr/include/${folder} ${CMAKE_BINARY_DIR}/host-headers/${folder} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} INTERFACE ${CMAKE_BINARY_DIR}/host-headers)
endfunction()
