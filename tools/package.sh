# Sourced by ./dev: makes what is published, in build/packages/, and tries it.
#
# The Debian packages are built from the source archive, so that it is known to be whole. The same
# sources give the same bytes: every file has the time of the latest entry in debian/changelog.

packages=$PWD/build/packages
work=$packages/work
debian=(libzarnex-foundation1 libzarnex-foundation-dev zarnex-tools)
host_sources=$PWD/tests/package

package_files() {
    if [[ -e .git ]]; then
        git ls-files -z
    else
        find . -path ./build -prune -o ! -type d -printf '%P\0'
    fi
}

# source_archive NAME: NAME.tar.xz, with everything in a folder NAME.
source_archive() {
    say "" "=== source archive ==="
    package_files | LC_ALL=C sort -z |
        tar --create --null --no-recursion --files-from=- --transform="flags=r;s,^,$1/," \
            --owner=0 --group=0 --numeric-owner --mode=u+rwX,go+rX,go-w \
            --mtime="@$SOURCE_DATE_EPOCH" |
        xz -T1 >"$packages/$1.tar.xz"
    say "$(tar --list --file="$packages/$1.tar.xz" | wc -l) files"
}

# consume VARIANT NAME SETTING...: builds and runs a host outside the tree.
consume() {
    local variant=$1 folder=$work/$2
    shift 2
    cmake -D VARIANT="$variant" -D WORK_DIR="$folder" -D GENERATOR=Ninja "$@" \
        -P "$host_sources/consume.cmake"
}

# is TEXT COMMAND...: the last line of what the command prints.
is() {
    local text=$1 printed
    shift
    printed=$("$@" | tail -n 1 | tr -d '\r') || true
    [[ $printed == "$text" ]] || fail "\"$*\" printed \"$printed\" instead of \"$text\""
}

# try_debian PROGRAMS VARIANT SETTING...: the files of the packages, at work.
try_debian() {
    local programs=$1 variant=$2
    shift 2
    is "cm   0.2 cm  0.25" "$programs/zarnex-units" "2.5 mm" cm
    is "zarnex-stitchplan $version" "$programs/zarnex-stitchplan" --version
    consume "$variant" "debian-$variant" -D COMPILER=c++ -D PKG_CONFIG=pkg-config "$@"
}

# field PACKAGE FIELD TEXT: what a field of the control file says.
field() {
    local found
    found=$(dpkg-deb --field "$packages/$1_${version}_amd64.deb" "$2")
    [[ $found == *"$3"* ]] || fail "$2 of $1 is \"$found\", without \"$3\""
}

