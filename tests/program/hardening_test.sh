#!/usr/bin/env bash
# The released program is hardened as the build asks for. (Of _FORTIFY_SOURCE nothing can be seen:
# the program calls no function that it guards.)
#   hardening_test.sh PROGRAM
set -eu
for has in '--file-header DYN' '--program-headers GNU_RELRO' '--dynamic BIND_NOW' \
           '--dyn-syms __stack_chk_fail'; do
    readelf -W ${has% *} "$1" | grep -q "${has#* }" || { echo "$1: no ${has#* }" >&2; exit 1; }
done
! readelf -WS "$1" | grep -q '\.debug_info' || { echo "$1: debug leftovers" >&2; exit 1; }
