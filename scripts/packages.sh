# Sourced by the other scripts: the packages that they need from the distribution, and a function that installs them.
# shellcheck shell=bash disable=SC2034

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-base-private-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 libgl-dev
  qt6-l10n-tools qt6-tools-dev qt6-tools-dev-tools qt6-translations-l10n python3)
font_packages=(fonts-noto-core fonts-noto-cjk fonts-noto-color-emoji)
benchmark_packages=(libbenchmark-dev)
browser_packages=(chromium chromium-driver firefox-esr)
windows_packages=(g++-mingw-w64-x86-64-posix wine wine64 librsvg2-bin nsis python3 xz-utils xvfb x11-utils)

need() { # PACKAGE...
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  local as_root=()
  [ "$(id -u)" = 0 ] || as_root=(sudo)
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -q
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}
