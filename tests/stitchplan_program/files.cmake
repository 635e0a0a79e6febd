# Files: what is read from the standard input, and what is written where.
include(${CMAKE_CURRENT_LIST_DIR}/../expect.cmake)

# The standard input, with a byte order mark, carriage returns and no line feed at the end.
string(ASCII 239 187 191 mark)
string(ASCII 13 return)
file(WRITE ${SCRATCH}/odd.motif
    "${mark}hoop 9 x 9${return}\n\tcircle 4, 0; 0, 4; -4, 0${return}\nscale\t100 %")
expect(STATUS 0 ARGS - IN ${SCRATCH}/odd.motif OUT_MATCHES "^outlines    1 outline, 0 holes, 1 copy\n")

# A picture replaces what had its name, and leaves nothing else behind.
set(folder ${SCRATCH}/pictures)
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder})
file(WRITE ${folder}/star.svg "before")
expect(STATUS 0 ARGS --svg ${folder}/star.svg star.motif OUT_MATCHES "picture     ${folder}/star.svg\n$")
file(READ ${folder}/star.svg picture)
file(GLOB left RELATIVE ${folder} ${folder}/*)
if(NOT picture MATCHES "^<svg .*</svg>\n$" OR NOT left STREQUAL "star.svg")
    message(SEND_ERROR "${left}: ${picture}")
endif()

# Text of the title cannot break the picture.
file(WRITE ${SCRATCH}/title.motif "title <R&D> ½ \"x\"\nhoop 9 x 9\ncircle 4, 0; 0, 4; -4, 0\n")
expect(STATUS 0 ARGS --svg ${SCRATCH}/title.svg ${SCRATCH}/title.motif OUT_MATCHES
    "^title       <R&D> ½ \"x\"\n")
file(READ ${SCRATCH}/title.svg picture)
if(NOT picture MATCHES "<title>&lt;R&amp;D&gt; ½ \"x\"</title>")
    message(SEND_ERROR "the title: ${picture}")
endif()

# Devices are written, never replaced.
if(EXISTS /dev/full)
    file(WRITE ${SCRATCH}/large.motif "hoop 90 x 90\nspacing 0.1\ncircle 40, 0; 0, 40; -40, 0\n")
    foreach(motif leaf.motif ${SCRATCH}/large.motif) # waits in one buffer, or fills several
        expect(STATUS 2 ARGS --svg /dev/full ${motif} ERR_MATCHES
            "^zarnex-stitchplan: cannot write /dev/full: [^\n]+\n$")
    endforeach()
    expect(STATUS 0 ARGS --svg /dev/null leaf.motif OUT_MATCHES "picture     /dev/null\n$")
    if(NOT EXISTS /dev/full OR NOT EXISTS /dev/null)
        message(SEND_ERROR "a device is gone")
    endif()
endif()

# Where the output is closed, the picture does not take its place.
if(NOT PROGRAM MATCHES "[.]exe$")
    execute_process(COMMAND sh -c "exec \"$@\" >&-" sh ${PROGRAM} --svg ${folder}/closed.svg -
        WORKING_DIRECTORY ${DATA} INPUT_FILE ${DATA}/leaf.motif RESULT_VARIABLE status
        ERROR_VARIABLE errors)
    if(NOT status EQUAL 2 OR NOT errors MATCHES "cannot write the output" OR EXISTS ${folder}/closed.svg)
        message(SEND_ERROR "closed output: status ${status}\n${errors}")
    endif()
endif()
