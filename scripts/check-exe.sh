#!/usr/bin/env bash
# Check that Windows programs need only libraries of the system and have the usual protections.
#
#   scripts/check-exe.sh gui|console PROGRAM.exe...    lists each program's imports; exit status 1 on a finding
set -euo pipefail

kind=${1:?usage: check-exe.sh gui|console PROGRAM.exe...}
shift
case "$kind" in
  gui) subsystem='Windows GUI' ;;
  console) subsystem='Windows CUI' ;;
  *) echo "check-exe: neither gui nor console: $kind" >&2 && exit 2 ;;
esac

# Libraries in the system folder of every Windows 10. A library of the compiler or of Qt would have to be installed with the program.
system_dlls=(
  advapi32 api-ms-win-* authz bcrypt comctl32 comdlg32 crypt32 d2d1 d3d9 d3d11 dnsapi dwmapi dwrite dxgi gdi32 imm32
  iphlpapi kernel32 mpr msvcrt netapi32 ntdll ole32 oleaut32 opengl32 powrprof rpcrt4 secur32 setupapi shcore shell32 shlwapi
  ucrtbase user32 userenv usp10 uxtheme version winmm winspool.drv ws2_32 wtsapi32
)
flags=(HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT)

is_system_dll() {
  local name=${1,,} known
  name=${name%.dll}
  for known in "${system_dlls[@]}"; do
    # shellcheck disable=SC2053  # the known names are patterns
    [[ $name == $known ]] && return 0
  done
  return 1
}

findings=0
finding() {
  echo "check-exe: $1" >&2
  findings=$((findings + 1))
}

for program in "$@"; do
  headers=$(x86_64-w64-mingw32-objdump -p "$program")
  mapfile -t imports < <(sed -n 's/^[[:space:]]*DLL Name: //p' <<< "$headers" | sort -fu)
  echo "$(basename "$program"): $(stat -c %s "$program") bytes, imports ${imports[*]}"
  [ ${#imports[@]} -gt 0 ] || finding "$program: no imports were read"
  for import in "${imports[@]}"; do
    is_system_dll "$import" || finding "$program: imports $import, which is no part of the system"
  done
  for flag in "${flags[@]}"; do
    grep -qE "^[[:space:]]+$flag\$" <<< "$headers" || finding "$program: the flag $flag is missing"
  done
  # Without relocations the system cannot load the program at another address, even with the flags above.
  grep -qE '^Entry 5 0{16} ' <<< "$headers" && finding "$program: there are no relocations"
  grep -qE "^Subsystem[[:space:]].*\($subsystem\)" <<< "$headers" || finding "$program: the subsystem is not $subsystem"
done
[ "$findings" -eq 0 ]
