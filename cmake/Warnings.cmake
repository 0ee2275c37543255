# One interface target carries the warnings and sanitizers of every target of the project.
add_library(ostrel_options INTERFACE)
target_compile_options(ostrel_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                -Woverloaded-virtual -Wimplicit-fallthrough)
if(OSTREL_WARNINGS_AS_ERRORS)
    target_compile_options(ostrel_options INTERFACE -Werror)
endif()
if(OSTREL_SANITIZE)
    target_compile_options(ostrel_options INTERFACE -fsanitize=${OSTREL_SANITIZE} -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
    target_link_options(ostrel_options INTERFACE -fsanitize=${OSTREL_SANITIZE})
endif()
