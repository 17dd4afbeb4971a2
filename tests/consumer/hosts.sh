# Builds and runs hosts against an installed lmwidgets; sourced by the tests beside it.
# shellcheck shell=sh

# build_host <source> <prefix> <build>: through find_package.
build_host() {
    cmake -S "$1" -B "$3" -G Ninja -DCMAKE_PREFIX_PATH="$2"
    cmake --build "$3"
}

# The folder of the shared library below a prefix.
library_folder() {
    dirname "$(find "$1" -name 'liblmwidgets.so.*' | head -n 1)"
}

# host_through_cmake <source> <prefix> <build> <program>
host_through_cmake() {
    build_host "$1" "$2" "$3"
    LD_LIBRARY_PATH=$(library_folder "$2") QT_QPA_PLATFORM=offscreen "$3/$4"
}

# host_through_pkg_config <source> <prefix> <build>: a host without CMake.
host_through_pkg_config() {
    mkdir -p "$3"
    PKG_CONFIG_PATH=$(dirname "$(find "$2" -name lmwidgets.pc)")
    export PKG_CONFIG_PATH
    # The flags are lists of words.
    # shellcheck disable=SC2046
    ${CXX:-c++} -std=c++17 -fPIC "$1/main.cpp" -o "$3/consumer" $(pkg-config --cflags --libs lmwidgets)
    cp -R "$(pkg-config --variable=themedir lmwidgets)" "$3/theme"
    LD_LIBRARY_PATH=$(library_folder "$2") QT_QPA_PLATFORM=offscreen "$3/consumer"
}
