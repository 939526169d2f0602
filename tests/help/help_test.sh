#!/usr/bin/env bash
# The help page: valid, and of the size that the resources promise.
#   help_test.sh PAGE
set -eu
[ "$(stat -c %s "$1")" = 7231 ] || { echo "help page: not 7231 bytes" >&2; exit 1; }
tidy -quiet -errors -latin1 "$1"
