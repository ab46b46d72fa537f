# Usage: cmake -D ROOT=<source tree> -P CheckPanels.cmake
# Fails when no panel of the gallery includes a public header: what the library has, the gallery
# shows.

cmake_minimum_required(VERSION 3.25)

set(exempt
    # The bases of the others, nothing to show of their own.
    UI/FxUIBaseView.h
    UI/FxUIExport.h
    UI/FxUIObject.h
    UI/FxUIObjectData.h
    # For hosts that emit in the name of an object.
    UI/FxUIEmitScope.h
    # The host's own: it brings the dark look, and may veto a reject.
    UI/FxUIStyle.h
    UI/IFxUIDialogFrontend.h
    # Enumerations of the WebSocket.
    NA/FxNAWebSocketProtocol.h
)

file(GLOB headers RELATIVE "${ROOT}/sdk" "${ROOT}/sdk/UI/*.h" "${ROOT}/sdk/NA/*.h")
if(NOT headers)
    message(FATAL_ERROR "No public headers below '${ROOT}'")
endif()
file(GLOB_RECURSE panels
    "${ROOT}/examples/gallery/interface/*.h" "${ROOT}/examples/gallery/interface/*.cpp"
    "${ROOT}/examples/gallery/plugins/*.h" "${ROOT}/examples/gallery/plugins/*.cpp")
set(includes "")
foreach(panel IN LISTS panels)
    file(STRINGS "${panel}" lines REGEX "^#include \"")
    list(APPEND includes ${lines})
endforeach()
set(missing "")
foreach(header IN LISTS headers)
    if(NOT header IN_LIST exempt AND NOT "#include \"${header}\"" IN_LIST includes)
        list(APPEND missing "sdk/${header}")
    endif()
endforeach()
if(missing)
    list(JOIN missing "\n  " text)
    message(FATAL_ERROR "Public headers that no panel of the gallery shows:\n  ${text}")
endif()
