# SPDX-License-Identifier: GPL-3.0-or-later
# Pipes CASES through PROBE. With EXPECTED, the output must be that file, byte for byte; with ERROR,
# the probe must end with status 1 and a message that matches the pattern.
execute_process(COMMAND ${PROBE} INPUT_FILE ${CASES}
    OUTPUT_VARIABLE output ERROR_VARIABLE message RESULT_VARIABLE status)
if(ERROR)
    if(NOT status EQUAL 1 OR NOT message MATCHES "${ERROR}")
        message(FATAL_ERROR "status ${status}, message: ${message}")
    endif()
else()
    file(READ ${EXPECTED} expected)
    if(NOT status EQUAL 0 OR NOT output STREQUAL expected)
        message(FATAL_ERROR "status ${status}, message: ${message}\n${output}")
    endif()
endif()
