# Makes assertions of the sizes and places in layout.txt: CLASS: N bytes, CLASS: at N TYPE MEMBER.
# Names of classes may hold blanks and colons; ": " stands once, before what is said of them.
# The tag... records are the platform's own.
!/^tag/ {
    at = match($0, /: ([0-9]+ bytes|at [0-9]+ .*)$/)
    if (!at)
        next
    type = substr($0, 1, at - 1)
    split(substr($0, at + 2), words, " ")
    if (words[2] == "bytes")
        printf "SIZE(%s, (%s*))\n", words[1], type
    else
        printf "PLACE(%s, %s, (%s*))\n", words[2], $NF, type
}
