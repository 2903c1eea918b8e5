#!/usr/bin/env bash
# Build a static Qt for Windows x86-64 (Core, Gui, Widgets, Svg, Test) from the distribution's own source packages.
#
#   scripts/build-windows-sdk.sh FOLDER    about 20 minutes on two cores and 4 GiB of temporary space
#
# It downloads only the source packages of the Qt version that is installed here, from the package archive in use.
set -euo pipefail
project=$(cd "$(dirname "$0")/.." && pwd)
sdk=$(realpath -m "${1:?usage: build-windows-sdk.sh FOLDER}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
  cmake ninja-build dpkg-dev python3 g++-mingw-w64-x86-64-posix qt6-base-dev qt6-base-dev-tools libgl-dev

# Source packages come from the same archive as the binary ones. The package lists of the system are not changed.
mkdir -p "$work/sources" "$work/lists/partial" "$work/packages"
for list in /etc/apt/sources.list.d/*.sources; do
  [ ! -e "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" > "$work/sources/$(basename "$list")"
done
for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
  [ ! -e "$list" ] || sed -n 's/^deb /deb-src /p' "$list" > "$work/sources/$(basename "$list")"
done
apt=(apt-get -o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$work/sources" -o "Dir::State::lists=$work/lists"
  -o APT::Sandbox::User=root)
"${apt[@]}" update -q
(cd "$work/packages" && "${apt[@]}" source -q --download-only qt6-base qtsvg-opensource-src)
dpkg-source -x "$work"/packages/qt6-base_*.dsc "$work/base"
dpkg-source -x "$work"/packages/qtsvg-opensource-src_*.dsc "$work/svg"
version=$(sed -n 's/.*QT_REPO_MODULE_VERSION "\([0-9.]*\)".*/\1/p' "$work/base/.cmake.conf")

# The toolchain file needs the folder, although it is still empty.
mkdir -p "$sdk"
common=(-G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE="$project/cmake/mingw-w64.cmake" -DQT_WINDOWS_SDK="$sdk"
  -DCMAKE_PREFIX_PATH="$sdk" -DCMAKE_INSTALL_PREFIX="$sdk" -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF)
features=()
# Built into Qt, so that the programs need no other libraries.
for library in zlib freetype harfbuzz png jpeg pcre2 doubleconversion textmarkdownreader; do
  features+=("-DFEATURE_system_$library=OFF")
done
# Not used by Sweepwise.
for feature in sql network dbus printsupport xml vulkan icu tabletevent; do
  features+=("-DFEATURE_$feature=OFF")
done
cmake -S "$work/base" -B "$work/build-base" "${common[@]}" "${features[@]}" \
  -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DBUILD_SHARED_LIBS=OFF -DINPUT_opengl=no
cmake --build "$work/build-base"
cmake --install "$work/build-base"

python3 "$project/scripts/port-qtsvg.py" "$work/svg" "$version"
cmake -S "$work/svg" -B "$work/build-svg" "${common[@]}"
cmake --build "$work/build-svg"
cmake --install "$work/build-svg"
echo "Qt $version for Windows is in $sdk"
