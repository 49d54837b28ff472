# CLI11 is headers alone. They are reached through a folder of their own, as the host's other headers must
# not be seen.
if(NOT TARGET CLI11::CLI11)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/host-headers)
    file(CREATE_LINK /usr/include/CLI ${CMAKE_BINARY_DIR}/host-headers/CLI SYMBOLIC)
    add_library(CLI11::CLI11 INTERFACE IMPORTED)
    target_include_directories(CLI11::CLI11 INTERFACE ${CMAKE_BINARY_DIR}/host-headers)
endif()
