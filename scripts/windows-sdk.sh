#!/usr/bin/env bash
# Print the folder of a static Qt for Windows; progress goes to standard error.
#
# It is the folder in QT_WINDOWS_SDK, or else one in the user's cache. The latter is made when it is missing: unpacked from an
# archive beside the project if there is one for the host's Qt version, or else built from the distribution's source packages.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ -n "${QT_WINDOWS_SDK:-}" ]; then
  if [ ! -d "$QT_WINDOWS_SDK/lib/cmake/Qt6" ]; then
    echo "windows-sdk: QT_WINDOWS_SDK holds no Qt 6: $QT_WINDOWS_SDK" >&2
    exit 1
  fi
  realpath "$QT_WINDOWS_SDK"
  exit
fi

# A cross build needs the same Qt version for host and target.
version=$(sed -n 's/^set(PACKAGE_VERSION "\([0-9.]*\)").*/\1/p' /usr/lib/*/cmake/Qt6/Qt6ConfigVersionImpl.cmake | head -n 1)
if [ -z "$version" ]; then
  echo "windows-sdk: the host's Qt 6 is not installed (qt6-base-dev)" >&2
  exit 1
fi
archive=../shared/windows-sdk/qt-$version-windows-static.tar.xz
cache=${XDG_CACHE_HOME:-$HOME/.cache}/sweepwise
sdk=$cache/qt-$version-windows

mkdir -p "$cache"
exec 9> "$cache/lock"
flock 9
if [ ! -d "$sdk" ]; then
  # Made under another name and renamed at the end: a folder with the final name is always complete.
  unfinished=$(mktemp -d "$cache/making.XXXXXX")
  trap 'rm -rf "$unfinished"' EXIT
  if [ -f "$archive" ]; then
    echo "Unpacking $(basename "$archive")" >&2
    tar -xJf "$archive" -C "$unfinished" --strip-components=1
  else
    echo "Building Qt $version for Windows, once; this takes about 20 minutes on two cores" >&2
    scripts/build-windows-sdk.sh "$unfinished" >&2
  fi
  chmod 755 "$unfinished"
  mv "$unfinished" "$sdk"
  trap - EXIT
fi
echo "$sdk"
