#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: check_layout.sh detail|umbrella|floors SRC
#   detail    no public header includes one of a detail/ folder
#   umbrella  shared.h includes every public header but those of the Qt part, and nothing else
#   floors    includes point down, and never in a circle between folders of one floor
set -euo pipefail
rule=$1
cd -- "$2"

faults=0
fault() {
    printf '%s\n' "$*"
    faults=1
}

public_headers() { find . -name '*.h' ! -path '*/detail/*' ! -path ./shared.h -printf '%P\n' | sort; }

check_detail() {
    local line
    while IFS= read -r line; do
        fault "src/$line: a public header includes an internal one"
    done < <(public_headers | xargs -d '\n' grep -nE '^ *# *include *[<"].*detail/')
}

check_umbrella() {
    local wanted included line
    wanted=$(public_headers | sed -E '/^qt\//d; s|(.*)|#include <marlin/\1>|' | LC_ALL=C sort)
    included=$(grep '^#include' shared.h | LC_ALL=C sort)
    while IFS= read -r line; do
        case $line in
        "<"*) fault "src/shared.h lacks ${line#< }" ;;
        ">"*) fault "src/shared.h names what is no public header: ${line#> }" ;;
        esac
    done < <(diff <(printf '%s\n' "$wanted") <(printf '%s\n' "$included"))
}

declare -A floor=([platform]=1 [resources]=2 [qt]=2 [base]=3 [settings]=4 [geometry]=4
    [color]=4 [runtime]=4 [records]=5 [keywords]=5 [gdi]=5 [text]=6 [contours]=6)

# Lines "file from to": every include that leads from one folder of src/ into another.
crossings() {
    grep -rHE '^ *# *include *<marlin/[^/>]+/' --include='*.h' --include='*.cpp' . |
        sed -E 's|^\./(([^/:]+)[^:]*):.*<marlin/([^/]+)/.*|\1 \2 \3|' |
        awk '$2 != $3' | sort -u
}

check_floors() {
    local file from to sideways=""
    while read -r file from to; do
        if [ -z "${floor[$from]:-}" ] || [ -z "${floor[$to]:-}" ]; then
            [ "$file" = shared.h ] || fault "src/$file: no floor is known for $from or $to"
        elif [ "${floor[$to]}" -gt "${floor[$from]}" ]; then
            fault "src/$file: $from includes $to, which stands on a higher floor"
        elif [ "${floor[$to]}" -eq "${floor[$from]}" ]; then
            sideways+="$from $to"$'\n'
        fi
    done < <(crossings)
    tsort <<<"${sideways:-}" >/dev/null || fault "the folders of one floor include each other"
}

case $rule in
detail) check_detail ;;
umbrella) check_umbrella ;;
floors) check_floors ;;
*) exit 2 ;;
esac
exit "$faults"
