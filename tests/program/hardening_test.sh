#!/usr/bin/env bash
# The released program is hardened as the build asks for. (Of _FORTIFY_SOURCE nothing can be seen:
# the program calls no function that it guards.)
#   hardening_test.sh PROGRAM
set -eu
program=$1
has() { readelf -W "$1" "$program" | grep -qE "$2" || { echo "$program: no $3" >&2; exit 1; }; }

has --file-header 'Type: +DYN' 'position-independent executable'
has --program-headers GNU_RELRO 'read-only relocations'
has --dynamic BIND_NOW 'binding at start'
has --dyn-syms '__stack_chk_fail' 'stack protector'
! readelf -WS "$program" | grep -q '\.debug_info' || { echo "$program: debug leftovers" >&2; exit 1; }
