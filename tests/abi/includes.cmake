# Checks what the files under zarnex/ include, from
#   SOURCE_DIR       the folder that holds zarnex/
#   PUBLIC_HEADERS   a file that lists the installed headers, one path a line
# and names file and line of everything that breaks a rule.
cmake_minimum_required(VERSION 3.25)

# What each folder may include besides itself and config.h. Includes run one way; files of
# a lower folder know nothing of a higher one.
set(may_include_platform "")
set(may_include_runtime platform)
set(may_include_containers runtime)
set(may_include_strings containers runtime platform)
set(may_include_geometry containers platform)
set(may_include_transforms geometry containers)
set(may_include_units strings geometry runtime containers)
set(may_include_ids strings containers platform)
set(may_include_bigint strings runtime)
set(may_include_interop ids units transforms geometry strings)

set(faults "")

function(report where what)
    string(APPEND faults "  ${where}: ${what}\n")
    set(faults "${faults}" PARENT_SCOPE)
endfunction()

file(STRINGS ${PUBLIC_HEADERS} public_headers)
list(TRANSFORM public_headers REPLACE "^${SOURCE_DIR}/" "")
list(SORT public_headers)
if(NOT public_headers)
    report(${PUBLIC_HEADERS} "lists no headers")
endif()

file(GLOB_RECURSE files RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/zarnex/*.h ${SOURCE_DIR}/zarnex/*.cpp)
list(SORT files)
set(umbrella zarnex/foundation.h)
set(umbrella_includes "")

foreach(file IN LISTS files)
    set(folder "")
    if(file MATCHES "^zarnex/([^/]*)/")
        set(folder ${CMAKE_MATCH_1})
    endif()
    if(folder AND NOT DEFINED may_include_${folder})
        # An empty list counts as defined; a new folder does not.
        report(${file} "no rule for the folder ${folder}: add one to tests/abi/includes.cmake")
        continue()
    endif()

    # Hosts can only include what is installed; the rest says by its place that it is not.
    set(is_public FALSE)
    if(file IN_LIST public_headers)
        set(is_public TRUE)
    elseif(file MATCHES "\\.h$" AND NOT file MATCHES "/internal/|^zarnex/platform/")
        report(${file} "neither in the file set `headers` nor in internal/")
    endif()

    # One list element a line: the characters that lists treat specially go first.
    file(READ ${SOURCE_DIR}/${file} text)
    string(REGEX REPLACE "[][;\\]" " " text "${text}")
    string(REPLACE "\n" ";" lines "${text}")
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        if(NOT line MATCHES "^[ \t]*#[ \t]*include[ \t]*([<\"])([^>\"]*)[>\"]")
            continue()
        endif()
        set(quote "${CMAKE_MATCH_1}")
        set(included "${CMAKE_MATCH_2}")
        set(where ${file}:${number})

        string(TOLOWER "${included}" lower)
        if(lower STREQUAL "windows.h"
            AND NOT file MATCHES "^zarnex/platform/windows/")
            report(${where} "<windows.h> outside zarnex/platform/windows")
        elseif(quote STREQUAL "\"")
            report(${where} "\"${included}\" instead of a full path <zarnex/...>")
        elseif(NOT included MATCHES "^zarnex/")
            continue()
        endif()

        if(file STREQUAL umbrella)
            list(APPEND umbrella_includes ${included})
        elseif(NOT included STREQUAL "zarnex/config.h")
            string(REGEX REPLACE "^zarnex/" "" target "${included}")
            string(REGEX REPLACE "/.*" "" target_folder "${target}")
            if(NOT target_folder STREQUAL folder
                AND NOT target_folder IN_LIST may_include_${folder}
                AND NOT target IN_LIST may_include_${folder})
                report(${where} "${folder} may not include <${included}>")
            endif()
        endif()
        if(is_public AND NOT included IN_LIST public_headers)
            report(${where} "a public header includes <${included}>, which is not installed")
        endif()
    endforeach()
endforeach()

# foundation.h is exactly the list of the others, sorted.
set(sorted ${umbrella_includes})
list(SORT sorted)
if(NOT umbrella_includes STREQUAL sorted)
    report(${umbrella} "the includes are not sorted by path")
endif()
foreach(header IN LISTS public_headers)
    if(NOT header IN_LIST umbrella_includes AND NOT header STREQUAL umbrella)
        report(${umbrella} "does not include <${header}>")
    endif()
endforeach()

if(faults)
    message(FATAL_ERROR "Includes that break the rules of this library:\n${faults}")
endif()
