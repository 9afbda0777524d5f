# Checks rules of the house that no compiler knows. Called with -DROOT=<source folder>.

set(failures 0)

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

set(host ${sources})
list(FILTER host INCLUDE REGEX "^host/")
forbid("^#include \"UI/FoundationClasses/" "The host does not know the library above it." ${host})

set(core ${sources})
list(FILTER core INCLUDE REGEX "^host/Core/")
forbid("^#include \"(Object|Format|FoundationClasses|Ui)/" "Core includes nothing but Core." ${core})

set(ui ${sources})
list(FILTER ui INCLUDE REGEX "^host/Ui/")
forbid("^#include \"(Object|Format|FoundationClasses)/" "The toolkit includes Core alone." ${ui})

set(step ${sources})
list(FILTER step INCLUDE REGEX "^host/Format/Ifc/Step/")
forbid("^#include \"(FoundationClasses|Format/Ifc/Schema|Format/Ifc/Model|Ui)/" "STEP files know nothing of IFC." ${step})

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
