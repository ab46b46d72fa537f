# Shell functions that the run scripts share. Sourced by bash, from the root of the tree.

say() { printf '\n== %s\n' "$*"; }

die() {
    printf '%s: %s\n' "$(basename "$0")" "$1" >&2
    exit "${2:-1}"
}

BUILD_PACKAGES="g++ cmake ninja-build pkg-config qtbase5-dev libqt5websockets5-dev extra-cmake-modules ccache"
GALLERY_PACKAGES="fonts-dejavu-core"
TEST_PACKAGES="libgtest-dev xvfb xauth openbox xdotool wmctrl x11-utils imagemagick fonts-dejavu-core nginx-light python3 python3-websockets openssl"
CHECK_PACKAGES="clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev clazy cppcheck codespell gcovr"
BENCHMARK_PACKAGES="libbenchmark-dev libboost-dev libsigc++-2.0-dev libcurl4-openssl-dev curl valgrind"

# need_packages NAME...: installs what is missing of the named packages, and says so.
need_packages() {
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
        die "this machine has no apt-get; install these packages by other means: $*" 2
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null | grep -q '^installed$' || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing packages: ${missing[*]}"
    local root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || die "not root and no sudo; install these packages first: ${missing[*]}" 2
        root=(sudo)
    fi
    "${root[@]}" apt-get update -q
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# configure PRESET [OPTION...]: configures once; an existing build directory follows changes by itself.
configure() {
    local preset=$1
    shift
    export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    if [ ! -f "build/$preset/build.ninja" ] || [ $# -gt 0 ]; then
        say "Configuring build/$preset"
        cmake --preset "$preset" "$@"
    fi
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    say "Building build/$preset"
    cmake --build "build/$preset" ${1:+--target "$@"}
}
