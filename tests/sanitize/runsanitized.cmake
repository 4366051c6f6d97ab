# cmake -DSOURCE=<project> -DBUILD=<dir> -DSUPPRESSIONS=<file> [-DLAUNCHER=<ccache>] -P runsanitized.cmake
# Builds the whole project a second time with AddressSanitizer and UndefinedBehaviorSanitizer and
# runs its test suite there (all but the fuzz tests, which carry the sanitizers already, the
# fault-injection tests, whose preloaded shim the sanitizer runtime must not follow, the browser
# tests of the viewer script, which runs no code of ours that a sanitizer sees, and the install
# test, whose plain C host cannot load a library built with the sanitizer runtime).
set(flags "-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer")
set(launcher)
if(LAUNCHER)
  set(launcher -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} -DCMAKE_C_COMPILER_LAUNCHER=${LAUNCHER})
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BUILD} -G Ninja
                        -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVANTORA_SANITIZE_SUITE=OFF
                        "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_C_FLAGS=${flags}"
                        "-DCMAKE_EXE_LINKER_FLAGS=-fsanitize=address,undefined"
                        "-DCMAKE_SHARED_LINKER_FLAGS=-fsanitize=address,undefined"
                        "-DCMAKE_MODULE_LINKER_FLAGS=-fsanitize=address,undefined"
                        ${launcher}
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD} COMMAND_ERROR_IS_FATAL ANY)
# Some tests preload a module of their own (the dialog driver) in front of the sanitizer runtime.
set(ENV{ASAN_OPTIONS} "detect_leaks=1:abort_on_error=0:strict_string_checks=1:verify_asan_link_order=0")
set(ENV{UBSAN_OPTIONS} "print_stacktrace=1:halt_on_error=1")
set(ENV{LSAN_OPTIONS} "suppressions=${SUPPRESSIONS}:print_suppressions=0")
execute_process(COMMAND ${CMAKE_CTEST_COMMAND} --test-dir ${BUILD} --output-on-failure
                        -E "^fuzz_|^cli_crash_|^cli_disk_full$|^browser_|^install_tree$"
                RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "the sanitized test suite failed (exit ${result})")
endif()
