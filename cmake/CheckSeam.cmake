# Usage: cmake -D ROOT=<source tree> -P CheckSeam.cmake
# Fails when a file of the state half includes a Qt module other than Core and Gui, a Qt header
# without its module, or a header of the Qt half.

cmake_minimum_required(VERSION 3.25)

file(GLOB files "${ROOT}/UI/Impl/*.h" "${ROOT}/UI/Impl/*.cpp"
    "${ROOT}/NA/Impl/*.h" "${ROOT}/NA/Impl/*.cpp")
if(NOT files)
    message(FATAL_ERROR "No state half below '${ROOT}'")
endif()
set(faults "")
foreach(file IN LISTS files)
    file(STRINGS "${file}" includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
        if(line MATCHES "[<\"]Q" AND NOT line MATCHES "[<\"]Qt(Core|Gui)/")
            list(APPEND faults "${file}: ${line}")
        elseif(line MATCHES "[</\"]qt/")
            list(APPEND faults "${file}: ${line}")
        endif()
    endforeach()
endforeach()
if(faults)
    list(JOIN faults "\n  " text)
    message(FATAL_ERROR "The state half reaches across the seam:\n  ${text}")
endif()
