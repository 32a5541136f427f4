# How tests become known to ctest.
include(GoogleTest)

# quendra_discover_tests(TARGET [PROPERTIES ...]): every test of a program under the name of its row, without the dump
# of the row's value that GoogleTest lists after it (which holds addresses, so that no two builds agree on a name). They
# are listed when ctest starts rather than while building, so that not even listing runs in the user's own environment.
function(quendra_discover_tests target)
    gtest_discover_tests(${target} NO_PRETTY_VALUES DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 ${ARGN})
endfunction()
