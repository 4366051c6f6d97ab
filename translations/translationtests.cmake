# Every translatable text has its English translation; the check itself rejects a gap.
get_target_property(vantora_lupdate Qt5::lupdate IMPORTED_LOCATION)
add_test(NAME translations_complete
  COMMAND ${CMAKE_COMMAND} -DLUPDATE=${vantora_lupdate} -DTS=${VANTORA_TS_FILE}
          -DWORK=${CMAKE_CURRENT_BINARY_DIR}/translations_check -DSOURCE_DIR=${PROJECT_SOURCE_DIR}
          "-DFOLDERS=${VANTORA_TRANSLATED_FOLDERS}"
          -P ${PROJECT_SOURCE_DIR}/translations/checktranslations.cmake)
# The check itself must name a text that the .ts file lacks.
add_test(NAME translations_complete_rejects_missing
  COMMAND ${CMAKE_COMMAND}
          "-DRUN=${CMAKE_COMMAND};-DLUPDATE=${vantora_lupdate};-DTS=none;-DWORK=${CMAKE_CURRENT_BINARY_DIR}/translations_check_missing;-DSOURCE_DIR=${PROJECT_SOURCE_DIR};-DFOLDERS=dialogs;-P;${PROJECT_SOURCE_DIR}/translations/checktranslations.cmake"
          "-DMATCH=texts without an English translation:.*Sichtfeld zu Beginn"
          -P ${PROJECT_SOURCE_DIR}/tests/common/expectfailure.cmake)
set_tests_properties(translations_complete translations_complete_rejects_missing
  PROPERTIES LABELS translations)
