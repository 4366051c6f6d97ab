# vantora_add_test(name SOURCES ... [LABELS ...] [LIBS ...]): one QtTest executable, one ctest.
function(vantora_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LABELS;LIBS")
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE vantora_core vantora_testcommon Qt5::Test ${arg_LIBS})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    LABELS "${arg_LABELS}" ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
