# Fails when a text that passes through the translation lookup has no English translation: the
# sources are scanned into a copy of the .ts file, and every message left unfinished is named.
# Usage: cmake -DLUPDATE=... -DTS=vantora_en.ts -DWORK=dir -DSOURCE_DIR=root "-DFOLDERS=a;b" -P ...
foreach(var LUPDATE TS WORK SOURCE_DIR FOLDERS)
  if(NOT ${var})
    message(FATAL_ERROR "checktranslations: ${var} must be given")
  endif()
endforeach()
file(MAKE_DIRECTORY ${WORK})
set(copy ${WORK}/scanned_en.ts)
# TS "none" starts from no translations at all (the check's own test).
if(TS STREQUAL "none")
  file(REMOVE ${copy})
else()
  configure_file(${TS} ${copy} COPYONLY)
endif()
execute_process(
  COMMAND ${LUPDATE} -silent -no-obsolete -locations none ${FOLDERS} -ts ${copy}
  WORKING_DIRECTORY ${SOURCE_DIR}
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "checktranslations: lupdate failed: ${status}")
endif()
file(READ ${copy} ts)
string(REGEX MATCHALL "<source>[^<]*</source>[ \t\r\n]*<translation( type=\"unfinished\")?>[^<]*</translation>" messages "${ts}")
set(missing "")
foreach(message IN LISTS messages)
  if(message MATCHES "type=\"unfinished\"" OR message MATCHES "<translation></translation>")
    string(REGEX REPLACE "^<source>([^<]*)</source>.*" "\\1" source "${message}")
    string(APPEND missing "\n  ${source}")
  endif()
endforeach()
if(missing)
  message(FATAL_ERROR "texts without an English translation:${missing}")
endif()
list(LENGTH messages count)
message(STATUS "${count} texts, all translated")
