#!/bin/sh
# Starts a Windows program under Wine with the cross-compiled libraries on its path; ends with the
# program's exit code. Wine keeps Qt's variables from a program unless they are named WINEQT_*.
prefix=$LORVO_WINDOWS/prefix
export LC_ALL="${LC_ALL:-C.UTF-8}" # Wine makes names with accents in such a locale alone
export WINEPREFIX="${WINEPREFIX:-$LORVO_WINDOWS/wine}" WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml,winemenubuilder.exe=}"
export WINEPATH="Z:$prefix/bin${WINEPATH:+;$WINEPATH}"
export WINEQT_PLUGIN_PATH="${WINEQT_PLUGIN_PATH-Z:$prefix/plugins}"
[ -z "$QT_QPA_PLATFORM" ] || export WINEQT_QPA_PLATFORM="$QT_QPA_PLATFORM"
# The offscreen platform brings no fonts, and Wine without its 32-bit half misses its own Tahoma.
export WINEQT_QPA_FONTDIR="${WINEQT_QPA_FONTDIR:-Z:/usr/share/wine/fonts}"
[ -d "$WINEPREFIX/drive_c" ] || wineboot --init >/dev/null 2>&1
fonts=$WINEPREFIX/drive_c/windows/Fonts
[ -e "$fonts/tahoma.ttf" ] || cp /usr/share/wine/fonts/tahoma*.ttf "$fonts/"
exec wine "$@"
