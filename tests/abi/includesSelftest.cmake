# Lets includes.cmake judge a tree with one fault of each kind and a clean tree.
#   SCRIPT, WORK_DIR
cmake_minimum_required(VERSION 3.25)

set(tree ${WORK_DIR}/tree)
file(REMOVE_RECURSE ${tree})

# add(PATH LINE...): a file of the tree, and in `public` if it is an installed header.
function(add path)
    list(JOIN ARGN "\n" text)
    file(WRITE ${tree}/zarnex/${path} "// [[ ; \\\n${text}\n")
    if(path MATCHES "\\.h$" AND NOT path MATCHES "internal/|platform/platform")
        file(APPEND ${tree}/public "${tree}/zarnex/${path}\n")
    endif()
endfunction()

function(judge)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -D SOURCE_DIR=${tree} -D PUBLIC_HEADERS=${tree}/public -P ${SCRIPT}
        RESULT_VARIABLE status ERROR_VARIABLE errors)
    set(status ${status} PARENT_SCOPE)
    set(errors "${errors}" PARENT_SCOPE)
endfunction()

add(config.h)
add(foundation.h "#include <zarnex/config.h>" "#include <zarnex/runtime/Good.h>")
add(runtime/Good.h "#include <zarnex/config.h>")
add(runtime/Good.cpp "#include <zarnex/runtime/Good.h>" "#include <zarnex/platform/platform.h>")
add(platform/platform.h)
add(platform/windows/lock.cpp "#include <windows.h>")
judge()
if(NOT status EQUAL 0)
    message(FATAL_ERROR "A clean tree is refused:\n${errors}")
endif()

add(runtime/Up.cpp "" "  #  include <zarnex/strings/ZString.h>")
add(runtime/System.cpp "#include <Windows.h>")
add(runtime/Quoted.cpp "#include \"Good.h\"")
add(units/Seam.cpp "#include <zarnex/platform/platform.h>")
add(runtime/Inside.h "#include <zarnex/runtime/internal/inside.h>")
add(runtime/internal/inside.h "#include <zarnex/foundation.h>")
add(plugins/New.cpp)
file(WRITE ${tree}/zarnex/runtime/Forgotten.h "")
judge()

foreach(expected
    "runtime/Up.cpp:3: runtime may not include <zarnex/strings/ZString.h>"
    "runtime/System.cpp:2: <windows.h> outside"
    "runtime/Quoted.cpp:2: \"Good.h\" instead of a full path"
    "units/Seam.cpp:2: units may not include <zarnex/platform/platform.h>"
    "runtime/Inside.h:2: a public header includes <zarnex/runtime/internal/inside.h>"
    "runtime/internal/inside.h:2: runtime may not include <zarnex/foundation.h>"
    "plugins/New.cpp: no rule for the folder plugins"
    "runtime/Forgotten.h: neither in the file set"
    "foundation.h: does not include <zarnex/runtime/Inside.h>")
    string(FIND "${errors}" "zarnex/${expected}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "Not reported:\n  ${expected}\nbut only:\n${errors}")
    endif()
endforeach()
