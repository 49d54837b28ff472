# What every target of ours is compiled with. A product and a sum are never rounded as one, which some processors
# would do: figures are the same on every machine.
add_library(iceline_warnings INTERFACE)
target_compile_options(iceline_warnings INTERFACE -ffp-contract=off)
target_compile_options(iceline_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast)
# Clang's -Wshadow asks no more than GCC's does of locals.
target_compile_options(iceline_warnings INTERFACE $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow>)
# GCC 12 takes some sums of texts for overlapping copies once it optimises.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(iceline_warnings INTERFACE -Wno-restrict)
endif()
if(ICELINE_WERROR)
    target_compile_options(iceline_warnings INTERFACE -Werror)
endif()
if(ICELINE_SANITIZE)
    add_compile_options(-fsanitize=${ICELINE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ICELINE_SANITIZE})
endif()
