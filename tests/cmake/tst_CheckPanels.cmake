# Usage: cmake -D SOURCE_DIR=<source tree> -D WORK_DIR=<directory> -P tst_CheckPanels.cmake

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/Expect.cmake")

expect_success(CheckPanels.cmake "${SOURCE_DIR}")

set(panel "examples/gallery/plugins/labels/LabelsPanel.cpp")
make_tree(complete
    sdk/UI/FxUILabel.h "" sdk/UI/FxUIObject.h ""
    ${panel} "#include \"UI/FxUILabel.h\"")
expect_success(CheckPanels.cmake "${WORK_DIR}/complete")

make_tree(missing
    sdk/UI/FxUILabel.h "" sdk/NA/FxNAWebSocket.h ""
    ${panel} "#include \"UI/FxUILabel.h\"")
expect_failure(CheckPanels.cmake "${WORK_DIR}/missing" "no panel.*sdk/NA/FxNAWebSocket.h")

make_tree(commented
    sdk/UI/FxUILabel.h ""
    ${panel} "// #include \"UI/FxUILabel.h\"")
expect_failure(CheckPanels.cmake "${WORK_DIR}/commented" "no panel.*sdk/UI/FxUILabel.h")

expect_failure(CheckPanels.cmake "${WORK_DIR}/nowhere" "No public headers")
