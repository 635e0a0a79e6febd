# What comes of motifs.
include(${CMAKE_CURRENT_LIST_DIR}/../expect.cmake)
set(motif ${SCRATCH}/plan.motif)
set(picture ${SCRATCH}/plan.svg)

# The motifs that come with the program.
expect(STATUS 0 ARGS leaf.motif OUT
[[LEAF
]])
expect(STATUS 0 ARGS star.motif OUT
[[STAR
]])
expect(STATUS 0 ARGS initials.motif OUT
[[INITIALS
]])

# The picture in the README is what the program draws.
expect(STATUS 0 ARGS --svg ${picture} leaf.motif OUT_MATCHES "\npicture     ${picture}\n$")
file(READ ${picture} drawn)
file(READ ${CMAKE_CURRENT_LIST_DIR}/../../docs/images/leaf.svg shown)
if(NOT drawn STREQUAL shown)
    message(SEND_ERROR "${picture} is not docs/images/leaf.svg")
endif()

# needles(MOTIF NEEDLES): the needle points of a motif, thread by thread, as the picture
# has them: millimetres with y downward.
function(needles text want)
    file(WRITE ${motif} "${text}")
    expect(STATUS 0 ARGS --svg ${picture} ${motif} OUT_MATCHES "stitches")
    file(READ ${picture} drawn)
    string(REGEX REPLACE "^.*<g id=\"threads\">\n(.*)\n</g></defs>.*$" "\\1" threads "${drawn}")
    string(REGEX REPLACE "<path d=\"M([^\"]*)\"/>" "\\1" threads "${threads}")
    if(NOT threads STREQUAL want)
        message(SEND_ERROR "for\n${text}\nsewn:\n${threads}\ninstead of:\n${want}")
    endif()
endfunction()

# Rows to and fro, shifted from row to row, their ends where the outline is; then once
# round, counter-clockwise whatever way the outline was drawn.
set(square "outline 0, 0; 0, 9; 9, 9; 9, 0\nclose\n")
needles("hoop 40 x 40\nstitch 4\nspacing 3\n${square}" "")
# The angle turns the rows, the scale the outline but not the stitches.
needles("hoop 40 x 40\nstitch 4\nspacing 3\nangle 90 degrees\n${square}" "")
needles("hoop 40 x 40\nstitch 10\nspacing 9\nscale 200 %\n${square}" "")
# Holes stay free, and the thread is cut rather than sewn across one.
needles("hoop 40 x 40\nstitch 12\nspacing 2\n${square}outline 3, 3; 6, 3; 6, 6; 3, 6\nclose\n" "")
# Copies: turned, then mirrored, all about the middle.
needles("hoop 40 x 40\nstitch 5\nspacing 9\nrepeat 2 by 90 degrees\nrepeat mirrored
outline 2, 1; 7, 1; 7, 5\nclose\n" "")
# Outlines: needles in sharp corners, equal stitches between, at least three round a circle.
needles("hoop 40 x 40\nstitch 40 mm\nspacing 50\ncircle 1, 0; 0, 1; -1, 0\n" "")
