#!/usr/bin/env bash
# Check that Linux programs have the usual protections.
#
#   scripts/check-elf.sh [--sanitized] PROGRAM...    exit status 1 on a finding
#
# --sanitized leaves out the checked functions of the C library: a sanitizer replaces them.
set -euo pipefail

sanitized=false
if [ "${1:-}" = --sanitized ]; then
  sanitized=true
  shift
fi
[ $# -gt 0 ] || { echo "usage: check-elf.sh [--sanitized] PROGRAM..." >&2 && exit 2; }

findings=0
finding() {
  echo "check-elf: $1" >&2
  findings=$((findings + 1))
}

for program in "$@"; do
  headers=$(readelf --wide --file-header --program-headers --dynamic "$program")
  symbols=$(readelf --wide --dyn-syms "$program")
  has() { # PATTERN TEXT
    grep -qE -- "$1" <<< "$2"
  }
  has 'FLAGS_1.* PIE' "$headers" || finding "$program: it cannot be loaded at a random address"
  has '^ *GNU_RELRO ' "$headers" || finding "$program: its tables of addresses stay writable"
  has 'FLAGS_1.* NOW' "$headers" || finding "$program: its imports are resolved late, so their addresses stay writable"
  has '^ *GNU_STACK .* RW +0x' "$headers" || finding "$program: the stack is executable"
  ! has '^ *LOAD .* RWE ' "$headers" || finding "$program: a segment is both writable and executable"
  has ' __stack_chk_fail(@| |$)' "$symbols" || finding "$program: the stack is not guarded"
  has ' _ZSt21__glibcxx_assert_fail' "$symbols" || finding "$program: the checks of the C++ library are off"
  # shellcheck disable=SC2016  # a pattern, no variables
  # With probes no function moves the stack pointer by more than a page at once: it would pass the page that guards the stack.
  large_frame='sub +\$0x([0-9a-f]{5,8}|[2-9a-f][0-9a-f]{3}|1[0-9a-f]{2}[1-9a-f]|1[0-9a-f][1-9a-f]0|1[1-9a-f]00),%rsp'
  ! grep -qE "$large_frame" < <(objdump -d --no-show-raw-insn "$program") || finding "$program: large stack frames are not probed"
  "$sanitized" || has ' __mem(cpy|set|move)_chk(@| |$)' "$symbols" || finding "$program: calls of the C library are not checked"
done
[ "$findings" -eq 0 ] || exit 1
echo "check-elf: no findings"
