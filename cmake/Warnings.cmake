# One interface target that every target of ours links: warnings are errors, and the sanitizers when asked for.
add_library(quendra_options INTERFACE)
target_compile_options(quendra_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(quendra_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
if(QUENDRA_SANITIZE)
    target_compile_options(quendra_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quendra_options INTERFACE -fsanitize=address,undefined)
endif()
