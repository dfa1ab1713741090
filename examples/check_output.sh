#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: check_output.sh PROGRAM EXPECTED: runs the program in a folder of its own.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
diff -u --label expected --label printed "$2" <("$1" || printf 'exit status %s\n' "$?")
