# Makes the manual that the editor shows of the one that is written: every Markdown page below FROM becomes an HTML page
# in TO, and the pictures go with them.
#
# usage: cmake -D CMARK=PROGRAM -D FROM=FOLDER -D TO=FOLDER -P manual.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${TO})
file(COPY ${FROM}/images DESTINATION ${TO})
file(GLOB_RECURSE pages RELATIVE ${FROM} ${FROM}/*.md)
foreach(page IN LISTS pages)
    execute_process(
        COMMAND ${CMARK} --extension table --to html ${FROM}/${page}
        OUTPUT_VARIABLE body
        COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE "(href=\"[a-z0-9-]+)\\.md\"" "\\1.html\"" body "${body}")
    string(REGEX MATCH "<h1>([^\n]*)</h1>" heading "${body}")
    set(title "${CMAKE_MATCH_1}")
    cmake_path(GET page PARENT_PATH language)
    cmake_path(REPLACE_EXTENSION page html)
    file(WRITE ${TO}/${page} "<!DOCTYPE html>
<html lang=\"${language}\">
<head><meta charset=\"utf-8\"><title>${title}</title></head>
<body>
${body}</body>
</html>
")
endforeach()
