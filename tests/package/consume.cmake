# Builds consumer/ against the library and runs it: with VARIANT `installed` against what
# `cmake --install` puts into a fresh prefix, with `subdirectory` together with the library.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${status}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

if(VARIANT STREQUAL "installed")
    # What an earlier run left behind must not make up for what is missing now.
    file(REMOVE_RECURSE ${WORK_DIR})
    set(prefix ${WORK_DIR}/prefix)
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
    set(library -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_FIND_ROOT_PATH=${prefix})
else()
    set(library -D ZARNEX_SOURCE_DIR=${SOURCE_DIR})
endif()

# Debug builds the library fastest, and -O0 takes every function from the shared library.
set(build ${WORK_DIR}/build)
if(NOT EXISTS ${build}/CMakeCache.txt)
    if(TOOLCHAIN)
        set(platform -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
    else()
        set(platform -D CMAKE_CXX_COMPILER=${COMPILER})
    endif()
    run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${CMAKE_CURRENT_LIST_DIR}/consumer -B ${build}
        -D CMAKE_BUILD_TYPE=Debug ${platform} ${library})
endif()
run(${CMAKE_COMMAND} --build ${build} --parallel 2)

set(expected "3 names, the last is needle: thread broke")
run(${EMULATOR} ${build}/consumer${SUFFIX})
string(STRIP "${output}" output)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "The consumer printed\n${output}\ninstead of\n${expected}")
endif()

# Built along with a host, the library brings neither tests nor install rules.
if(VARIANT STREQUAL "subdirectory")
    foreach(left_over CTestTestfile.cmake zarnexConfig.cmake tests)
        if(EXISTS ${build}/zarnex/${left_over})
            message(FATAL_ERROR "The library's own ${left_over} is part of the host's build")
        endif()
    endforeach()
endif()
