# Options of the whole build, and the tools that make it fast where they are installed.

option(QEV_BUILD_TESTS "Build the tests" ON)
option(QEV_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(QEV_BUILD_FUZZERS "Build the fuzz targets (needs Clang)" OFF)
set(QEV_SANITIZE "" CACHE STRING "Sanitizers to build with, for example address,undefined")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(QEV_CCACHE ccache)
if(QEV_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros ${QEV_CCACHE})
endif()
find_program(QEV_MOLD mold)
if(QEV_MOLD AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_link_options(-fuse-ld=mold)
endif()

add_library(ProjectWarnings INTERFACE)
add_library(Project::Warnings ALIAS ProjectWarnings)
if(MSVC)
    target_compile_options(ProjectWarnings INTERFACE /W4 /WX /permissive- /utf-8)
else()
    target_compile_options(ProjectWarnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror
        # GCC 12 warns of overlapping copies inside std::string wherever it inlines "text" + string.
        $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict>)
endif()

if(QEV_BUILD_FUZZERS)
    # Lets the fuzzer see which branches of the libraries an input reaches.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(QEV_SANITIZE)
    add_compile_options(-fsanitize=${QEV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${QEV_SANITIZE})
endif()
