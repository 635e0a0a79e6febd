# Builds consumer/ against the library and runs it. VARIANT says where the library comes from:
#   subdirectory  from its sources, built together with the host
#   installed     from what `cmake --install` puts into a fresh prefix
#   zip           from what CPack packs, unpacked
#   prefix        from the prefix PREFIX
#   system        from where the system's packages are
# Where PKG_CONFIG names the program, a host of a library that is not built along is also compiled
# with the flags that it tells.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${status}:\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# run_host(PROGRAM): it must say what main.cpp lets it.
function(run_host program)
    set(expected "3 names, the last is needle: thread broke")
    run(${EMULATOR} ${program})
    string(STRIP "${output}" output)
    if(NOT output STREQUAL expected)
        message(FATAL_ERROR "The consumer printed\n${output}\ninstead of\n${expected}")
    endif()
endfunction()

if(NOT VARIANT STREQUAL "subdirectory")
    # What an earlier run left behind must not make up for what is missing now.
    file(REMOVE_RECURSE ${WORK_DIR})
endif()
if(VARIANT STREQUAL "installed")
    set(PREFIX ${WORK_DIR}/prefix)
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
elseif(VARIANT STREQUAL "zip")
    run(${CPACK} --config ${BUILD_DIR}/CPackConfig.cmake -G ZIP -B ${WORK_DIR})
    file(GLOB archive ${WORK_DIR}/*.zip)
    file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${WORK_DIR})
    cmake_path(REMOVE_EXTENSION archive LAST_ONLY OUTPUT_VARIABLE PREFIX)
endif()

# Debug builds the library fastest, and -O0 takes every function from the shared library.
set(build ${WORK_DIR}/build)
if(NOT EXISTS ${build}/CMakeCache.txt)
    set(settings -D CMAKE_BUILD_TYPE=Debug)
    if(TOOLCHAIN)
        list(APPEND settings -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
    else()
        list(APPEND settings -D CMAKE_CXX_COMPILER=${COMPILER})
    endif()
    if(PREFIX)
        list(APPEND settings -D CMAKE_PREFIX_PATH=${PREFIX} -D CMAKE_FIND_ROOT_PATH=${PREFIX})
    elseif(VARIANT STREQUAL "subdirectory")
        list(APPEND settings -D ZARNEX_SOURCE_DIR=${SOURCE_DIR})
    endif()
    run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${CMAKE_CURRENT_LIST_DIR}/consumer -B ${build}
        ${settings})
endif()
run(${CMAKE_COMMAND} --build ${build} --parallel 2)
run_host(${build}/consumer${SUFFIX})

# Built along with a host, the library brings neither tests nor install rules.
if(VARIANT STREQUAL "subdirectory")
    foreach(left_over CTestTestfile.cmake zarnexConfig.cmake tests)
        if(EXISTS ${build}/zarnex/${left_over})
            message(FATAL_ERROR "The library's own ${left_over} is part of the host's build")
        endif()
    endforeach()
elseif(PKG_CONFIG)
    if(PREFIX)
        file(GLOB_RECURSE file ${PREFIX}/lib/zarnex-foundation.pc)
        cmake_path(GET file PARENT_PATH folder)
        set(ENV{PKG_CONFIG_PATH} ${folder})
        cmake_path(GET folder PARENT_PATH libraries)
        set(ENV{LD_LIBRARY_PATH} ${libraries})
    endif()
    run(${PKG_CONFIG} --cflags --libs "zarnex-foundation >= 1.0")
    separate_arguments(flags UNIX_COMMAND "${output}")
    set(host ${WORK_DIR}/pkg-config-host${SUFFIX})
    run(${COMPILER} -std=c++17 ${CMAKE_CURRENT_LIST_DIR}/consumer/main.cpp ${flags} -o ${host})
    run_host(${host})
endif()
