# shellcheck shell=bash disable=SC2034 # the lists are used by those who source this
# Sourced by run, check and .ci/run: installs what a build needs, configures once, builds.
# Progress goes to standard error, so that the output of a program started by ./run stays its own.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

build_packages="build-essential cmake ninja-build pkg-config libfmt-dev libcli11-dev libfast-float-dev
    libedit-dev qt6-base-dev qt6-svg-dev libgtest-dev libgmock-dev python3 python3-ezdxf"
# Windows are tested without a screen and on a virtual one; their pictures need letters of both languages.
test_packages="xvfb xauth fonts-dejavu-core fonts-wqy-microhei"
sanitize_packages="clang libclang-rt-14-dev llvm"
lint_packages="clang-format clang-tidy git"

say() { printf '== %s\n' "$*" >&2; }

# fail STATUS MESSAGE: status 3 means that something has to be installed by hand.
fail() {
    printf '== %s\n' "$2" >&2
    exit "$1"
}

# quietly COMMAND…: runs it without output; what it said is shown only if it failed.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 || status=$?
    [ "$status" -eq 0 ] || cat "$log" >&2
    rm -f "$log"
    return "$status"
}

missing_packages() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s ' "$package"
    done
}

# need PACKAGE…: installs those that are missing. QUOR_NO_INSTALL=1 trusts the machine as it is.
need() {
    [ -z "${QUOR_NO_INSTALL:-}" ] || return 0
    if ! command -v dpkg-query >/dev/null; then
        command -v cmake >/dev/null && command -v ninja >/dev/null && return 0
        fail 3 "This is no Debian system. Install what these packages hold by hand, then try again: $*"
    fi
    local missing as_root=()
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail 3 "Packages are missing; install them as root: apt-get install $missing"
        as_root=(sudo)
        [ -t 0 ] || as_root+=(-n)
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
    say "installing $missing"
    quietly "${as_root[@]}" update || say "the package lists could not be renewed; trying with those at hand"
    # shellcheck disable=SC2086 # the names are words of a list
    quietly "${as_root[@]}" install -y --no-install-recommends $missing ||
        fail 3 "Packages could not be installed; do it by hand: apt-get install $missing"
}

build_folder() { [ "$1" = release ] && echo "$root/build" || echo "$root/build-$1"; }

# configure PRESET: once; a folder that was moved or left half-made is configured anew.
configure() {
    local folder options=()
    folder=$(build_folder "$1")
    if [ -f "$folder/build.ninja" ]; then
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt" 2>/dev/null && return 0
    fi
    [ ! -f "$folder/CMakeCache.txt" ] || options+=(--fresh)
    command -v ccache >/dev/null && options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    say "configuring ($1)"
    (cd "$root" && quietly cmake --preset "$1" "${options[@]}") || fail 1 "configuring failed"
}

# build PRESET [TARGET…]: everything, or the targets alone.
build() {
    local preset=$1 quiet=() targets=()
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    configure "$preset"
    [ -t 2 ] || quiet=(--quiet)
    say "building ($preset)"
    (cd "$root" && cmake --build --preset "$preset" -j "$jobs" "${targets[@]}" -- "${quiet[@]}") >&2 ||
        fail 1 "building failed"
}
