# Reads what abidw writes about the library, given twice, and writes what hosts are compiled to
# rely on, a line a fact:
#
#   CLASS: 16 bytes
#   CLASS: base BASE at 0
#   CLASS: at 8 double value_
#   CLASS: slot 2 int isValid
#   MANGLED: returns double
#
# Of the classes and functions of containers those for int stand for all, which come of the same
# templates. Where a function has parameters, its mangled name tells.

function attribute(name,    at, rest) {
    at = index($0, " " name "='")
    if (at == 0)
        return ""
    rest = substr($0, at + length(name) + 3)
    rest = substr(rest, 1, index(rest, "'") - 1)
    gsub(/&lt;/, "<", rest)
    gsub(/&gt;/, ">", rest)
    gsub(/&apos;/, "'", rest)
    gsub(/&amp;/, "\\&", rest)
    return rest
}

function typeName(id,    of) {
    of = target[id]
    if (kind[id] == "pointer")
        return typeName(of) "*"
    if (kind[id] == "lvalue")
        return typeName(of) "&"
    if (kind[id] == "rvalue")
        return typeName(of) "&&"
    if (kind[id] == "array")
        return typeName(of) "[" extent[id] "]"
    if (kind[id] == "typedef")
        return typeName(of)
    if (kind[id] == "qualified")
        return typeName(of) qualifiers[id]
    return id in names ? names[id] : "function"
}

# What belongs to the library and not to its inside.
function isShown(name) {
    if (name ~ /^(ZList|ZXArray|ZSortList|ZListNode|zarnex::ZListIterator)</)
        return name ~ /^[A-Za-z:]*<int[,>]/
    return name ~ /^(zarnex::)?[A-Z]/ || name ~ /^(yy_scan|tag[A-Z]+|_GUID)$/
}

FNR == 1 { depth = 0; scope[0] = "" }

/<(namespace|class|union)-decl .*[^\/]>$|<(namespace|class|union)-decl .*'>$/ && !/\/>$/ {
    ++depth
    scope[depth] = scope[depth - 1] attribute("name") "::"
}

NR == FNR && / id='/ {
    id = attribute("id")
    target[id] = attribute("type-id")
    if (/<pointer-type-def/)
        kind[id] = "pointer"
    else if (/<reference-type-def/)
        kind[id] = attribute("kind")
    else if (/<array-type-def/)
        kind[id] = "array"
    else if (/<typedef-decl/)
        kind[id] = "typedef"
    else if (/<qualified-type-def/) {
        kind[id] = "qualified"
        qualifiers[id] = (/ const='yes'/ ? " const" : "") (/ volatile='yes'/ ? " volatile" : "")
    } else if (/<(class|union)-decl/)
        names[id] = /\/>$/ ? scope[depth] attribute("name") : substr(scope[depth], 1, length(scope[depth]) - 2)
    else if (/<(type|enum)-decl/)
        names[id] = attribute("name")
    if (/<array-type-def/)
        lastArray = id
}
NR == FNR && /<subrange/ && extent[lastArray] == "" { extent[lastArray] = attribute("length") }

NR != FNR && depth > 0 {
    class = substr(scope[depth], 1, length(scope[depth]) - 2)
    shown = isShown(class)
}
NR != FNR && shown && /<class-decl .*size-in-bits/ { print class ": " attribute("size-in-bits") / 8 " bytes" }
NR != FNR && shown && /<base-class/ {
    print class ": base " typeName(attribute("type-id")) " at " attribute("layout-offset-in-bits") / 8
}
NR != FNR && /<data-member/ { offset = attribute("layout-offset-in-bits") }
NR != FNR && /<member-function/ { slot = attribute("vtable-offset") }
NR != FNR && shown && offset != "" && /<var-decl/ {
    print class ": at " offset / 8 " " typeName(attribute("type-id")) " " attribute("name")
}
/<\/data-member/ { offset = "" }
/<function-decl/ { function_ = attribute("name"); mangled = attribute("mangled-name"); exported = / elf-symbol-id=/ }
NR != FNR && /<return / {
    result = typeName(attribute("type-id"))
    if (slot != "" && shown)
        print class ": slot " slot " " (slot < 0 ? "" : result " ") function_
    if (exported && result != "void" && (depth == 0 || shown))
        print mangled ": returns " result
}
/<\/function-decl/ { exported = 0 } # what follows may be the type of a pointer to a function
/<\/member-function/ { slot = "" }

/<\/(namespace|class|union)-decl>/ { --depth }
