# The headers of Boost are the same for every machine; what they need of Boost's libraries is not used here.
include(${CMAKE_CURRENT_LIST_DIR}/HostHeaders.cmake)
add_host_headers(Boost::headers boost)
