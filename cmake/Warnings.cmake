# One interface target that every target of ours links: the warnings, and the sanitizers or the hardening. Whether a
# warning is an error is said by who builds: our presets set CMAKE_COMPILE_WARNING_AS_ERROR.
include(CheckCXXCompilerFlag)

add_library(quendra_options INTERFACE)
target_compile_options(quendra_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wmissing-declarations)
if(CMAKE_UNITY_BUILD)
    # Between sources compiled together these two are no faults; the other builds tell them within each source.
    target_compile_options(quendra_options INTERFACE
        -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
target_compile_definitions(quendra_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
if(QUENDRA_SANITIZE)
    target_compile_options(quendra_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quendra_options INTERFACE -fsanitize=address,undefined)
elseif(QUENDRA_HARDENING)
    set(optimised $<NOT:$<CONFIG:Debug>>)
    set(program $<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>)
    foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "has${flag}" has)
        check_cxx_compiler_flag(${flag} ${has}) # the last one is for x86 only
        if(${has})
            target_compile_options(quendra_options INTERFACE $<${optimised}:${flag}>)
        endif()
    endforeach()
    # A distribution's flags may have defined it already. Code of a position-independent program, but never -fPIE: Qt's
    # libraries find their own objects by one address only when nobody copies them.
    target_compile_options(quendra_options INTERFACE
        "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3;-fPIC>")
    target_link_options(quendra_options INTERFACE
        "$<${optimised}:LINKER:-z,relro,-z,now,-z,noexecstack>"
        "$<$<AND:${optimised},${program}>:-pie>")
endif()
