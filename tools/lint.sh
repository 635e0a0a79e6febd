# Sourced by ./dev: what is quick to say about the sources without running them. The thorough
# analyses are the trial `analysis`.

lint_packages=(clang-format-14 mandoc shellcheck python3)

# All checks print what they find, one place a line, and fail if there is anything.

# tracked [PATTERN...]: the files of the tree that are like one of the patterns. New ones count
# before they are added; an unpacked archive has no list of them and no others but in build/.
tracked() {
    local file pattern
    if [[ -e .git ]]; then
        git ls-files --cached --others --exclude-standard -- "$@"
        return
    fi
    find . -path ./build -prune -o -type f -printf '%P\n' | sort | while read -r file; do
        for pattern in "$@"; do
            # shellcheck disable=SC2053 # a pattern
            [[ $file != $pattern ]] || say "$file"
        done
    done
}

lint_format() { tracked '*.cpp' '*.h' | xargs -P "$jobs" -n 16 clang-format-14 --dry-run --Werror; }

# What is sourced has the variables of ./dev.
lint_shell() {
    shellcheck --external-sources --severity=warning dev .ci/run &&
        tracked '*.sh' 'examples/completion/*' | xargs shellcheck --shell=bash --severity=warning --exclude=SC2154
}

lint_man() { tracked 'docs/man/*' | xargs mandoc -T lint; }

lint_python() {
    tracked '*.py' | xargs python3 -c '
import sys
for path in sys.argv[1:]:
    with open(path, "rb") as file:
        compile(file.read(), path, "exec")'
}

# Spaces at the ends of lines, tabs, line ends of Windows and files without a last line end, in
# what people write; data for the programs and inputs of the fuzz targets may hold anything, and
# make wants tabs.
lint_text() {
    local files file status=0
    mapfile -t files < <(tracked '*' | grep -vE '^(fuzz/(seeds|finds)|examples/data)/|\.(tsv|svg)$|^debian/rules$' |
        xargs -d '\n' grep -Il '')
    ((${#files[@]} > 0)) || { say "no files"; return 1; }
    if grep -nP '[ \t\r]+$|\t' -- "${files[@]}"; then
        status=1
    fi
    # The texts of the benchmark of encodings are there to be encoded.
    if tracked '*.h' '*.cpp' | grep -v '^bench/rows/encodings' | LC_ALL=C xargs grep -nP '[^\x00-\x7F]'; then
        status=1
    fi
    for file in "${files[@]}"; do
        if [[ -n $(tail -c 1 -- "$file") ]]; then
            say "$file: no line end at its end"
            status=1
        fi
    done
    return "$status"
}

# Links between the pages, and from them to files.
lint_links() { python3 tests/docs/pages.py; }

# clang-tidy of the files named, as the build for Linux compiles them.
lint_sources() {
    [[ -e build/linux/build.ninja ]] || configure linux ON
    printf '%s\n' "$@" | xargs -P "$jobs" -n 1 clang-tidy-14 --quiet -p build/linux \
        2> >(grep -v 'warnings generated' >&2)
}

run_lint() {
    local check failed=() log
    need "${lint_packages[@]}" || fail "Cannot lint: $reason"
    log=$(mktemp)
    for check in format shell man python text links; do
        if "lint_$check" >"$log" 2>&1; then
            say "$check: nothing found"
        else
            cat "$log"
            say "$check: FOUND"
            failed+=("$check")
        fi
    done
    rm -f "$log"
    if [[ $# != 0 ]]; then
        need clang-tidy-14 || fail "Cannot lint: $reason"
        if lint_sources "$@"; then
            say "clang-tidy: nothing found"
        else
            say "clang-tidy: FOUND"
            failed+=(clang-tidy)
        fi
    fi
    [[ ${#failed[@]} == 0 ]] || fail "Lint: ${failed[*]}"
}
