# SPDX-License-Identifier: MIT
# Installs the library and the plug-in headers from the build tree, and builds the example against them.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${PLACE})
foreach(component IN ITEMS platform plugin-api)
    run(${CMAKE_COMMAND} --install ${TREE} --prefix ${PLACE}/prefix --component ${component})
endforeach()
run(${CMAKE_COMMAND} -S ${EXAMPLE} -B ${PLACE}/build -G Ninja -DCMAKE_PREFIX_PATH=${PLACE}/prefix)
run(${CMAKE_COMMAND} --build ${PLACE}/build)
