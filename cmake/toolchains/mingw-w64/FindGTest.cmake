# GoogleTest is built from the source that Debian's package googletest installs.
if(NOT TARGET GTest::gmock)
    set(INSTALL_GTEST OFF)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endif()
