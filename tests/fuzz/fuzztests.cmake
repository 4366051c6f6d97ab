# The fuzz tests of the main project: build the clang project beside the main build, then run
# each target for a bounded time (label fuzz). VANTORA_FUZZ_SECONDS sets the time per target.
find_program(VANTORA_CLANGXX NAMES clang++ clang++-14)
set(VANTORA_FUZZ_SECONDS 15 CACHE STRING "Seconds each fuzz target runs in the test suite")
set(fuzz_source ${CMAKE_CURRENT_LIST_DIR})
set(fuzz_build ${CMAKE_BINARY_DIR}/fuzz)

add_test(NAME fuzz_build
  COMMAND ${CMAKE_COMMAND} -DMODE=build -DSOURCE=${fuzz_source} -DBUILD=${fuzz_build}
          -DCXX=${VANTORA_CLANGXX} -P ${fuzz_source}/runfuzzer.cmake)
set_tests_properties(fuzz_build PROPERTIES LABELS fuzz FIXTURES_SETUP fuzzers)

set(seeds_settingsblock ${PROJECT_SOURCE_DIR}/tests/data/blocks)
set(seeds_inifile ${PROJECT_SOURCE_DIR}/tests/data/ini)
set(seeds_presets ${PROJECT_SOURCE_DIR}/tests/data/ini)
set(seeds_galleryentry ${PROJECT_SOURCE_DIR}/tests/data/gallery)
set(seeds_hotspotfile ${PROJECT_SOURCE_DIR}/tests/data/hotspots)
foreach(target settingsblock inifile presets galleryentry hotspotfile)
  set(seeds ${seeds_${target}})
  # Qt 5.15's JSON reader leaks the object it drops for a key given twice; the gallery reader
  # holds only Qt values of its own, so leak checks there would report Qt alone. (The hotspot
  # reader keeps its leak checks, with that one leak of Qt's suppressed: lsan.supp.)
  set(leaks 1)
  set(seconds ${VANTORA_FUZZ_SECONDS})
  if(target STREQUAL "galleryentry")
    set(leaks 0)
    # A million inputs take it about 25 s; a share of that keeps the suite short.
    if(seconds GREATER 15)
      set(seconds 15)
    endif()
  endif()
  add_test(NAME fuzz_${target}
    COMMAND ${CMAKE_COMMAND} -DMODE=run -DFUZZER=${fuzz_build}/fuzz_${target}
            -DCORPUS=${fuzz_build}/corpus_${target} -DSEEDS=${seeds}
            -DSECONDS=${seconds} -P ${fuzz_source}/runfuzzer.cmake)
  set_tests_properties(fuzz_${target} PROPERTIES LABELS fuzz FIXTURES_REQUIRED fuzzers
    ENVIRONMENT "UBSAN_OPTIONS=print_stacktrace=1;ASAN_OPTIONS=detect_leaks=${leaks};LSAN_OPTIONS=suppressions=${fuzz_source}/lsan.supp")
endforeach()
