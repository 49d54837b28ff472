# Builds for 64-bit Windows with Debian's MinGW-w64. What is built runs by itself: nothing of the compiler's
# has to be carried along.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
set(CMAKE_CROSSCOMPILING_EMULATOR wine)

# The Qt that tools/build-qt-windows has built, and the one of the host, whose tools run here. Its resource compiler
# would compress in a way that the other cannot read.
set(qt_windows $ENV{ICELINE_QT_WINDOWS})
if(NOT qt_windows)
    set(qt_windows $ENV{HOME}/.cache/iceline-scorebook/qt-windows)
endif()
list(APPEND CMAKE_PREFIX_PATH ${qt_windows})
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake)
set(CMAKE_AUTORCC_OPTIONS --no-zstd)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${qt_windows})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The libraries that Debian packages for the host alone are found by the modules of this folder.
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/mingw-w64)
