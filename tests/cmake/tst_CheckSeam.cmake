# Usage: cmake -D SOURCE_DIR=<source tree> -D WORK_DIR=<directory> -P tst_CheckSeam.cmake

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/Expect.cmake")

expect_success(CheckSeam.cmake "${SOURCE_DIR}")
expect_failure(CheckSeam.cmake "${WORK_DIR}/nowhere" "No state half")

# A tree with one include line in a header of the state half, and again in a source.
function(check_line outcome name line)
    foreach(file IN ITEMS UI/Impl/FxUIFooImpl.h UI/Impl/FxUIFooImpl.cpp NA/Impl/FxNAFooImpl.cpp)
        make_tree(${name} UI/Impl/FxUIBarImpl.cpp "#include <QtCore/QString>" ${file} "${line}")
        if(outcome STREQUAL "good")
            expect_success(CheckSeam.cmake "${WORK_DIR}/${name}")
        else()
            expect_failure(CheckSeam.cmake "${WORK_DIR}/${name}"
                "reaches across the seam.*${file}: *#")
        endif()
    endforeach()
endfunction()

check_line(good core "#include <QtCore/QString>")
check_line(good gui "#include <QtGui/QIcon>")
check_line(good own "#include \"UI/FxUIBaseView.h\"")
check_line(good standard "#include <memory>")
check_line(good comment "// #include <QtWidgets/QLabel>")
check_line(bad widget "#include <QtWidgets/QLabel>")
check_line(bad indented "#  include <QtWidgets/QLabel>")
check_line(bad network "#include <QtNetwork/QNetworkReply>")
check_line(bad websockets "#include <QtWebSockets/QWebSocket>")
check_line(bad no_module "#include <QLabel>")
check_line(bad no_module_of_core "#include <QString>")
check_line(bad quotes "#include \"QtWidgets/QLabel\"")
check_line(bad qt_half "#include \"UI/Impl/qt/FrontendCast.h\"")
check_line(bad qt_half_beside "#include \"qt/FrontendCast.h\"")
check_line(bad qt_half_up "#include \"../Impl/qt/FrontendCast.h\"")
check_line(bad frontend "#include \"UI/Impl/qt/frontend/FxUIPushButtonFrontend.h\"")

# The Qt half itself may include what it likes.
make_tree(qt_half_includes UI/Impl/FxUIFooImpl.cpp "#include <QtCore/QString>"
    UI/Impl/qt/FxUIFooImpl_qt.cpp "#include <QtWidgets/QLabel>")
expect_success(CheckSeam.cmake "${WORK_DIR}/qt_half_includes")

# Every fault is named, not the first alone.
make_tree(two_faults UI/Impl/FxUIFooImpl.cpp "#include <QtWidgets/QLabel>"
    UI/Impl/FxUIBarImpl.cpp "#include <QtWidgets/QMenu>")
expect_failure(CheckSeam.cmake "${WORK_DIR}/two_faults" "QMenu.*QLabel|QLabel.*QMenu")
