# What Doxygen 1.9.4 reads instead of a header; its lines keep their numbers.

# The mark of what is odd on purpose is bold.
s|Kept as is:|<b>&</b>|

# A remark behind a member becomes a sentence, as what stands in front of others is one.
/\/\/\/< \([a-z][a-z]*\([, ]\+[a-z0-9`(]\|$\)\|[0-9] [a-z]\)/ {
    s|///< [a-z]|\U&|
    s|\([^.]\)$|\1.|
}

# Instantiations, which it takes for further classes: the lines that declare one, and the
# arguments of a base class.
s/^extern template .*//
/^class/s/: public \(Z[A-Za-z0-9]*\)<[^>]*> {/: public \1 {/

# It takes the > for the end of the template's parameters.
s/ && sizeof(Number) >= 4//

# Members that a using declaration brings in: it copies them without the comment of their group.
s/^ *using Z[A-Za-z]*::.*;//
