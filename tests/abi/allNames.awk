# Reads exported names, demangled, and writes a line of C++ for each that touches it.

# The place of the "(" that belongs to the ")" at `end`.
function opening(text, end,    i, depth, c) {
    for (i = end; i > 0; --i) {
        c = substr(text, i, 1)
        depth += (c == ")") - (c == "(")
        if (depth == 0)
            return i
    }
}

# The place of the last "::" that stands outside of all brackets; 0 if there is none.
function lastScope(text,    i, depth, c) {
    for (i = length(text) - 1; i > 0; --i) {
        c = substr(text, i, 1)
        depth += (c == ">" || c == ")") - (c == "<" || c == "(")
        if (depth == 0 && substr(text, i, 2) == "::")
            return i
    }
    return 0
}

{
    line = $0
    gsub(/\[abi:cxx11\]/, "", line)
    isConst = sub(/ const$/, "", line)
    end = length(line)
    if (substr(line, end) != ")") {
        print "touch(&" line ");"
        next
    }
    open = opening(line, end)
    name = substr(line, 1, open - 1)
    arguments = substr(line, open + 1, end - open - 1)
    isVariadic = sub(/(, )?\.\.\.$/, "", arguments)

    at = match(name, /(^|::)operator[^A-Za-z0-9_]/)
    if (at > 1)
        cut = at
    else
        cut = at == 1 ? 0 : lastScope(name)
    scope = cut > 0 ? substr(name, 1, cut - 1) : ""
    last = cut > 0 ? substr(name, cut + 2) : name

    class = scope
    sub(/<.*/, "", class)
    sub(/.*::/, "", class)
    if (scope == "" || scope == "zarnex") {
        print "FUNCTION(" name (arguments == "" ? "" : ", ") arguments ")"
    } else {
        kind = isVariadic ? "VARIADIC" : isConst ? "CONST_MEMBER" : "MEMBER"
        print "{ using Class = " scope ";"
        if (substr(last, 1, 1) == "~")
            print "touch(&destroy<Class>); }"
        else if (last == class)
            print "touch(&make<Class" (arguments == "" ? "" : ", ") arguments ">); }"
        else if (last ~ /^operator [A-Za-z]/ && last !~ /^operator (new|delete)/)
            print "using To = " substr(last, 10) "; " kind "(operator To) }"
        else
            print kind "(" last (arguments == "" ? "" : ", ") arguments ") }"
    }
}
