# Sourced by ./dev: runs the parts of the trials and puts their figures into
# docs/reliability.md.
#
# A part is trust/PART.sh, which is sourced in turn, in a shell of its own that has the
# functions of ./dev. It does its trial, writes the figures as Markdown to standard output and
# everything else to standard error, and fails if the trial does.

# The parts in the order of the page, each with its heading.
trust_parts=(
    "grammar:What typed quantities mean"
    "fuzzing:Fuzzing"
    "locales:Locales"
    "platforms:The same bytes on both platforms"
    "memory:No memory"
    "threads:Threads"
    "geometry:Degenerate geometry"
    "boundary:The boundary of the shared library"
    "headers:Headers"
    "abi:Binary compatibility"
    "analysis:Static analysis and hardening"
    "tests:How good the tests are"
)

trust_page=docs/reliability.md

part_names() { printf '%s\n' "${trust_parts[@]%%:*}"; }

# section PART FILE: what stands in FILE between the marks of PART.
section() {
    [[ -e $2 ]] || return 0
    awk -v part="$1" '
        $0 == "<!-- end " part " -->" { inside = 0 }
        inside && $0 != "Not run yet."
        $0 == "<!-- " part " -->" { inside = 1 }' "$2"
}

# write_page: the page, with the new figures of the parts that ran and the old ones of the rest.
write_page() {
    local entry part fresh
    cat <<'END'
# Reliability

What was tried to break the library, and what came of it. Written by `./dev trust`, a
section a part, each as measured on its day.
END
    for entry in "${trust_parts[@]}"; do
        part=${entry%%:*}
        fresh=build/trust/$part.md
        printf '\n## %s\n\n<!-- %s -->\n' "${entry#*:}" "$part"
        if [[ -e $fresh ]]; then
            printf 'Measured on %s.\n\n' "$(date -u -r "$fresh" +%Y-%m-%d)"
            cat "$fresh"
        elif [[ -n $(section "$part" "$trust_page") ]]; then
            section "$part" "$trust_page"
        else
            echo "Not run yet."
        fi
        printf '<!-- end %s -->\n' "$part"
    done
}

run_trials() {
    local part failed=() start status
    # shellcheck disable=SC2046 # one word a part
    [[ $# != 0 ]] || set -- $(part_names)
    for part in "$@"; do
        part_names | grep -qx "$part" || unknown "trial: $part (there are: $(part_names | xargs))"
    done
    mkdir -p build/trust
    rm -f build/trust/*.md
    for part in "$@"; do
        say "" "=== $part ==="
        start=$SECONDS status=0
        # In the background, because the shell would not stop at a failure inside of an `if`.
        # shellcheck source=/dev/null
        (source "trust/$part.sh") >"build/trust/$part.new" </dev/null &
        wait $! || status=$?
        if ((status == 0)); then
            mv "build/trust/$part.new" "build/trust/$part.md"
            cat "build/trust/$part.md"
            say "$part: passed in $((SECONDS - start)) s"
        else
            cat "build/trust/$part.new"
            failed+=("$part")
            say "$part: FAILED in $((SECONDS - start)) s"
        fi
    done
    write_page >build/trust/page
    mv build/trust/page "$trust_page"
    say "" "Figures: $trust_page"
    [[ ${#failed[@]} == 0 ]] || fail "Failed: ${failed[*]}"
}
