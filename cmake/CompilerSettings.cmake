# Every compiler flag of the project stands here.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release)
endif()

option(LUMENVIA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

add_library(lumenvia_flags INTERFACE)
add_library(Lumenvia::flags ALIAS lumenvia_flags)
target_compile_definitions(lumenvia_flags INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH
    QT_NO_KEYWORDS)

if(MSVC)
    target_compile_options(lumenvia_flags INTERFACE /W4 /utf-8)
else()
    target_compile_options(lumenvia_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
        -Wnon-virtual-dtor -Woverloaded-virtual)
    if(LUMENVIA_SANITIZE)
        target_compile_options(lumenvia_flags INTERFACE
            -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(lumenvia_flags INTERFACE -fsanitize=address,undefined)
    endif()
endif()
