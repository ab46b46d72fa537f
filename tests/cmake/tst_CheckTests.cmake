# Usage: cmake -D SOURCE_DIR=<source tree> -D WORK_DIR=<directory> -P tst_CheckTests.cmake

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/Expect.cmake")

expect_success(CheckTests.cmake "${SOURCE_DIR}")
expect_failure(CheckTests.cmake "${WORK_DIR}/nowhere" "No public headers")

make_tree(complete
    sdk/UI/FxUIFoo.h "" tests/UI/tst_FxUIFoo.cpp ""
    sdk/NA/FxNAFoo.h "" tests/NA/tst_FxNAFoo.cpp "")
expect_success(CheckTests.cmake "${WORK_DIR}/complete")

make_tree(ui_missing sdk/UI/FxUIFoo.h "" sdk/UI/FxUIBar.h "" tests/UI/tst_FxUIBar.cpp "")
expect_failure(CheckTests.cmake "${WORK_DIR}/ui_missing" "sdk/UI/FxUIFoo.h wants tests/UI/tst_FxUIFoo.cpp")

make_tree(na_missing sdk/NA/FxNAFoo.h "")
expect_failure(CheckTests.cmake "${WORK_DIR}/na_missing" "sdk/NA/FxNAFoo.h wants tests/NA/tst_FxNAFoo.cpp")

make_tree(wrong_folder sdk/NA/FxNAFoo.h "" tests/UI/tst_FxNAFoo.cpp "")
expect_failure(CheckTests.cmake "${WORK_DIR}/wrong_folder" "FxNAFoo.h wants")

make_tree(longer_name sdk/UI/FxUIFoo.h "" tests/UI/tst_FxUIFooEvents.cpp "")
expect_failure(CheckTests.cmake "${WORK_DIR}/longer_name" "FxUIFoo.h wants")

make_tree(exempt sdk/UI/FxUIExport.h "")
expect_success(CheckTests.cmake "${WORK_DIR}/exempt")
