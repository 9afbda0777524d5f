# The few kinds of target this project has.

include(CheckLinkerFlag)
include(GenerateExportHeader)
include(GoogleTest OPTIONAL)

# A library then finds its own functions by itself, as it does on systems without this option: the tables of 872
# classes take long to fill otherwise, whenever a program starts.
check_linker_flag(CXX LINKER:-Bsymbolic-functions QEV_LINKER_BINDS_OWN_FUNCTIONS)

# qev_add_library(NAME ROOT <include root> SOURCES ... [PUBLIC ...] [PRIVATE ...])
#
# A shared library of exported classes. Its headers are included by their path
# below ROOT; NAMEExport.h holds its export macro NAME_EXPORT (in capitals).
function(qev_add_library name)
    cmake_parse_arguments(LIB "" "ROOT" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} SHARED ${LIB_SOURCES})
    generate_export_header(${name} EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/exports/${name}Export.h)
    target_include_directories(${name} PUBLIC ${LIB_ROOT} ${PROJECT_BINARY_DIR}/exports)
    target_link_libraries(${name} PUBLIC ${LIB_PUBLIC} PRIVATE ${LIB_PRIVATE} Project::Warnings)
    set_target_properties(${name} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    if(QEV_LINKER_BINDS_OWN_FUNCTIONS)
        target_link_options(${name} PRIVATE LINKER:-Bsymbolic-functions)
    endif()
endfunction()

# qev_add_test(NAME SOURCES ... [LIBRARIES ...])
#
# A GoogleTest program. Every test in it fails on a report that it did not expect.
function(qev_add_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE ${TEST_LIBRARIES} TestKit Project::Warnings)
    target_precompile_headers(${name} REUSE_FROM TestKitHeaders)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 300)
endfunction()

# qev_embed_text(TARGET SYMBOL <c++ name> FILE <text file>)
#
# Compiles a text file into TARGET. The generated header SYMBOL.h declares
# `std::string_view SYMBOL()`.
function(qev_embed_text target)
    cmake_parse_arguments(EMBED "" "SYMBOL;FILE" "" ${ARGN})
    set(directory ${PROJECT_BINARY_DIR}/generated/embedded)
    set(script ${PROJECT_SOURCE_DIR}/cmake/EmbedText.cmake)
    add_custom_command(
        OUTPUT ${directory}/${EMBED_SYMBOL}.cpp ${directory}/${EMBED_SYMBOL}.h
        COMMAND ${CMAKE_COMMAND} -DSYMBOL=${EMBED_SYMBOL} -DINPUT=${EMBED_FILE} -DDIRECTORY=${directory} -P ${script}
        DEPENDS ${EMBED_FILE} ${script}
        VERBATIM)
    target_sources(${target} PRIVATE ${directory}/${EMBED_SYMBOL}.cpp)
    target_include_directories(${target} PRIVATE ${directory})
endfunction()
