# What stands in files.
include(${CMAKE_CURRENT_LIST_DIR}/../expect.cmake)
set(here ${CMAKE_CURRENT_LIST_DIR})
set(name zarnex-units)
string(REPLACE "|" "\t" header
    "line|text|valid|number|unit|mm|cm|in|pt|spi|mm/s|cm/s|ignored|problem\n")

file(READ ${here}/quantities.tsv table)
file(READ ${here}/quantities.err errors)
expect(STATUS 1 ARGS --file quantities.txt OUT "${table}" ERR "${errors}")

# A byte order mark, carriage returns, a NUL, bytes that are no UTF-8, control
# characters and a last line without an end.
string(ASCII 239 187 191 mark)
string(REPLACE "|" "\t" rows
"1|2 mm|yes|2|mm|2|0.2|0.07874015748031496|20|12.7||||
5|3 mm |no|||||||||||a NUL byte in it
6|90�|no|||||||||||not UTF-8
7|4 mm end [31m|no|4|mm||||||||end [31m|text behind the unit
8|${mark}5 mm|yes|5|mm|5|0.5|0.1968503937007874|50|5.08|||${mark}|
9|6 mm|yes|6|mm|6|0.6|0.2362204724409449|60|4.233333333333333||||
")
expect(STATUS 1 ARGS - IN ${here}/odd_bytes.txt OUT "${header}${rows}" ERR
"${name}: standard input:5: cannot read \"3 mm \": a NUL byte in it
${name}: standard input:6: cannot read \"90�\": not UTF-8
${name}: standard input:7: cannot read \"4 mm end [31m\": text behind the unit
")

# Lines that stand across the chunks that are read, and one of megabytes.
string(REPEAT "2.5 mm\n" 30000 lines)
string(REPEAT "x" 3000000 long)
file(WRITE ${SCRATCH}/long.txt "${lines}${long}\n1 in")
string(SUBSTRING "${long}" 0 1000 begin)
string(SUBSTRING "${long}" 0 60 quoted)
expect(STATUS 1 ARGS --file ${SCRATCH}/long.txt OUT_MATCHES "^${header}1\t2.5 mm\tyes\t"
    ERR "${name}: ${SCRATCH}/long.txt:30001: cannot read \"${quoted}…\": longer than 1000 bytes\n")
string(REPLACE "|" "\t" same "2.5 mm|yes|2.5|mm|2.5|0.25|0.0984251968503937|25|10.16||||\n")
string(REPLACE "\t${same}" ";" numbers "${output}")
string(REPLACE "|" "\t" end
    "30001|${begin}…|no|||||||||||longer than 1000 bytes
30002|1 in|yes|1|in|25.4|2.54|1|254|1||||
")
list(POP_BACK numbers rest)
list(LENGTH numbers count)
list(GET numbers -1 last)
if(NOT count EQUAL 30000 OR NOT last EQUAL 30000 OR NOT rest STREQUAL end)
    message(SEND_ERROR "${count} whole rows up to number ${last}, then\n${rest}")
endif()

# Without a text that is invalid, or without any, the status is 0.
file(WRITE ${SCRATCH}/valid.txt "# only comments\n\n")
expect(STATUS 0 ARGS --file ${SCRATCH}/valid.txt OUT "${header}")

# What cannot be read or written is the fault of the call.
expect(STATUS 2 ARGS --file no.txt ERR "${name}: cannot read no.txt: No such file or directory\n")
expect(STATUS 2 ARGS --file . OUT_MATCHES "^(line.*)?$" ERR_MATCHES "^${name}: cannot read .: [^\n]+\n$")
if(EXISTS /dev/full)
    execute_process(COMMAND ${PROGRAM} --file quantities.txt WORKING_DIRECTORY ${DATA}
        RESULT_VARIABLE status OUTPUT_FILE /dev/full ERROR_FILE ${SCRATCH}/full.err)
    file(READ ${SCRATCH}/full.err errors)
    if(NOT status EQUAL 2 OR NOT errors MATCHES "${name}: cannot write the output: [^\n]+\n$")
        message(SEND_ERROR "full device: status ${status}\n${errors}")
    endif()
endif()
