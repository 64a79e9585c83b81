#!/usr/bin/env bash
# Tells every source that is not written as .clang-format wants it, and fails when there is one.
#
#   check_format.sh [CLANG-FORMAT]   version 14, whose layout is not that of others
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
format=${1:-clang-format}

[[ $("$format" --version) == *" version 14."* ]] || {
  printf 'error: clang-format 14 is wanted, this is: %s\n' "$("$format" --version)" >&2
  exit 1
}
find src tests tools bench scripts \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 -P "$(nproc)" -n 32 "$format" --dry-run --Werror
