# cmake -DMODE=build -DSOURCE=<tests/fuzz> -DBUILD=<dir> -DCXX=<clang++> -P runfuzzer.cmake
# cmake -DMODE=run -DFUZZER=<exe> -DCORPUS=<work dir> -DSEEDS=<seed dirs> -DSECONDS=<n> -P runfuzzer.cmake
# Builds the fuzz project, or runs one fuzzer for a bounded time over a fresh working corpus (the
# seed folders are only read: libFuzzer writes new inputs into the first folder alone).
if(MODE STREQUAL "build")
  if(NOT CXX)
    message(FATAL_ERROR "clang++ not found: run tools/bootstrap.sh as root")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BUILD} -G Ninja
                          -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_BUILD_TYPE=RelWithDebInfo
                  COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD} COMMAND_ERROR_IS_FATAL ANY)
elseif(MODE STREQUAL "run")
  file(REMOVE_RECURSE ${CORPUS})
  file(MAKE_DIRECTORY ${CORPUS})
  execute_process(COMMAND ${FUZZER} -max_total_time=${SECONDS} -timeout=10 -rss_limit_mb=2048
                          -print_final_stats=1 -artifact_prefix=${CORPUS}_ ${CORPUS} ${SEEDS}
                  RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${FUZZER} found a failure (exit ${result}); the input is saved as ${CORPUS}_crash-* (or leak-*, timeout-*)")
  endif()
else()
  message(FATAL_ERROR "MODE must be build or run")
endif()
