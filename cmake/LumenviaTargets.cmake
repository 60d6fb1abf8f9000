# Short forms for the project's own targets.

# lumenvia_library(name SOURCES ... LINKS ...): the library lumenvia_<name>, also Lumenvia::<name>.
function(lumenvia_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(lumenvia_${name} STATIC ${arg_SOURCES})
    add_library(Lumenvia::${name} ALIAS lumenvia_${name})
    target_link_libraries(lumenvia_${name} PUBLIC ${arg_LINKS} PRIVATE Lumenvia::flags)
endfunction()

# lumenvia_test(name SOURCES ... LINKS ... [ENVIRONMENT ...]): one test program, one CTest entry.
function(lumenvia_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;LINKS;ENVIRONMENT")
    add_executable(test_${name} ${arg_SOURCES})
    target_link_libraries(test_${name} PRIVATE ${arg_LINKS} GTest::gtest Lumenvia::flags)
    target_include_directories(test_${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    add_test(NAME ${name} COMMAND test_${name})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 600)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${arg_ENVIRONMENT}")
endfunction()
