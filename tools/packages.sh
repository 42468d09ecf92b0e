# Sourced by ./run and ./test: which Debian packages a job needs, and installing those that are missing.

# What building and starting the program takes; docs/dependencies.md says why.
run_packages="g++ cmake ninja-build pkg-config python3 python3-pil qt6-base-dev libxcb-xinput-dev libmount-dev libsystemd-dev nlohmann-json3-dev fonts-liberation"
# What testing takes besides.
test_packages="libgtest-dev libgmock-dev clang-format librsvg2-bin xvfb openbox picom hsetroot xdotool imagemagick
    x11-utils xclip at-spi2-core gir1.2-atspi-2.0 python3-gi libglib2.0-bin dbus strace"
# What building for Windows takes.
windows_packages="g++ cmake ninja-build python3 python3-pil g++-mingw-w64-x86-64-posix"
# What the long tests take besides: a fuzzer, and a second opinion about memory.
long_packages="clang-14 libclang-rt-14-dev valgrind"
# What looking for mistakes without running takes besides.
tidy_packages="clang-tidy"

fail() {
    echo "$1" >&2
    exit 1
}

# missing_packages NAME...: those that are not installed.
missing_packages() {
    local installed
    installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p')
    local name
    for name in "$@"; do
        grep -qxF -- "$name" <<<"$installed" || echo "$name"
    done
}

# need_packages NAME...: installs what is missing and nothing else.
need_packages() {
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
        fail "This script installs what it needs with apt, and there is no apt here. Needed: $*"
    local missing
    missing=$(missing_packages "$@" | tr '\n' ' ')
    [ -n "$missing" ] || return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "These packages are missing, and installing them takes root or sudo: $missing"
        as_root=(sudo)
    fi
    echo "Installing: $missing"
    # shellcheck disable=SC2086 # names, one word each
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null 2>&1 ||
        { "${as_root[@]}" apt-get update -qq &&
            "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null; } ||
        fail "apt could not install: $missing"
}

# build PRESET [TARGET...]: configures where that has not been done, then builds what has changed.
build() {
    local preset=$1 folder=$2
    shift 2
    [ -f "$folder/build.ninja" ] || cmake --preset "$preset" >/dev/null || fail "CMake could not configure $preset."
    ninja -C "$folder" "$@" || fail "The build of $preset failed."
}
