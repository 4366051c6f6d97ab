# Installs the build into a fresh prefix, then uses only that tree: the reference host, moved to
# another place, exports the sample; a consumer project finds the package, builds a C host and
# runs an export with it.
# -DBUILD=the build tree -DWORK=a scratch folder -DCONSUMER=the consumer's sources
# -DGENERATOR=the generator to build the consumer with
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "failed (${status}): ${ARGN}\n${out}\n${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
set(prefix ${WORK}/prefix)
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
foreach(installed
    bin/vantora-export include/vantora/host.h include/vantora/version.h
    share/vantora-export/VantoraViewer/vantoViewer.js share/doc/vantora-export/LICENSE
    share/doc/vantora-export/NOTICE share/doc/vantora-export/vantora-export.md)
  if(NOT EXISTS ${prefix}/${installed})
    message(FATAL_ERROR "not installed: ${installed}")
  endif()
endforeach()

# Relocatable: the tree works from wherever it is moved to, without the build tree's paths.
file(RENAME ${prefix} ${WORK}/moved)
set(prefix ${WORK}/moved)
run(${prefix}/bin/vantora-export --version)
if(NOT out MATCHES "library [0-9.]+: ${prefix}/lib[^\n]*/libvantora_export.so\nviewer folder: ${prefix}/share/vantora-export/")
  message(FATAL_ERROR "the installed tool does not use the installed tree:\n${out}")
endif()
run(${prefix}/bin/vantora-export --quiet -o ${WORK}/tool/sample.html)
if(NOT EXISTS ${WORK}/tool/sample.html OR NOT EXISTS ${WORK}/tool/vantoViewer.js)
  message(FATAL_ERROR "the installed tool wrote no page")
endif()

run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK}/consumer -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
run(${CMAKE_COMMAND} --build ${WORK}/consumer)
file(MAKE_DIRECTORY ${WORK}/settings ${WORK}/host)
run(${WORK}/consumer/consumer ${WORK}/host/panorama.html ${WORK}/settings/)
if(NOT out MATCHES "page: ${WORK}/host/panorama.html")
  message(FATAL_ERROR "the consumer did not export:\n${out}")
endif()
foreach(written panorama.html panorama.json vantoViewer.js panorama_tiles/0/0_0.jpg)
  if(NOT EXISTS ${WORK}/host/${written})
    message(FATAL_ERROR "the consumer's export lacks ${written}")
  endif()
endforeach()
message(STATUS "installed, moved, tool and consumer ran: ${out}")
