# SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
# SPDX-License-Identifier: MIT

# Run by CTest with cmake -P: installs BUILD_DIR below WORK_DIR, builds CONSUMER_DIR against what was installed,
# and runs it.

set(first_prefix ${WORK_DIR}/first)
set(prefix ${WORK_DIR}/prefix)
set(consumer_build ${WORK_DIR}/consumer)

function(run_step)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " command)
        message(FATAL_ERROR "${command}\nfailed (${result}):\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
run_step(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${first_prefix})
# An installed tree may be moved; nothing in it knows where it was.
file(RENAME ${first_prefix} ${prefix})

run_step(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${consumer_build} -G ${GENERATOR}
    -D CMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}
    -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
    -D CMAKE_CXX_FLAGS=${CXX_FLAGS}
    -D CMAKE_BUILD_TYPE=${BUILD_TYPE}
    -D CMAKE_PREFIX_PATH=${prefix}
    -D Qt6_DIR=${QT_DIR})
file(STRINGS ${consumer_build}/CMakeCache.txt found REGEX "^ZeltoViewerComponents_DIR:")
string(FIND "${found}" "=${prefix}/" position)
if(position EQUAL -1)
    message(FATAL_ERROR "The consumer did not find the installed package: ${found}")
endif()
run_step(${CMAKE_COMMAND} --build ${consumer_build})

execute_process(COMMAND ${consumer_build}/consumer OUTPUT_VARIABLE output RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT output STREQUAL "message: it works\n")
    message(FATAL_ERROR "The consumer ended with ${result} and said: ${output}")
endif()
file(REMOVE_RECURSE ${WORK_DIR})
