#!/usr/bin/env bash
# Build the Windows programs and all tests, check the programs, and run the tests under Wine in a prefix of their own.
#
#   scripts/windows.sh [CTEST_ARGUMENT...]    for instance -R tst_windowsfiles
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
source scripts/packages.sh

need "${build_packages[@]}" "${windows_packages[@]}" "${font_packages[@]}"
QT_WINDOWS_SDK=$(scripts/windows-sdk.sh)
export QT_WINDOWS_SDK
# One test scans the same prefix with the native sweepwise-cli and with the Windows one.
cmake --preset dev > /dev/null
cmake --build --preset dev --target sweepwise-cli
cmake --preset windows "-DQT_WINDOWS_SDK=$QT_WINDOWS_SDK" "-DSWEEPWISE_NATIVE_CLI=$PWD/build/dev/src/cli/sweepwise-cli" > /dev/null
cmake --build --preset windows
scripts/check-exe.sh gui build/windows/src/app/sweepwise.exe
scripts/check-exe.sh console build/windows/src/cli/sweepwise-cli.exe

work=$(mktemp -d)
export WINEPREFIX=$work/prefix
clean_up() {
  wineserver -k 2> /dev/null || true
  wineserver -w 2> /dev/null || true
  rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' INT TERM

# Wine needs one page at a fixed address. Where addresses are random, the system has put something else there once in some
# thousand starts, and the program then does not start ("failed to map the shared user data").
fixed_addresses=(setarch --addr-no-randomize)
"${fixed_addresses[@]}" true 2> /dev/null || fixed_addresses=()

export WINEDEBUG=-all
unset WINEARCH WINEDLLOVERRIDES
# A new prefix must not offer to download its two optional runtimes (mscoree, mshtml). No display is needed.
unset DISPLAY WAYLAND_DISPLAY
mkdir "$WINEPREFIX"
WINEDLLOVERRIDES='mscoree=;mshtml=' "${fixed_addresses[@]}" wine wineboot -i
# The native programs read the registry files. The server keeps the registry in memory and writes the files at its end at the
# latest: wait for its end.
wineserver -w
"${fixed_addresses[@]}" wineserver -p
# The first program starts the services, which keep its output open. So it must not be a test: CTest would wait for the output.
"${fixed_addresses[@]}" wine cmd /c exit < /dev/null > /dev/null 2>&1

# The offscreen platform finds fonts in one folder only.
mkdir "$work/fonts"
for font in truetype/noto/NotoSans-Regular.ttf truetype/noto/NotoSans-Bold.ttf opentype/noto/NotoSansCJK-Regular.ttc; do
  cp "/usr/share/fonts/$font" "$work/fonts/"
done
export WINEQT_QPA_FONTDIR="Z:${work//\//\\}\\fonts"

"${fixed_addresses[@]}" ctest --preset windows "$@"
