# Shared by the scripts that build and test for Windows; sourced after common.sh.
# shellcheck shell=bash

windows_packages=(g++-mingw-w64-x86-64-posix cmake ninja-build)

# Outside the tree: it outlives a clone, and two clones share it.
windows_cache=${LMWIDGETS_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/lmwidgets/windows}
