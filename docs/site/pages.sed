# What Doxygen 1.9.4 reads instead of a page; blocks of code stay as they are.
/^```/,/^```$/b

# In the code of tables it drops blanks that stand at the ends or side by side: they become ones that
# do not break.
/^|/ {
    s/  /\xC2\xA0\xC2\xA0/g
    s/| ` /| `\xC2\xA0/g
    s/ ` |/\xC2\xA0` |/g

    # Outside of code it takes the hyphens of an option for a dash.
    /`/! s/ --\([a-z]\)/ \\--\1/g
}

# It sees no emphasis in front of a quotation mark.
s/^- \*\("[^*]*\)\*/- <em>\1<\/em>/

# It drops a percent sign in front of a word, but not the second of two.
s/`%\([A-Za-z]\)/`%%\1/g
