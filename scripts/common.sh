# Shared by the scripts beside it; sourced, not run.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# What a build needs on Debian 12, and what the tests need on top of it.
build_packages=(
    g++ cmake ninja-build qtbase5-dev qttools5-dev qttools5-dev-tools fonts-dejavu-core
)
docs_packages=(doxygen qhelpgenerator-qt5)
test_packages=(
    "${docs_packages[@]}" abigail-tools at-spi2-core binutils clang-format dbus dpkg-dev fakeroot file
    g++-mingw-w64-x86-64-posix libxfixes-dev lintian openbox pkgconf python3 wine wine64 x11-utils xdotool xvfb
    xfwm4 xz-utils
)

# Set when packages were installed: what CMake found before may no longer be all there is.
reconfigure=

say() {
    printf '==> %s\n' "$*"
}

die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# need_packages NAME...: installs those that are missing; asks the network only if there are any.
need_packages() {
    local missing=() name
    command -v dpkg-query >/dev/null || {
        say "No Debian package manager here: taking it that these are installed: $*"
        return
    }
    for name in "$@"; do
        is_installed "$name" || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "not root and no sudo; install these first: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
    reconfigure=yes
}

# build PRESET [TARGET...]: configures build/PRESET where needed, and builds.
build() {
    local preset=$1 dir="$root/build/$1"
    shift
    if [ ! -f "$dir/build.ninja" ] || [ -n "$reconfigure" ]; then
        local launcher=()
        if command -v ccache >/dev/null; then
            launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
        fi
        say "Configuring build/$preset"
        (cd "$root" && cmake --preset "$preset" "${launcher[@]}" >"$root/configure.log" 2>&1) || {
            cat "$root/configure.log" >&2
            die "configuring failed"
        }
        rm -f "$root/configure.log"
    fi
    say "Building build/$preset"
    cmake --build "$dir" ${1:+--target "$@"}
}

# Qt wants a private folder for run-time files and says so where the session has none.
ensure_runtime_dir() {
    if [ -z "${XDG_RUNTIME_DIR:-}" ] || [ ! -d "$XDG_RUNTIME_DIR" ]; then
        XDG_RUNTIME_DIR=${TMPDIR:-/tmp}/lmwidgets-runtime-$(id -u)
        mkdir -p -m 0700 "$XDG_RUNTIME_DIR"
        export XDG_RUNTIME_DIR
    fi
}
