# Motifs that cannot be worked: one line that names the file, the line and its text, and
# nothing else.
include(${CMAKE_CURRENT_LIST_DIR}/../expect.cmake)
set(file ${SCRATCH}/refused.motif)
set(picture ${SCRATCH}/refused.svg)

# refuse(MOTIF PROBLEM LINE): PROBLEM stands in front of what is wrong, LINE is its number
# and text; both together are the whole message. An empty LINE: the file as a whole.
function(refuse motif line problem)
    file(WRITE ${file} "${motif}")
    file(WRITE ${picture} "before")
    string(REGEX MATCH "^[0-9]+" number "${line}")
    string(REGEX REPLACE "^[0-9]+ ?" "" text "${line}")
    set(message "zarnex-stitchplan: ${file}: ${problem}\n")
    if(number)
        set(message "zarnex-stitchplan: ${file}:${number}: ${problem}: \"${text}\"\n")
    endif()
    expect(STATUS 2 ARGS --svg ${picture} ${file} ERR "${message}")
    file(READ ${picture} kept)
    if(NOT kept STREQUAL "before")
        message(SEND_ERROR "the picture was written for\n${motif}")
    endif()
endfunction()

set(square "outline 0, 0; 9, 0; 9, 9; 0, 9\nclose\n")

# What is no statement, or has no value.
refuse("hop 9 x 9" "1 hop 9 x 9" "unknown statement \"hop\"")
refuse("\n  Hoop 9 x 9 # big" "2   Hoop 9 x 9 # big" "unknown statement \"Hoop\"")
refuse("hoop" "1 hoop" "nothing stands behind \"hoop\"")
refuse("hoop 9 x 9\nhoop 9 x 9" "2 hoop 9 x 9" "given a second time")
refuse("" "" "no hoop is given")
refuse("# nothing\n${square}" "" "no hoop is given")
refuse("hoop 9 x 9" "" "neither an outline nor a circle is given")

# Quantities.
refuse("hoop 9" "1 hoop 9" "a hoop is two lengths with an x between")
refuse("hoop 9 x wide" "1 hoop 9 x wide" "cannot read \"wide\": no number")
refuse("hoop 9 x 0 mm" "1 hoop 9 x 0 mm" "the sides of a hoop must be above zero")
refuse("hoop 9 x 2 miles" "1 hoop 9 x 2 miles" "cannot read \"2 miles\": \"miles\" is no part of it")
refuse("hoop 9 x 20000" "1 hoop 9 x 20000" "longer than 10 m: \"20000\"")
refuse("stitch 0.29 mm" "1 stitch 0.29 mm" "the stitch length must be 0.3 mm or more")
refuse("stitch 40 per sq cm" "1 stitch 40 per sq cm"
    "neither a length nor stitches per inch: \"40 per sq cm\"")
refuse("spacing 0 mm" "1 spacing 0 mm" "the spacing of rows must be above zero")
refuse("spacing 0 spi" "1 spacing 0 spi" "no length: \"0 spi\"")
refuse("spacing -1 mm" "1 spacing -1 mm" "the spacing of rows must be above zero")
refuse("angle steep" "1 angle steep" "cannot read \"steep\": not a number with \"degrees\"")
refuse("angle 1.2.3" "1 angle 1.2.3" "cannot read \"1.2.3\": not a number with \"degrees\"")
refuse("angle 361" "1 angle 361" "more than 360 degrees: \"361\"")
refuse("scale 0 %" "1 scale 0 %" "the scale must be above 0 % and no more than 10000 %")
refuse("units spi" "1 units spi" "not the unit of a length: \"spi\"")
refuse("repeat 0 by 90" "1 repeat 0 by 90" "not a whole number from 1 to 1000: \"0\"")
refuse("repeat 4 at 9" "1 repeat 4 at 9"
    "a repeat is \"mirrored\", \"flipped\" or such as \"6 by 60 degrees\"")
refuse("repeat 40 by 9\nrepeat 40 by 9" "2 repeat 40 by 9" "this makes more than 1000 copies")
refuse("repeat often" "1 repeat often"
    "a repeat is \"mirrored\", \"flipped\" or such as \"6 by 60 degrees\"")

# Outlines and circles.
refuse("outline 0, 0; 9, 0" "1 outline 0, 0; 9, 0" "open outline, no \"close\" follows")
refuse("outline 0, 0\noutline" "1 outline 0, 0" "open outline, no \"close\" follows")
refuse("point 0, 0" "1 point 0, 0" "a point must follow an \"outline\"")
refuse("close" "1 close" "no outline is open")
refuse("outline 1 mm" "1 outline 1 mm" "a point is two lengths with a comma between")
refuse("outline 1 mm, 2,5 mm" "1 outline 1 mm, 2,5 mm"
    "a point is two lengths with a comma between")
refuse("outline 6 spi, 0" "1 outline 6 spi, 0" "no length: \"6 spi\"")
refuse("circle 0, 0; 5, 0; 9, 0" "1 circle 0, 0; 5, 0; 9, 0"
    "no circle: the points coincide or lie on a line")
