# Where the modules go, next to the host's executable and in an installation.
set(GALLERY_OUTPUT_DIR "${CMAKE_BINARY_DIR}/examples/gallery")
set(GALLERY_PLUGIN_OUTPUT_DIR "${GALLERY_OUTPUT_DIR}/plugins")
set(GALLERY_PLUGIN_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/CommonUI/gallery")

# commonui_gallery_options(<target>): the tree's own flags where the gallery is part of it.
function(commonui_gallery_options target)
    if(COMMAND commonui_compile_options)
        commonui_compile_options(${target})
    else()
        target_compile_features(${target} PUBLIC cxx_std_17)
        target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS)
        set_target_properties(${target} PROPERTIES
            CXX_VISIBILITY_PRESET hidden
            VISIBILITY_INLINES_HIDDEN ON
            POSITION_INDEPENDENT_CODE ON
            AUTOMOC ON)
    endif()
endfunction()

# commonui_gallery_plugin(<name> SOURCES <source>... [LIBRARIES <library>...]): a plug-in of the
# gallery, target gallery_<name>, module <name>.so in the folder in which the host looks.
function(commonui_gallery_plugin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
    add_library(gallery_${name} MODULE ${arg_SOURCES})
    commonui_gallery_options(gallery_${name})
    target_link_libraries(gallery_${name} PRIVATE gallery_panel ${arg_LIBRARIES})
    target_link_options(gallery_${name} PRIVATE LINKER:--no-undefined)
    set_target_properties(gallery_${name} PROPERTIES
        PREFIX ""
        OUTPUT_NAME ${name}
        LIBRARY_OUTPUT_DIRECTORY "${GALLERY_PLUGIN_OUTPUT_DIR}")
    add_dependencies(gallery_plugins gallery_${name})
    install(TARGETS gallery_${name} LIBRARY DESTINATION "${GALLERY_PLUGIN_INSTALL_DIR}")
endfunction()

# All plug-ins, for tests that start the host.
add_custom_target(gallery_plugins)
