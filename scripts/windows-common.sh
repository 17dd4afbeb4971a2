# Shared by the scripts that build and test for Windows; sourced after common.sh.
# shellcheck shell=bash

windows_packages=(g++-mingw-w64-x86-64-posix cmake ninja-build qttools5-dev-tools)
wine_packages=(fonts-dejavu-core unzip wine wine64 xauth xvfb)

# Outside the tree: it outlives a clone, and two clones share it.
windows_cache=${LMWIDGETS_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/lmwidgets/windows}

windows_path() {
    printf 'Z:%s' "${1//\//\\}"
}

# wineserver lies beside wine, or where Debian puts what is not on PATH.
wine_server() {
    local candidate
    for candidate in "$(command -v wineserver || true)" /usr/lib/wine/wineserver64 /usr/lib/wine/wineserver; do
        if [ -x "$candidate" ]; then
            "$candidate" "$@" 2>/dev/null || true
            return
        fi
    done
}

# A Windows of its own, made anew with each run: nothing of the user's own is read or written. It has its
# own desktop, so that no window manager of this machine has a say in which window is active.
start_wine() {
    local folder=$1 screen=$2
    export WINEPREFIX=$folder WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
    unset WINEARCH WAYLAND_DISPLAY
    wine_server -k
    rm -rf "$folder"
    wine wineboot --init >/dev/null 2>&1 || die "Wine does not start"
    wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null
    wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d "$screen" /f >/dev/null
    # In place of the fonts that Windows brings along.
    local font
    for font in 'MS Shell Dlg' 'MS Shell Dlg 2' 'Segoe UI' Tahoma; do
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$font" /d 'DejaVu Sans' /f >/dev/null
    done
    restart_wine
}

# add_drive LETTER FOLDER [TYPE]: takes effect with restart_wine.
add_drive() {
    ln -sfn "$2" "$WINEPREFIX/dosdevices/$1:"
    [ -z "${3:-}" ] || wine reg add 'HKLM\Software\Wine\Drives' /v "$1:" /d "$3" /f >/dev/null
}

restart_wine() {
    wine_server -k
    wine_server -w
}

stop_wine() {
    restart_wine
    rm -rf "$WINEPREFIX"
}

# use_qt FOLDER [PROGRAMS]: what a program finds without having it beside itself.
use_qt() {
    local compiler
    compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
    WINEPATH="$(windows_path "$1/bin");$(windows_path "$compiler")"
    WINEPATH+=";$(windows_path /usr/x86_64-w64-mingw32/lib)${2:+;$(windows_path "$2")}"
    QT_PLUGIN_PATH=$(windows_path "$1/plugins")
    export WINEPATH QT_PLUGIN_PATH QT_QPA_PLATFORM=windows
}
