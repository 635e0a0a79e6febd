# What is given as arguments.
include(${CMAKE_CURRENT_LIST_DIR}/../expect.cmake)

# A text is listed in every unit that it converts to.
expect(STATUS 0 ARGS "2.5 mm" OUT
[[mm     2.5 mm  2.5
cm     0.2 cm  0.25
in    0.10 in  0.0984251968503937
pt    25.0 pt  25
spi  10.2 spi  10.16
]])
expect(STATUS 0 ARGS "40 per sq cm" "10.00 mm/s" "5 CM/S" "0 spi" OUT
[["40 per sq cm":
per sq cm  40.0 per sq cm  40
"10.00 mm/s":
mm/s  10.00 mm/s  10
cm/s   1.00 cm/s  1
"5 CM/S":
mm/s  50.00 mm/s  50
cm/s   5.00 cm/s  5
"0 spi":
mm    0.0 mm  0
cm    0.0 cm  0
in   0.00 in  0
spi  0.0 spi  0
]])

# A last text that is a unit is the one unit to list. It must not swallow the unit of a
# number that was left unquoted.
expect(STATUS 0 ARGS "2.5 mm" in OUT "in  0.10 in  0.0984251968503937\n")
expect(STATUS 0 ARGS "-2 mm" Inches OUT "in  -0.08 in  -0.07874015748031496\n")
expect(STATUS 0 ARGS 3 cm --unit in OUT "cm   7.6 cm  7.62\n")
expect(STATUS 0 ARGS --unit mm/s 5 cm/s OUT "cm/s  0.50 cm/s  0.5\n")
set(name zarnex-units)
expect(STATUS 1 ARGS 2.5 in ERR
    "${name}: cannot read \"2.5\": no unit; quote number and unit together, or use --unit\n")
expect(STATUS 1 ARGS "40 per sq cm" in ERR
    "${name}: \"40 per sq cm\": per sq cm does not convert to in\n")

# Very large and very small numbers keep all their digits.
expect(STATUS 0 ARGS "100000000000000 cm" mm OUT "mm  1000000000000000.00 mm  1e+15\n")
expect(STATUS 0 ARGS "0.00001 cm" cm OUT "cm   0.0 cm  0.00001\n")

# What is ignored is said, and what cannot be read does not stop the run.
expect(STATUS 1 ARGS wide "1 1/2 in" OUT_MATCHES "^\"1 1/2 in\":\nmm +1.0 mm  1\n.*25.4\n$" ERR
"${name}: cannot read \"wide\": no number
${name}: \"1 1/2 in\": read as 1 mm, ignored \"1/2 in\"
")

# A sign alone must not bring back the number before it, nor a look-alike a digit.
expect(STATUS 1 ARGS --check "2.5 mm" "+ mm" "5″" "1 in extra" "~3 INCHES" "12 bananas" OUT
[["2.5 mm": valid; number 2.5 from "2.5"; unit mm from "mm"
"+ mm": invalid, a sign without digits
"5″": invalid, "″" is no part of a number or a unit
"1 in extra": invalid, text behind the unit; number 1 from "1"; unit in from "in"; ignored "extra"
"~3 INCHES": valid; number 3 from "3"; unit in from "INCHES"; ignored "~"
"12 bananas": valid; number 12 from "12"; no unit, so mm; ignored "bananas"
]])

# Tokens of 100 characters are refused before they end the process.
set(texts "")
set(verdicts "")
foreach(length 98 99 100 101)
    math(EXPR rest "${length} - 1")
    string(REPEAT 5 ${length} digits)
    string(REPEAT 5 ${rest} digitsBefore)
    string(REPEAT " " ${length} blanks)
    list(APPEND texts "${digits}" "-${digitsBefore}" "${digitsBefore}." "1${blanks}mm")
    set(verdict "\": valid")
    if(length GREATER 99)
        set(verdict "\": invalid, 100 digits or blanks in a row")
    endif()
    list(APPEND verdicts ${verdict} ${verdict} ${verdict} ${verdict})
endforeach()
expect(STATUS 1 ARGS --check ${texts} OUT_MATCHES "in a row")
string(REGEX MATCHALL "\": (valid|[^\n;]*)" found "${output}")
if(NOT found STREQUAL verdicts)
    message(SEND_ERROR "tokens of 98 to 101 characters:\n${output}")
endif()

# Calls that make no sense.
foreach(row
        "no quantity" "no quantity|--check" "no quantity|--unit=in"
        "not an option: \"--bogus\"|--bogus=1" "not an option: \"-x\"|-x|2 mm"
        "--file needs the name of a file|--file" "--file needs the name of a file|--file|--check"
        "--unit needs a unit|--unit=|2 mm" "--check takes no value|--check=2 mm"
        "both a file and texts|--file|quantities.txt|2 mm" "not a unit: \"wide\"|--unit|wide|2"
        "more than one of --check, --file and -|--check|-|2 mm")
    string(REPLACE "|" ";" row "${row}")
    list(POP_FRONT row problem)
    expect(STATUS 2 ARGS ${row} ERR "${name}: ${problem}; ${name} --help tells more\n")
endforeach()
expect(STATUS 0 ARGS --unit=in 3 cm OUT "cm   7.6 cm  7.62\n")
expect(STATUS 1 ARGS -- - ERR "${name}: cannot read \"-\": a sign without digits\n")
expect(STATUS 1 ARGS -- --5 ERR "${name}: cannot read \"--5\": a sign without digits\n")
expect(STATUS 0 ARGS --version OUT_MATCHES "^zarnex-units [0-9.]+\n$")
expect(STATUS 0 ARGS 2 --help OUT_MATCHES "^Usage: zarnex-units ")
