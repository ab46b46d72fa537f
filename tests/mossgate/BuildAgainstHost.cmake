# Usage: cmake -D SOURCE=<tree> -D BUILD=<folder> -D HOST=<prefix> -D TEST=<program> -D COMPILER=<c++>
#              -P BuildAgainstHost.cmake
# Builds the library against a host's own kernel library, runs TEST with the two, installs, and
# builds and runs a consumer of the installation.

function(run what)
    message(STATUS "${what}")
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what}: failed with ${result}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

set(common -G Ninja "-DCMAKE_CXX_COMPILER=${COMPILER}" -DCMAKE_BUILD_TYPE=)

run("Configuring the library" ${CMAKE_COMMAND} -S "${SOURCE}" -B "${BUILD}/library" ${common}
    "-DCOMMONUI_MOSSGATE_ROOT=${HOST}" -DCOMMONUI_BUILD_TESTS=OFF -DCOMMONUI_BUILD_EXAMPLES=OFF)
run("Building the library" ${CMAKE_COMMAND} --build "${BUILD}/library")

run("Looking at what the library loads" ldd "${BUILD}/library/libCommonUI.so.1")
if(NOT output MATCHES "libMOSSGATE\\.so\\.1 => ${HOST}/lib/")
    message(FATAL_ERROR "The library doesn't load the host's kernel library:\n${output}")
endif()
if(EXISTS "${BUILD}/library/mossgate")
    message(FATAL_ERROR "The stand-in was built, too")
endif()

run("Testing the two together" ${CMAKE_COMMAND} -E env
    "LD_LIBRARY_PATH=${BUILD}/library:${HOST}/lib" "${TEST}")

file(REMOVE_RECURSE "${BUILD}/installed" "${BUILD}/consumer")
run("Installing" ${CMAKE_COMMAND} --install "${BUILD}/library" --prefix "${BUILD}/installed")
run("Configuring a consumer" ${CMAKE_COMMAND} -S "${SOURCE}/tests/consumer" -B "${BUILD}/consumer"
    ${common} "-DCMAKE_PREFIX_PATH=${BUILD}/installed" -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run("Building the consumer" ${CMAKE_COMMAND} --build "${BUILD}/consumer")
# In a host's process the kernel library is loaded already; here it has to be found.
run("Running the consumer" ${CMAKE_COMMAND} -E env "LD_LIBRARY_PATH=${HOST}/lib"
    ${CMAKE_CTEST_COMMAND} --test-dir "${BUILD}/consumer" --output-on-failure --no-tests=error)
