# The seam: UI/Impl and NA/Impl name no Qt widget and no Qt network class. The compiler refuses
# what it can see (commonui_hide_widgets); the include lines are checked as well, at each build.

add_custom_command(
    OUTPUT "${PROJECT_BINARY_DIR}/seam.stamp"
    COMMAND ${CMAKE_COMMAND} -D "ROOT=${PROJECT_SOURCE_DIR}" -P "${PROJECT_SOURCE_DIR}/cmake/CheckSeam.cmake"
    COMMAND ${CMAKE_COMMAND} -E touch "${PROJECT_BINARY_DIR}/seam.stamp"
    DEPENDS "${PROJECT_SOURCE_DIR}/cmake/CheckSeam.cmake" $<TARGET_OBJECTS:CommonUIState>
    COMMENT "Checking the seam between the state half and the Qt half"
    VERBATIM)
add_custom_target(commonui_seam DEPENDS "${PROJECT_BINARY_DIR}/seam.stamp")
add_dependencies(CommonUI commonui_seam)
