# Short forms for the project's own targets.

option(LUMENVIA_PCH "Precompile the toolkit's headers" ON)

set(LUMENVIA_WINDOW_HEADERS
    <QApplication> <QComboBox> <QKeyEvent> <QLabel> <QLineEdit> <QMenu> <QPlainTextEdit>
    <QPushButton> <QSplitter> <QTextEdit> <QTreeWidget> <QVariant> <functional> <map> <memory>)

# The headers that nearly every file reads, compiled once a target. It must be worth it: small
# targets are faster without.
function(lumenvia_precompile target)
    get_target_property(sources ${target} SOURCES)
    list(LENGTH sources count)
    if(LUMENVIA_PCH AND count GREATER 8)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# lumenvia_library(name SOURCES ... LINKS ...): the library lumenvia_<name>, also Lumenvia::<name>.
function(lumenvia_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(lumenvia_${name} STATIC ${arg_SOURCES})
    add_library(Lumenvia::${name} ALIAS lumenvia_${name})
    target_link_libraries(lumenvia_${name} PUBLIC ${arg_LINKS} PRIVATE Lumenvia::flags)
    if(Qt6::Widgets IN_LIST arg_LINKS OR Lumenvia::controls IN_LIST arg_LINKS)
        lumenvia_precompile(lumenvia_${name} ${LUMENVIA_WINDOW_HEADERS})
    endif()
endfunction()

# lumenvia_test(name SOURCES ... LINKS ... [BIBLES]): one test program, one CTest entry. With BIBLES
# it finds the real translations in the folder that the variable LUMENVIA_BIBLES names.
function(lumenvia_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "BIBLES" "TIMEOUT" "SOURCES;LINKS;ENVIRONMENT")
    add_executable(test_${name} ${arg_SOURCES})
    target_link_libraries(test_${name} PRIVATE ${arg_LINKS} GTest::gtest Lumenvia::flags)
    target_include_directories(test_${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    if(Lumenvia::test_window IN_LIST arg_LINKS)
        lumenvia_precompile(test_${name} ${LUMENVIA_WINDOW_HEADERS} <QTest> <gtest/gtest.h>)
    else()
        lumenvia_precompile(test_${name} <QTemporaryDir> <QVariant> <gtest/gtest.h>)
    endif()
    add_test(NAME ${name} COMMAND test_${name})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 600)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LUMENVIA_BIBLES=${PROJECT_BINARY_DIR}/bibles;${arg_ENVIRONMENT}")
    if(arg_BIBLES)
        set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED bibles)
    endif()
endfunction()
