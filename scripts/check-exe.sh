#!/usr/bin/env bash
# Check that no library beside a Windows program can run in its place, and that the program has the usual protections.
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

# What a program imports is loaded before main(). Windows keeps these two as known: it takes them from the system folder, whatever lies
# beside the program. cmake/WindowsProgram.cmake names the libraries that are loaded later.
known_dlls=(kernel32.dll msvcrt.dll)
flags=(HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT)

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
    [[ " ${known_dlls[*]} " == *" ${import,,} "* ]] || finding "$program: imports $import, which a file beside it can replace"
  done
  for flag in "${flags[@]}"; do
    grep -qE "^[[:space:]]+$flag\$" <<< "$headers" || finding "$program: the flag $flag is missing"
  done
  # Without relocations the system cannot load the program at another address, even with the flags above.
  grep -qE '^Entry 5 0{16} ' <<< "$headers" && finding "$program: there are no relocations"
  x86_64-w64-mingw32-objdump -h "$program" | paste - - | grep -w CODE | grep -vw READONLY > /dev/null &&
    finding "$program: a section is both writable and executable"
  # Symbols are stripped. These are texts of functions that are linked only if the protected code calls them.
  grep -qaF 'stack smashing detected' "$program" || finding "$program: the stack is not guarded"
  grep -qaF "Assertion '%s' failed" "$program" || finding "$program: the checks of the C++ library are off"
  # LOAD_LIBRARY_SEARCH_SYSTEM32, at offset 78 of the load configuration: Windows looks for imports in the system folder alone.
  configuration=$(x86_64-w64-mingw32-objdump -s -j .loadcfg "$program" 2> /dev/null || true)
  start=$(sed -n 's/^ \([0-9a-f]*\) 70000000 .*/\1/p' <<< "$configuration")
  base=$(sed -n 's/^ImageBase[[:space:]]*//p' <<< "$headers")
  entry=$(printf '%016x' $((16#${start:-$base} - 16#$base)))
  grep -qE "^Entry a $entry 00000070 " <<< "$headers" || finding "$program: there is no load configuration"
  grep -qE '^ [0-9a-f]+40 ([0-9a-f]{8} ){3}[0-9a-f]{4}0008 ' <<< "$configuration" ||
    finding "$program: Windows may look for imports beside it"
  grep -qE "^Subsystem[[:space:]].*\($subsystem\)" <<< "$headers" || finding "$program: the subsystem is not $subsystem"
done
[ "$findings" -eq 0 ]
