# How tests become programs, and known to ctest.
include(GoogleTest)

# quendra_discover_tests(TARGET [PROPERTIES ...]): every test of a program under the name of its row, without the dump
# of the row's value that GoogleTest lists after it (which holds addresses, so that no two builds agree on a name). They
# are listed when ctest starts rather than while building, so that not even listing runs in the user's own environment.
function(quendra_discover_tests target)
    gtest_discover_tests(${target} NO_PRETTY_VALUES DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 ${ARGN})
endfunction()

# quendra_test_program(NAME SOURCES ... [LINKS ...] [DEFINES ...] [NEEDS ...] [WINDOW]): a program of tests. It finds the
# language libraries beside itself. WINDOW: it has windows, and the main function that goes with them.
function(quendra_test_program target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOW" "" "SOURCES;LINKS;DEFINES;NEEDS")
    add_executable(${target} ${arg_SOURCES})
    if(arg_WINDOW)
        target_link_libraries(${target} PRIVATE window_test_main)
    else()
        target_link_libraries(${target} PRIVATE GTest::gtest_main)
    endif()
    target_link_libraries(${target} PRIVATE ${arg_LINKS} test_support)
    target_compile_definitions(${target} PRIVATE ${arg_DEFINES}
        LANGUAGE_BUILT_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
        QUENDRA_EXAMPLES="${PROJECT_SOURCE_DIR}/examples")
    add_dependencies(${target} language ${arg_NEEDS})
    quendra_discover_tests(${target})
endfunction()

# quendra_room_tests(ROOM ...): the program of what lies in the folder tests/ROOM, linked with the room; further arguments
# as above.
function(quendra_room_tests room)
    quendra_room_library(library ${room})
    string(REPLACE "/" "_" name ${room})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "_subject\\.cpp$")
    quendra_test_program(${name}_tests SOURCES ${sources} LINKS ${library} ${ARGN})
endfunction()
