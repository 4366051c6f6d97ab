# Fails unless the shared library's only defined dynamic symbol is export_applet.
# Usage: cmake -DNM=<nm> -DLIBRARY=<path> -P exportedsymbols.cmake
if(NOT NM OR NOT LIBRARY)
  message(FATAL_ERROR "exportedsymbols: NM and LIBRARY must be given")
endif()
if(NOT EXISTS "${LIBRARY}")
  message(FATAL_ERROR "exportedsymbols: ${LIBRARY} does not exist")
endif()

execute_process(
  COMMAND "${NM}" -D --defined-only "${LIBRARY}"
  OUTPUT_VARIABLE listing
  ERROR_VARIABLE errors
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "exportedsymbols: ${NM} failed (${status}): ${errors}")
endif()

# Each line is "<value> <type> <name>"; versioned names carry "@VERSION".
string(REPLACE "\n" ";" lines "${listing}")
set(names "")
foreach(line IN LISTS lines)
  if(line MATCHES "^[0-9a-fA-F]* *[A-Za-z] +([^ ]+)$")
    list(APPEND names "${CMAKE_MATCH_1}")
  elseif(NOT line STREQUAL "")
    message(FATAL_ERROR "exportedsymbols: unexpected nm line: '${line}'")
  endif()
endforeach()

if(NOT names STREQUAL "export_applet")
  message(FATAL_ERROR "exportedsymbols: expected only export_applet, found: ${names}")
endif()
message(STATUS "exportedsymbols: only export_applet is exported")