# build_debian NAME: builds the packages from the source archive.
build_debian() {
    say "" "=== Debian packages ==="
    tar --extract --file="$packages/$1.tar.xz" --directory="$work"
    (cd "$work/$1" && DEB_BUILD_OPTIONS="parallel=$jobs nocheck" \
        dpkg-buildpackage --build=binary --no-sign) </dev/null >"$work/debian.log" 2>&1 ||
        fail "$(tail -n 40 "$work/debian.log")" "The build failed"
    lintian --allow-root --fail-on error,warning "$work"/*.changes || fail "lintian objects"
    say "lintian has nothing to object to"
    mv "$work"/*.deb "$packages"
}

# check_debian ROOT: the packages unpacked into ROOT.
check_debian() {
    local package internal
    field libzarnex-foundation-dev Depends "libzarnex-foundation1 (= $version)"
    field zarnex-tools Depends "libzarnex-foundation1 (>= "
    for package in "${debian[@]}"; do
        dpkg-deb --extract "$packages/${package}_${version}_amd64.deb" "$1"
    done
    if readelf --dynamic "$1"/usr/bin/zarnex-* | grep -E 'R(UN)?PATH'; then
        fail "An installed program names a place of libraries"
    fi
    LD_LIBRARY_PATH=$1/usr/lib/x86_64-linux-gnu \
        try_debian "$1/usr/bin" prefix -D PREFIX="$1/usr"
    internal=$(find "$1" -path '*/zarnex/*internal*')
    [[ -z $internal ]] || fail "Of no concern to hosts: $internal"
    say "Unpacked elsewhere they work: programs, find_package, pkg-config"
}

# install_debian: the packages installed, tried, and removed without a trace, where that can be.
install_debian() {
    local apt=() files=() path status=0
    if [[ -n $(dpkg-query --show --showformat='${db:Status-Abbrev}\n' "${debian[@]}" 2>/dev/null |
        grep '^i') ]]; then
        say "Not tried installed: they are on this machine already"
        return
    fi
    if [[ $(id -u) != 0 ]]; then
        if ! sudo -n true 2>/dev/null; then
            say "Not tried installed: neither root nor sudo without a password"
            return
        fi
        apt=(sudo -n)
    fi
    files=("${debian[@]/#/$packages/}")
    files=("${files[@]/%/_${version}_amd64.deb}")
    apt+=(env DEBIAN_FRONTEND=noninteractive apt-get -y -q)
    "${apt[@]}" install "${files[@]}" \
        </dev/null >"$work/apt.log" 2>&1 || fail "$(<"$work/apt.log")" "Cannot install them"
    dpkg --listfiles "${debian[@]}" | grep zarnex | sort -u >"$work/installed"
    (try_debian /usr/bin system) || status=1
    "${apt[@]}" purge "${debian[@]}" </dev/null >>"$work/apt.log" 2>&1 ||
        fail "$(<"$work/apt.log")" "Cannot remove them"
    ((status == 0)) || fail "Installed, they do not work"
    while read -r path; do
        [[ ! -e $path ]] || fail "Left behind: $path"
    done <"$work/installed"
    say "Installed they work: programs, find_package, pkg-config"
    say "Removed, with all $(wc -l <"$work/installed") files and folders"
}

windows_zip() {
    local wine
    say "" "=== Windows zip ==="
    if ! need_windows; then
        say "Not made: $reason"
        return
    fi
    configure windows OFF
    cmake --build --preset windows -j "$jobs" \
        --target zarnex-foundation zarnex-units zarnex-stitchplan
    cpack --config build/windows/CPackConfig.cmake -G ZIP -B "$work" >"$work/zip.log" ||
        fail "$(<"$work/zip.log")" "Cannot pack"
    mv "$work"/*.zip "$packages"

    start_wine
    wine=$(wine_loader)
    (cd "$work" && cmake -E tar xf "$packages"/*.zip)
    local prefix=$work/$1-windows-x64
    is "cm   0.2 cm  0.25" "$wine" "$prefix/bin/zarnex-units.exe" "2.5 mm" cm
    is "zarnex-stitchplan $version" "$wine" "$prefix/bin/zarnex-stitchplan.exe" --version
    consume prefix windows-host -D PREFIX="$prefix" -D EMULATOR="$wine" -D SUFFIX=.exe \
        -D TOOLCHAIN="$PWD/cmake/mingw-w64-x86_64.cmake"
    say "Unpacked, it works under Wine: programs, find_package"
}

make_packages() {
    need dpkg-dev debhelper libedit-dev lintian pkg-config || fail "Cannot make packages: $reason"
    version=$(dpkg-parsechangelog --show-field Version)
    grep -q "^project(.* VERSION $version " CMakeLists.txt ||
        fail "debian/changelog and CMakeLists.txt disagree on the version"
    SOURCE_DATE_EPOCH=$(dpkg-parsechangelog --show-field Timestamp)
    export SOURCE_DATE_EPOCH
    rm -rf "$packages"
    mkdir -p "$work"
    source_archive "zarnex-foundation-$version"
    build_debian "zarnex-foundation-$version"
    check_debian "$work/root"
    install_debian
    windows_zip "zarnex-foundation-$version"
    rm -rf "$work"
    (cd "$packages" && sha256sum -- * >SHA256SUMS)
    say "" "=== build/packages ===" "$(<"$packages/SHA256SUMS")"
}
