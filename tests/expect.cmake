cmake_minimum_required(VERSION 3.25)

# expect(STATUS <status> [OUT <text>] [ERR <text>] [IN <file>] ARGS <argument>...)
#
# Runs the program in DATA and compares what it writes and returns; without OUT or ERR
# that stream must stay empty. OUT_MATCHES and ERR_MATCHES take a regular expression
# instead. The output is left in `output` too.
function(expect)
    cmake_parse_arguments(PARSE_ARGV 0 want
        "" "STATUS;OUT;OUT_MATCHES;ERR;ERR_MATCHES;IN" "ARGS")
    set(input "")
    if(DEFINED want_IN)
        set(input INPUT_FILE ${want_IN})
    endif()
    # Through files: pipes would stay open for as long as Wine's server lives.
    execute_process(COMMAND ${PROGRAM} ${want_ARGS} ${input}
        WORKING_DIRECTORY ${DATA} RESULT_VARIABLE status
        OUTPUT_FILE ${SCRATCH}/${TOPIC}.out ERROR_FILE ${SCRATCH}/${TOPIC}.err)
    file(READ ${SCRATCH}/${TOPIC}.out output)
    file(READ ${SCRATCH}/${TOPIC}.err errors)
    set(output "${output}" PARENT_SCOPE)

    list(JOIN want_ARGS "' '" call)
    if(NOT status STREQUAL want_STATUS)
        message(SEND_ERROR "'${call}': status ${status}, not ${want_STATUS}")
    endif()
    foreach(stream OUT ERR)
        set(text "${output}")
        if(stream STREQUAL ERR)
            set(text "${errors}")
        endif()
        if(DEFINED want_${stream}_MATCHES)
            if(NOT text MATCHES "${want_${stream}_MATCHES}")
                message(SEND_ERROR
                    "'${call}': ${stream}\n${text}does not match\n${want_${stream}_MATCHES}")
            endif()
        elseif(NOT text STREQUAL "${want_${stream}}")
            message(SEND_ERROR "'${call}': ${stream}\n${text}instead of\n${want_${stream}}")
        endif()
    endforeach()
endfunction()
