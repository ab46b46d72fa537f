# What every target of the tree has in common.

if(COMMONUI_USE_CCACHE)
    find_program(COMMONUI_CCACHE ccache)
    if(COMMONUI_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${COMMONUI_CCACHE})
    endif()
endif()

# commonui_compile_options(<target>): language level, warnings, hidden symbols.
function(commonui_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wcast-align -Wundef)
    if(COMMONUI_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_STRICT_ITERATORS
        QT_DEPRECATED_WARNINGS)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON
        AUTOMOC ON)
endfunction()

# commonui_configure(<target>): a part of the library itself.
function(commonui_configure target)
    commonui_compile_options(${target})
    # A unique symbol, as the standard library's templates bring in, would keep the library in the
    # process when a host closes it.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/sdk>
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/CommonUI>)
endfunction()

# commonui_hide_widgets(<target>): compile with Qt Core and Qt Gui alone in reach. Distributions
# keep all Qt modules below one include directory, so linking to Qt5::Gui would still find
# <QtWidgets/...>; a directory with links to the two permitted modules does not.
function(commonui_hide_widgets target)
    get_target_property(core_includes Qt5::Core INTERFACE_INCLUDE_DIRECTORIES)
    foreach(directory IN LISTS core_includes)
        if(directory MATCHES "/QtCore/?$")
            get_filename_component(qt_include "${directory}" DIRECTORY)
        endif()
    endforeach()
    set(reach "${PROJECT_BINARY_DIR}/qt-core-and-gui")
    file(MAKE_DIRECTORY "${reach}")
    foreach(module IN ITEMS QtCore QtGui)
        file(CREATE_LINK "${qt_include}/${module}" "${reach}/${module}" SYMBOLIC)
    endforeach()
    target_include_directories(${target} SYSTEM PRIVATE
        "${reach}" "${reach}/QtCore" "${reach}/QtGui")
    target_compile_definitions(${target} PRIVATE QT_CORE_LIB QT_GUI_LIB)
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
endfunction()

# commonui_public_headers(<header>...): headers below sdk/, installed and compiled alone.
function(commonui_public_headers)
    target_sources(CommonUI PUBLIC FILE_SET sdk TYPE HEADERS
        BASE_DIRS "${PROJECT_SOURCE_DIR}/sdk" FILES ${ARGN})
endfunction()

# commonui_implementation_headers(<header>...): headers below the root, installed and compiled alone.
function(commonui_implementation_headers)
    target_sources(CommonUI PUBLIC FILE_SET implementation TYPE HEADERS
        BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${ARGN})
endfunction()
