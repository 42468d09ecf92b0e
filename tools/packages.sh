# Sourced by ./run, ./test and ./package: which Debian packages a job needs, and installing those that are missing.

# What building and starting the program takes; docs/dependencies.md says why.
run_packages="g++ cmake ninja-build pkg-config python3 python3-pil qt6-base-dev qt6-wayland libxcb-xinput-dev libsystemd-dev libudev-dev nlohmann-json3-dev fonts-liberation"
# What testing takes besides.
test_packages="libgtest-dev libgmock-dev clang-format librsvg2-bin xvfb openbox picom hsetroot xdotool imagemagick
    x11-utils xclip sway weston wl-clipboard at-spi2-core gir1.2-atspi-2.0 python3-gi libglib2.0-bin dbus strace
    desktop-file-utils appstream mandoc dpkg-dev file zsh fish"
# What building for Windows takes, and trying that here.
windows_build_packages="g++ cmake ninja-build python3 python3-pil nlohmann-json3-dev g++-mingw-w64-x86-64-posix"
windows_packages="$windows_build_packages googletest wine64 fonts-wine nsis zip
    xvfb xauth openbox picom hsetroot xdotool xclip fonts-liberation"
# What making packages takes besides.
linux_package_packages="git dpkg-dev file rpm lintian"
windows_package_packages="git nsis zip"
source_package_packages="git xz-utils"
# What the long tests take besides: a fuzzer, and a second opinion about memory.
long_packages="clang-14 libclang-rt-14-dev valgrind debootstrap"
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

# full_disk FOLDER: whether there is less room left there than a build or an installation may want for one file.
full_disk() {
    local free
    free=$(df --output=avail -k -- "$1" 2>/dev/null | tail -n 1) && [ -n "$free" ] && [ "$free" -lt 51200 ]
}

# reason_of LOG: in one sentence, why apt could not do what it was asked.
reason_of() {
    if grep -qE 'enough free space|No space left on device' "$1"; then
        echo "the disk is full"
    elif grep -qE 'Could not get lock|Unable to acquire the dpkg' "$1"; then
        echo "another program is installing packages"
    elif grep -qE 'Temporary failure resolving|Could not resolve|Could not connect|Unable to connect|Connection (failed|timed out|refused)|Network is unreachable' "$1"; then
        echo "the package servers cannot be reached (no network?)"
    elif grep -qE 'Permission denied|Read-only file system|are you root|is not in the sudoers|password is required|incorrect password' "$1"; then
        echo "this user may not"
    elif grep -qE 'Unable to locate package|no installation candidate' "$1"; then
        echo "this system's package lists do not have all of them; they are Debian 12's names"
    else
        grep -E '^E: ' "$1" | head -n 1 | sed 's/^E: //' | grep . || tail -n 1 "$1"
    fi
}

# apt_get LOG ARGUMENT...: runs it as root and shows on one line of a terminal how far it is.
apt_get() {
    local log=$1 as_root=()
    shift
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive \
        apt-get -o DPkg::Lock::Timeout=60 -o Acquire::Retries=2 "$@" 2>&1 </dev/null | tee -a "$log" | show_progress
    return "${PIPESTATUS[0]}"
}

show_progress() {
    local line
    while IFS= read -r line; do
        case "$line" in
        Get:* | Unpacking* | Setting\ up*) [ ! -t 1 ] || printf '\r\033[K%.78s' "$line" ;;
        esac
    done
    [ ! -t 1 ] || printf '\r\033[K'
}

# need_packages NAME...: installs what is missing and nothing else.
need_packages() {
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
        fail "This script installs what it needs with apt, which is not here. Needed are, by their names in Debian 12: $(echo "$@")"
    local missing
    missing=$(missing_packages "$@" | tr '\n' ' ')
    [ -n "$missing" ] || return 0
    [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
        fail "These packages are missing, and installing them takes root or sudo: $missing"
    [ "$(id -u)" -eq 0 ] || sudo -v || fail "These packages are missing, and this user may not install them: $missing"
    echo "Installing: $missing"
    local log
    log=$(mktemp 2>/dev/null) || fail "Nothing can be installed: $(full_disk "${TMPDIR:-/tmp}" && echo "the disk is full" || echo "no file can be made in ${TMPDIR:-/tmp}")."
    # shellcheck disable=SC2086 # names, one word each
    apt_get "$log" install -y --no-install-recommends $missing || {
        apt_get "$log" update && apt_get "$log" install -y --no-install-recommends $missing
    } || {
        local reason
        reason=$(reason_of "$log")
        rm -f "$log"
        fail "Could not be installed, because $reason: $missing"
    }
    rm -f "$log"
}

# build PRESET FOLDER [TARGET...]: configures where that has not been done as the preset is now, then builds what has
# changed.
build() {
    local preset=$1 folder=$2
    shift 2
    { [ "$folder/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset" >/dev/null; } && ninja -C "$folder" "$@" && return
    full_disk . && fail "The build of $preset failed: the disk is full."
    [ -w . ] || fail "The build of $preset failed: this user may not write into $PWD."
    fail "The build of $preset failed."
}
