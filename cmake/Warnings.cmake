# What every target of ours is compiled with.
add_library(iceline_warnings INTERFACE)
target_compile_options(iceline_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wconversion
    -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast)
if(ICELINE_WERROR)
    target_compile_options(iceline_warnings INTERFACE -Werror)
endif()
if(ICELINE_SANITIZE)
    add_compile_options(-fsanitize=${ICELINE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ICELINE_SANITIZE})
endif()
