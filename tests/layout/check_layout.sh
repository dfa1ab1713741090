#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: check_layout.sh detail|umbrella|layers SRC
#   detail    no public header includes one of a detail/ folder
#   umbrella  shared.h includes every public header but those of the Qt part, and nothing else
#   layers    folders do not include each other in a circle, and docs/architecture.md draws them
set -euo pipefail
rule=$1
cd -- "$2"

faults=0
fault() {
    printf '%s\n' "$*"
    faults=1
}

public_headers() {
    find . -name '*.h' ! -path '*/detail/*' ! -path ./shared.h -printf '%P\n' | sort
}

check_detail() {
    local line
    while IFS= read -r line; do
        fault "src/marlin/$line: a public header includes an internal one"
    done < <(public_headers | xargs -d '\n' grep -nE '^ *# *include *[<"].*detail/')
}

check_umbrella() {
    local wanted included line
    wanted=$(public_headers | sed -E '/^qt\//d; s|(.*)|#include <marlin/\1>|' | LC_ALL=C sort)
    included=$(grep '^#include' shared.h | LC_ALL=C sort)
    while IFS= read -r line; do
        case $line in
        "<"*) fault "src/marlin/shared.h lacks ${line#< }" ;;
        ">"*) fault "src/marlin/shared.h names what is no public header: ${line#> }" ;;
        esac
    done < <(diff <(printf '%s\n' "$wanted") <(printf '%s\n' "$included"))
}

check_layers() {
    cd ../..
    local page=docs/architecture.md
    diff --label $page --label "the includes" -u \
        <(sed -n '/^<!-- layers -->$/,/^<!-- \/layers -->$/{//d;/^```$/d;p}' $page) \
        <(scripts/layers 2>&1) ||
        fault "when the includes are right, scripts/layers --write mends the drawing"
}

case $rule in
detail) check_detail ;;
umbrella) check_umbrella ;;
layers) check_layers ;;
*) exit 2 ;;
esac
exit "$faults"
