#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: check_page.sh PROGRAM PAGE
# The page is what the program prints.
set -euo pipefail
diff -U 0 --label "$2" --label "the records" "$2" <("$1") || {
    printf 'If the change is meant: %s > %s\n' "$1" "$2"
    exit 1
}
