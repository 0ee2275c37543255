# One interface target carries the warnings and sanitizers of every target of the project.
add_library(ostrel_options INTERFACE)
target_compile_options(ostrel_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                -Woverloaded-virtual -Wimplicit-fallthrough)
# Before version 13, g++ sees overlaps in plain joins of a literal and a std::string.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(ostrel_options INTERFACE -Wno-restrict)
endif()
if(OSTREL_WARNINGS_AS_ERRORS)
    target_compile_options(ostrel_options INTERFACE -Werror)
endif()
if(OSTREL_SANITIZE)
    target_compile_options(ostrel_options INTERFACE -fsanitize=${OSTREL_SANITIZE} -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
    # With the sanitizers' checks in between, g++ warns of members of the standard library.
    target_compile_options(ostrel_options INTERFACE -Wno-maybe-uninitialized)
    target_link_options(ostrel_options INTERFACE -fsanitize=${OSTREL_SANITIZE})
endif()
