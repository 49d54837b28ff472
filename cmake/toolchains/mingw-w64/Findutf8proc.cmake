# utf8proc is built from Debian's source of it, which tools/install-packages puts there.
if(NOT TARGET utf8proc::utf8proc)
    enable_language(C)
    add_library(utf8proc STATIC /usr/src/utf8proc/utf8proc.c)
    target_include_directories(utf8proc SYSTEM PUBLIC /usr/src/utf8proc)
    target_compile_definitions(utf8proc PUBLIC UTF8PROC_STATIC)
    add_library(utf8proc::utf8proc ALIAS utf8proc)
endif()
