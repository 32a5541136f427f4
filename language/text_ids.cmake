# Writes text_ids.h, the texts by name: "cmake -D NAMED=FILE.ts -D OTHERS=FILE.ts;... -D OUTPUT=FILE.h -P text_ids.cmake".
#
# NAMED holds the names: a message's <extra-name>, which Qt Linguist keeps and lrelease passes over. Refused are a
# message without a name or with two, a name or an id given twice, and a language of OTHERS that lacks an id or has one more.
cmake_minimum_required(VERSION 3.25)

set(ids_pattern "<message id=\"([0-9]+)\">")
set(name_pattern "<extra-name>([a-z][A-Za-z0-9]*)</extra-name>")
set(ids)
set(names)
set(constants)
set(id)
file(STRINGS ${NAMED} lines REGEX "<message|<extra-name|</message>" ENCODING UTF-8)
foreach(line IN LISTS lines)
    if(line MATCHES "<message")
        if(NOT line MATCHES "${ids_pattern}")
            message(FATAL_ERROR "${NAMED}: a message without a number: ${line}")
        endif()
        set(id ${CMAKE_MATCH_1})
        set(name)
        if(id IN_LIST ids)
            message(FATAL_ERROR "${NAMED}: text ${id} stands there twice")
        endif()
    elseif(line MATCHES "</message>")
        if(NOT name)
            message(FATAL_ERROR "${NAMED}: text ${id} has no name")
        endif()
        list(APPEND ids ${id})
        list(APPEND names ${name})
        string(APPEND constants "inline constexpr StringId ${name} = ${id};\n")
    else()
        if(name OR NOT line MATCHES "${name_pattern}")
            message(FATAL_ERROR "${NAMED}: text ${id} needs one name in lowerCamelCase: ${line}")
        endif()
        set(name ${CMAKE_MATCH_1})
        if(name IN_LIST names)
            message(FATAL_ERROR "${NAMED}: text ${id} has a name that another text has: ${name}")
        endif()
    endif()
endforeach()
if(NOT ids)
    message(FATAL_ERROR "${NAMED}: no texts")
endif()

list(SORT ids COMPARE NATURAL)
foreach(other IN LISTS OTHERS)
    file(STRINGS ${other} lines REGEX "<message" ENCODING UTF-8)
    set(other_ids)
    foreach(line IN LISTS lines)
        string(REGEX REPLACE ".*${ids_pattern}.*" "\\1" other_id "${line}")
        list(APPEND other_ids ${other_id})
    endforeach()
    set(missing ${ids})
    list(REMOVE_ITEM missing ${other_ids})
    set(surplus ${other_ids})
    list(REMOVE_ITEM surplus ${ids})
    if(missing OR surplus)
        message(FATAL_ERROR "${other}: lacks the texts \"${missing}\" and has \"${surplus}\", which nothing names")
    endif()
endforeach()

list(JOIN ids ",\n    " rows)
file(CONFIGURE OUTPUT ${OUTPUT} @ONLY CONTENT
"// Made from the language files: the texts by name.
#pragma once

#include \"text/string_ids.h\"

namespace quendra::textid {

@constants@
// All of them, ascending.
inline constexpr StringId all[] = {
    @rows@,
};

}  // namespace quendra::textid
")
