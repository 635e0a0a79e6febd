# What comes of motifs.
include(${CMAKE_CURRENT_LIST_DIR}/../expect.cmake)
set(motif ${SCRATCH}/plan.motif)
set(picture ${SCRATCH}/plan.svg)

# The motifs that come with the program.
expect(STATUS 0 ARGS leaf.motif OUT
[[title       A leaf
outlines    2 outlines, 0 holes, 2 copies
stitches    2314
rows        344
threads     8
thread      4439.1 mm, 174.77 in
extent      36.0 mm x 82.0 mm, from (-18.0 mm, -44.0 mm) to (18.0 mm, 38.0 mm)
density     13.24 spi
]])
expect(STATUS 0 ARGS star.motif OUT
[[title       A star with a hole
outlines    1 outline, 1 hole, 1 copy
stitches    2890
rows        264
threads     7
thread      5325.2 mm, 209.65 in
extent      79.8 mm x 76.0 mm, from (-39.9 mm, -34.0 mm) to (39.9 mm, 42.0 mm)
density     13.78 spi
]])
expect(STATUS 0 ARGS initials.motif OUT
[[title       Initials
outlines    3 outlines, 1 hole, 1 copy
stitches    3620
rows        677
threads     11
thread      6453.5 mm, 254.07 in
extent      86.6 mm x 86.6 mm, from (-43.3 mm, -43.3 mm) to (43.3 mm, 43.3 mm)
density     14.25 spi
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
needles("hoop 40 x 40\nstitch 4\nspacing 3\n${square}"
"0 -1.5L4 -1.5L8 -1.5L9 -1.5L9 -4.5L5.33 -4.5L1.33 -4.5L0 -4.5L0 -7.5L2.67 -7.5L6.67 -7.5L9 -7.5
9 0L9 -3L9 -6L9 -9L6 -9L3 -9L0 -9L0 -6L0 -3L0 0L3 0L6 0L9 0")
# The angle turns the rows, the scale the outline but not the stitches.
needles("hoop 40 x 40\nstitch 4\nspacing 3\nangle 90 degrees\n${square}"
"7.5 0L7.5 -4L7.5 -8L7.5 -9L4.5 -9L4.5 -5.33L4.5 -1.33L4.5 0L1.5 0L1.5 -2.67L1.5 -6.67L1.5 -9
9 0L9 -3L9 -6L9 -9L6 -9L3 -9L0 -9L0 -6L0 -3L0 0L3 0L6 0L9 0")
needles("hoop 40 x 40\nstitch 10\nspacing 9\nscale 200 %\n${square}"
"0 -4.5L10 -4.5L18 -4.5L18 -13.5L13.33 -13.5L3.33 -13.5L0 -13.5
18 0L18 -9L18 -18L9 -18L0 -18L0 -9L0 0L9 0L18 0")
# A hole stays free: the rows beside it are sewn one side after the other, on one thread.
needles("hoop 40 x 40\nstitch 12\nspacing 2\n${square}outline 3, 3; 6, 3; 6, 6; 3, 6\nclose\n"
"0 -0.5L9 -0.5L9 -2.5L4 -2.5L0 -2.5L0 -4.5L3 -4.5
6 -4.5L8 -4.5L9 -4.5L9 -6.5L0 -6.5L0 -8.5L4 -8.5L9 -8.5
9 0L9 -9L0 -9L0 0L9 0
3 -6L6 -6L6 -3L3 -3L3 -6")
# Between two outlines the thread is cut.
needles("hoop 40 x 40\nstitch 9\nspacing 9\n${square}outline 10, 0; 14, 0; 14, 9\nclose\n"
"0 -4.5L9 -4.5
12 -4.5L14 -4.5
9 0L9 -9L0 -9L0 0L9 0
10 0L14 0L14 -9L12 -4.5L10 0")
# Copies: turned, then mirrored, all about the middle.
needles("hoop 40 x 40\nstitch 5\nspacing 9\nrepeat 2 by 90 degrees\nrepeat mirrored
outline 2, 1; 7, 1; 7, 5\nclose\n"
"4.5 -3L5 -3L7 -3
2 -1L7 -1L7 -5L4.5 -3L2 -1
-3 -4.5L-3 -5L-3 -7
-1 -2L-1 -7L-5 -7L-3 -4.5L-1 -2
-4.5 -3L-5 -3L-7 -3
-2 -1L-7 -1L-7 -5L-4.5 -3L-2 -1
3 -4.5L3 -5L3 -7
1 -2L1 -7L5 -7L3 -4.5L1 -2")
# Where the way to the next row would leave the shape, round a step or across a slit, it
# goes where one row is above the other.
needles("hoop 90 x 60\nspacing 2\nstitch 40\noutline -10, 0; 0, 0; 0, 2; 20, 2; 20, 4; -10, 4\nclose\n"
"-10 -1L0 -1L-0.3 -1L-0.3 -3L20 -3L13.33 -3L-10 -3
-10 0L0 0L0 -2L20 -2L20 -4L-10 -4L-10 0")
needles("hoop 90 x 60\nspacing 4\nstitch 40\noutline 0, 0; 9, 0; 9, 3.9; 1, 3.9; 1, 4.1; 9, 4.1; 9, 8; 0, 8\nclose\n"
"0 -2L9 -2L0.3 -2L0.3 -6L9 -6L0 -6
0 0L9 0L9 -3.9L1 -3.9L1 -4.1L9 -4.1L9 -8L0 -8L0 0")
# A row that is a little longer than a stitch gets a needle in its middle.
needles("hoop 90 x 60\nspacing 9\nstitch 5\noutline 4.8, 0; 10.2, 0; 10.2, 4; 4.8, 4\nclose\n"
"4.8 -2L7.5 -2L10.2 -2
4.8 0L7.5 0L10.2 0L10.2 -4L7.5 -4L4.8 -4L4.8 0")
# Outlines: needles in sharp corners and equal stitches between, shorter ones in a bend.
needles("hoop 40 x 40\nstitch 40 mm\nspacing 50\ncircle 1, 0; 0, 1; -1, 0\n"
"-1 0L0 0L1 0
1 0L0.71 -0.71L0 -1L-0.71 -0.71L-1 0L-0.71 0.71L0 1L0.71 0.71L1 0")
