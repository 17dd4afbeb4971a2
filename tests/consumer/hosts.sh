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

# hosts_of_a_form <source> <prefix> <build> <library path>: hosts whose window was drawn in Designer. The
# one that loads its window when it runs needs the plugin, which finds the library by itself or in the
# library path.
hosts_of_a_form() {
    build_host "$1" "$2" "$3"
    LD_LIBRARY_PATH=$(library_folder "$2") QT_QPA_PLATFORM=offscreen "$3/built"
    plugins=$(dirname "$(dirname "$(find "$2" -name '*lmwidgets_designer.so')")")
    LD_DEBUG=files LD_DEBUG_OUTPUT=$3/loading LD_LIBRARY_PATH=$4 QT_PLUGIN_PATH=$plugins \
        QT_QPA_PLATFORM=offscreen "$3/loaded" "$1/../allwidgets.ui"
    # This machine may have the library too; it is the one below the prefix that is tried here.
    for name in liblmwidgets_designer.so liblmwidgets.so; do
        grep -q "calling init: $2/.*$name" "$3"/loading.* || {
            echo "$name was not loaded from $2"
            return 1
        }
    done
}
