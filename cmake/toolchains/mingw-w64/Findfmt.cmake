include(${CMAKE_CURRENT_LIST_DIR}/HostHeaders.cmake)
add_host_headers(fmt::fmt-header-only fmt)
