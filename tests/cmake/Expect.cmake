# What the tests of the check scripts share. SOURCE_DIR is the source tree, WORK_DIR an empty
# directory of the test's own.

# expect_success(<script> <tree>)
function(expect_success script tree)
    execute_process(COMMAND ${CMAKE_COMMAND} -D "ROOT=${tree}" -P "${SOURCE_DIR}/cmake/${script}"
        RESULT_VARIABLE result ERROR_VARIABLE text)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "${script} refuses ${tree}:\n${text}")
    endif()
endfunction()

# expect_failure(<script> <tree> <regular expression of the message>)
function(expect_failure script tree pattern)
    execute_process(COMMAND ${CMAKE_COMMAND} -D "ROOT=${tree}" -P "${SOURCE_DIR}/cmake/${script}"
        RESULT_VARIABLE result ERROR_VARIABLE text)
    if(result EQUAL 0)
        message(SEND_ERROR "${script} passes ${tree}, expected: ${pattern}")
    elseif(NOT text MATCHES "${pattern}")
        message(SEND_ERROR "${script} on ${tree} says:\n${text}\nexpected: ${pattern}")
    endif()
endfunction()

# make_tree(<name> <file> <text>...): a source tree of the given files below WORK_DIR/<name>.
function(make_tree name)
    set(files "${ARGN}")
    file(REMOVE_RECURSE "${WORK_DIR}/${name}")
    while(files)
        list(POP_FRONT files file text)
        file(WRITE "${WORK_DIR}/${name}/${file}" "${text}\n")
    endwhile()
endfunction()
