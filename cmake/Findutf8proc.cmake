# Debian's utf8proc, whose package has nothing for CMake: the static library, so that the programs run without it.
find_library(UTF8PROC_LIBRARY NAMES libutf8proc.a utf8proc REQUIRED)
find_path(UTF8PROC_INCLUDE_DIR utf8proc.h REQUIRED)
if(NOT TARGET utf8proc::utf8proc)
    add_library(utf8proc::utf8proc UNKNOWN IMPORTED GLOBAL)
    set_target_properties(utf8proc::utf8proc PROPERTIES
        IMPORTED_LOCATION ${UTF8PROC_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${UTF8PROC_INCLUDE_DIR}
        INTERFACE_COMPILE_DEFINITIONS UTF8PROC_STATIC)
endif()
