# Runs -DPROGRAM=... and compares what it prints with -DEXPECTED=..., a file.
execute_process(COMMAND "${PROGRAM}" OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "${PROGRAM} prints\n${printed}instead of\n${expected}")
endif()
