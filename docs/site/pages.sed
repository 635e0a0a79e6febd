# What Doxygen 1.9.4 reads instead of a page: in the code of tables it drops blanks that stand at the
# ends or side by side, so they become ones that do not break.
/^|/ {
    s/  /\xC2\xA0\xC2\xA0/g
    s/| ` /| `\xC2\xA0/g
    s/ ` |/\xC2\xA0` |/g
}
