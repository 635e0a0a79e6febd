#!/usr/bin/env bash
# completion.sh SCRIPTS SCRATCH: what the completion in SCRIPTS offers, with the package
# bash-completion, where it is installed, and without.
set -u
shopt -s extglob
scripts=$(cd "$1" && pwd)
package=/usr/share/bash-completion/bash_completion
failed=0

rm -rf "$2"
mkdir -p "$2/a folder"
cd "$2" || exit 1
touch leaf.motif "my rose.motif" leaf.svg lengths.txt

# offers WITH CALL WORDS: what the call, up to its end, is completed to, between "|". The shell's
# words are given as bash splits the call, so "=" is one of its own.
offers() {
    local COMP_LINE=$2 COMP_POINT=${#2} COMP_WORDS COMP_CWORD COMP_TYPE=9 COMP_KEY=9
    local COMPREPLY=() call=${2//=/ = }
    read -ra COMP_WORDS <<<"${call//\\ /@}" # a blank behind a backslash ends no word
    COMP_WORDS=("${COMP_WORDS[@]//@/\\ }")
    [[ $call != *[[:space:]] ]] || COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    "_${COMP_WORDS[0]//-/_}"
    local found
    found=$(printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd "|")
    if [[ $found != "$3" ]]; then
        printf '%s: "%s" is completed to\n  %s\ninstead of\n  %s\n' "$1" "$2" "$found" "$3"
        failed=1
    fi
}

table() {
    local units='cm|cm/s|in|mm|mm/s|per\ sq\ cm|pt|spi' call want
    while IFS=';' read -r call want; do
        offers "$1" "$call" "$want"
    done <<TABLE
zarnex-units --;--check|--file|--help|--unit|--version
zarnex-units --c;--check
zarnex-units 2.5mm --f;--file
zarnex-units ;
zarnex-units 2.5mm ;$units
zarnex-units 2.5mm c;cm|cm/s
zarnex-units 2.5mm per\\ s;per\\ sq\\ cm
zarnex-units --unit ;$units
zarnex-units --unit=s;spi
zarnex-units --unit=in ;
zarnex-units --unit=in 3 m;mm|mm/s
zarnex-units --check 2mm ;
zarnex-units -- --5 i;in
zarnex-units -- --;
zarnex-units --file l;leaf.motif|leaf.svg|lengths.txt
zarnex-units --file=len;lengths.txt
zarnex-units --file lengths.txt ;
zarnex-units - ;
zarnex-units --help ;
zarnex-stitchplan -;--help|--help-motif|--svg|--version
zarnex-stitchplan ;a folder|leaf.motif|my rose.motif
zarnex-stitchplan l;leaf.motif
zarnex-stitchplan -- l;leaf.motif
zarnex-stitchplan --svg ;a folder|leaf.svg
zarnex-stitchplan --svg=l;leaf.svg
zarnex-stitchplan --svg=new.svg l;leaf.motif
zarnex-stitchplan --svg new.svg l;leaf.motif
zarnex-stitchplan leaf.motif ;
zarnex-stitchplan leaf.motif --s;--svg
zarnex-stitchplan --version ;
TABLE
}

# shellcheck source=/dev/null
source "$scripts/zarnex-units"
# shellcheck source=/dev/null
source "$scripts/zarnex-stitchplan"
table "bash alone"
if [[ -e $package ]]; then
    # shellcheck source=/dev/null
    source "$package"
    table "bash-completion"
fi
exit "$failed"
