# Usage: cmake -D ROOT=<source tree> -P CheckTests.cmake
# Fails when a public header has no test program of its name: sdk/UI/FxUILabel.h wants
# tests/UI/tst_FxUILabel.cpp.

cmake_minimum_required(VERSION 3.25)

set(exempt
    UI/FxUIExport # one macro; what it marks is seen from outside by every linked test
)

file(GLOB headers RELATIVE "${ROOT}/sdk" "${ROOT}/sdk/UI/*.h" "${ROOT}/sdk/NA/*.h")
if(NOT headers)
    message(FATAL_ERROR "No public headers below '${ROOT}'")
endif()
set(missing "")
foreach(header IN LISTS headers)
    get_filename_component(folder "${header}" DIRECTORY)
    get_filename_component(stem "${header}" NAME_WE)
    if(NOT "${folder}/${stem}" IN_LIST exempt
            AND NOT EXISTS "${ROOT}/tests/${folder}/tst_${stem}.cpp")
        list(APPEND missing "sdk/${header} wants tests/${folder}/tst_${stem}.cpp")
    endif()
endforeach()
if(missing)
    list(JOIN missing "\n  " text)
    message(FATAL_ERROR "Public headers without a test of their name:\n  ${text}")
endif()
