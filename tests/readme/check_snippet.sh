#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: check_snippet.sh README EXAMPLE: the README's first C++ block is the part of the example
# between its lines "// [readme]" and "// [/readme]".
set -euo pipefail

# shellcheck disable=SC2016 # the backquotes are Markdown's
shown=$(sed -n '/^```cpp$/,/^```$/p' "$1" | sed -n '2,${/^```$/q;p}')
real=$(sed -n '/^ *\/\/ \[readme\]$/,/^ *\/\/ \[\/readme\]$/p' "$2" | sed '1d;$d')
[ -n "$real" ] || { printf '%s has no marked part\n' "$2" && exit 1; }
diff --label "$1" --label "$2" -u <(printf '%s\n' "$shown") <(printf '%s\n' "$real")
