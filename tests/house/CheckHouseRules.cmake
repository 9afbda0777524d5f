# Checks rules of the house that no compiler knows. Called with -DROOT=<source folder>.

function(forbid pattern hint)
    foreach(file IN LISTS ARGN)
        file(STRINGS ${ROOT}/${file} lines REGEX "${pattern}")
        if(lines)
            list(GET lines 0 first)
            message(SEND_ERROR "${file}: ${first}\n  ${hint}")
        endif()
    endforeach()
endfunction()

file(GLOB_RECURSE sources RELATIVE ${ROOT}
    ${ROOT}/host/*.h ${ROOT}/host/*.cpp ${ROOT}/library/*.h ${ROOT}/library/*.cpp
    ${ROOT}/application/*.h ${ROOT}/application/*.cpp)
list(LENGTH sources count)
if(count LESS 100)
    message(FATAL_ERROR "Found only ${count} sources below ${ROOT}.")
endif()

set(without_qt ${sources})
list(FILTER without_qt EXCLUDE REGEX "^(host/Ui/Qt|application/desktop)/")
forbid("^#include <Q[A-Za-z]+>" "Qt belongs into host/Ui/Qt and application/desktop." ${without_qt})

# may_include(FOLDER ALLOWED...): of our own headers, sources in FOLDER include ALLOWED alone: folders, or headers
# without their ending.
function(may_include folder)
    list(JOIN ARGN "|" allowed)
    set(files ${sources})
    list(FILTER files INCLUDE REGEX "^${folder}/")
    if(NOT files)
        message(SEND_ERROR "There are no sources in ${folder}.")
    endif()
    foreach(file IN LISTS files)
        file(STRINGS ${ROOT}/${file} lines
            REGEX "^#include \"(Classification|Core|Edit|Icons|Object|Format|FoundationClasses|Ui|UI)/")
        list(FILTER lines EXCLUDE REGEX "^#include \"(${allowed})[/.]")
        if(lines)
            list(GET lines 0 first)
            list(JOIN ARGN ", " allowed_text)
            message(SEND_ERROR "${file}: ${first}\n  ${folder} may include ${allowed_text} alone.")
        endif()
    endforeach()
endfunction()

may_include(host/Core Core)
may_include(host/Icons Core Icons)
may_include(host/Object Core Object)
may_include(host/Classification Classification Core Format/Ifc/Model FoundationClasses)
may_include(host/Edit Core Edit Object Ui/PropertyGrid Ui/Window)
may_include(host/Format/Ifc/Schema Core Format/Ifc/Schema)
may_include(host/Format/Ifc/Step Core Format/Ifc/Step)
may_include(host/FoundationClasses Core Object Format/Ifc/Step FoundationClasses)
may_include(host/Format/Ifc/Model Core Format/Ifc FoundationClasses)
may_include(host/Ui/PropertyGrid Core Ui/PropertyGrid Ui/Window)
may_include(host/Ui/List Core Ui/List Ui/Window)
may_include(host/Ui/Window Core Ui/PropertyGrid Ui/Window Ui/WindowBackend)
may_include(host/Ui/Headless Core Ui)
may_include(host/Ui Core Icons Ui)
may_include(library Classification Core Edit Icons Object Format/Ifc FoundationClasses Ui/PropertyGrid Ui/Window UI)

set(headers ${sources})
list(FILTER headers INCLUDE REGEX "\\.h$")
foreach(header IN LISTS headers)
    file(STRINGS ${ROOT}/${header} guard REGEX "^#pragma once" LIMIT_COUNT 1)
    if(NOT guard)
        message(SEND_ERROR "${header}: #pragma once is missing.")
    endif()
endforeach()

set(portable ${sources})
list(FILTER portable EXCLUDE REGEX "^host/Core/Platform/")
forbid("^#include <(unistd|windows|sys/[a-z]+|fcntl|io)\\.h>" "Calls to an operating system stand in host/Core/Platform." ${portable})

# What follows with ".c_str()" goes to a function of C that opens the file.
forbid("\\.string\\(\\)([^.]|\\.[^c]|\\.c[^_]|$)" "Paths in texts and names are UTF-8: use str::utf8FromPath." ${sources})