refuse("circle 0, 0; 5, 0" "1 circle 0, 0; 5, 0" "a circle is three points with semicolons between")
foreach(row IN ITEMS
        "0, 0 / 5, 0 / 5, 0=an outline of fewer than three corners"
        "0, 0 / 5, 0 / 9, 0=the outline touches itself near this point"
        "0, 0 / 9, 9 / 9, 0 / 0, 9=the outline touches itself near this point"
        "0, 0 / 9, 0 / 4, 0 / 4, 9=the outline touches itself near this point"
        "0, 0 / 9, 0 / 9, 9 / 5, 0 / 0, 9=the outline touches itself near this point")
    string(REGEX MATCH "^[^=]*" points "${row}")
    string(REGEX REPLACE "^[^=]*=" "" problem "${row}")
    string(REPLACE " / " "; " points "${points}")
    refuse("hoop 60 x 60\noutline ${points}\nclose" "2 outline ${points}" "${problem}")
endforeach()

refuse("hoop 9 x 9\ncircle 0.1, 0; 0, 0.1; -0.1, 0" "2 circle 0.1, 0; 0, 0.1; -0.1, 0"
    "an outline of less than 1.2 mm all round")
refuse("hoop 60 x 60\n${square}outline 5, 5; 20, 5; 20, 20\nclose" "4 outline 5, 5; 20, 5; 20, 20"
    "the outline touches another near this point")
string(REPEAT "circle 4000, 0; 0, 4000; -4000, 0\n" 100 circles)
refuse("hoop 9 x 9\n${circles}" "22 circle 4000, 0; 0, 4000; -4000, 0"
    "this makes more than 20000 corners")

# The hoop, which scale and copies may reach too.
refuse("hoop 10 x 20\n${square}" "2 outline 0, 0; 9, 0; 9, 9; 0, 9"
    "this lies outside the hoop")
refuse("hoop 30 x 30\nscale 170 %\n${square}" "3 outline 0, 0; 9, 0; 9, 9; 0, 9"
    "this lies outside the hoop")
refuse("hoop 20 x 20\nrepeat 8 by 45 degrees\n${square}" "3 outline 0, 0; 9, 0; 9, 9; 0, 9"
    "a copy of this lies outside the hoop")

# What would never end.
refuse("hoop 20 x 20\nspacing 0.0000001\n${square}" "2 spacing 0.0000001"
    "so narrow a spacing makes more than 1000000 rows")
refuse("hoop 10000 x 10000\nscale 10000 %\nstitch 0.3\nspacing 0.01\noutline 0, 0; 40, 0; 40, 40\nclose"
    "4 spacing 0.01" "this makes more than 10000000 stitches")

# Files that are no motifs.
file(WRITE ${file} "hoop 9 x 9\n\tcaf")
string(ASCII 233 10 latin)
file(APPEND ${file} "${latin}")
expect(STATUS 2 ARGS ${file} ERR_MATCHES "refused.motif:2: this is no text: \" caf.*\"\n$")
string(ASCII 13 return)
file(WRITE ${file} "hoop 9 x 9${return}circle 4, 0")
expect(STATUS 2 ARGS ${file} ERR_MATCHES "refused.motif:1: this is no text: \"hoop 9 x 9 circle 4, 0\"\n$")
string(REPEAT "# a long comment in a file that is far too long\n" 100000 huge)
refuse("${huge}" "" "more than 4 MiB is no motif")
expect(STATUS 2 ARGS no.motif ERR "zarnex-stitchplan: cannot read no.motif: No such file or directory\n")
expect(STATUS 2 ARGS ${SCRATCH} ERR_MATCHES "^zarnex-stitchplan: cannot read [^\n]+\n$")
expect(STATUS 2 ARGS --svg no/such/folder.svg leaf.motif ERR
    "zarnex-stitchplan: cannot write no/such/folder.svg: No such file or directory\n")

# Calls.
set(more "; zarnex-stitchplan --help tells more\n")
expect(STATUS 2 ARGS ERR "zarnex-stitchplan: no motif${more}")
expect(STATUS 2 ARGS leaf.motif star.motif ERR "zarnex-stitchplan: more than one motif${more}")
expect(STATUS 2 ARGS leaf.motif --svg ERR "zarnex-stitchplan: --svg needs the name of a file${more}")
expect(STATUS 2 ARGS --svg - leaf.motif ERR "zarnex-stitchplan: --svg needs the name of a file${more}")
file(COPY ${DATA}/leaf.motif DESTINATION ${SCRATCH})
expect(STATUS 2 ARGS --svg ${SCRATCH}/leaf.motif ${SCRATCH}/leaf.motif ERR
    "zarnex-stitchplan: the picture would replace the motif ${SCRATCH}/leaf.motif\n")
expect(STATUS 2 ARGS --png x leaf.motif ERR "zarnex-stitchplan: not an option: \"--png\"${more}")
expect(STATUS 2 ARGS --svg= leaf.motif ERR "zarnex-stitchplan: --svg needs the name of a file${more}")
expect(STATUS 2 ARGS -- --svg ERR "zarnex-stitchplan: cannot read --svg: No such file or directory\n")
