# Runs a command that must fail for the stated reason: a non-zero exit status and output matching
# a regular expression. A plain WILL_FAIL would also pass when the command fails for another one.
# Usage: cmake "-DRUN=program;argument;..." "-DMATCH=regex" -P expectfailure.cmake
if(NOT RUN OR NOT MATCH)
  message(FATAL_ERROR "expectfailure: RUN and MATCH must be given")
endif()
execute_process(
  COMMAND ${RUN}
  OUTPUT_VARIABLE output
  ERROR_VARIABLE output
  RESULT_VARIABLE status)
message(STATUS "exit status ${status}\n${output}")
if(status EQUAL 0)
  message(FATAL_ERROR "expectfailure: the command succeeded")
endif()
if(NOT status MATCHES "^[0-9]+$")
  message(FATAL_ERROR "expectfailure: the command did not run to an exit status: ${status}")
endif()
if(NOT output MATCHES "${MATCH}")
  message(FATAL_ERROR "expectfailure: the output does not match '${MATCH}'")
endif()
