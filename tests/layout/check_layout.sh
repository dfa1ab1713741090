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

declare -A floor=([core]=1 [platform]=2 [resources]=3 [qt]=3 [base]=4 [settings]=5 [geometry]=5
    [color]=5 [runtime]=5 [records]=6 [keywords]=6 [gdi]=6 [text]=7 [contours]=7)

# Lines "file from to": every include that leads from one folder of src/marlin/ into another.
crossings() {
    grep -rHE '^ *# *include *<marlin/[^/>]+/' --include='*.h' --include='*.cpp' . |
        sed -E 's|^\./(([^/:]+)[^:]*):.*<marlin/([^/]+)/.*|\1 \2 \3|' |
        awk '$2 != $3' | sort -u
}

check_floors() {
    local file from to sideways=""
    while read -r file from to; do
        if [ -z "${floor[$from]:-}" ] || [ -z "${floor[$to]:-}" ]; then
            [ "$file" = shared.h ] || fault "src/marlin/$file: no floor is known for $from or $to"
        elif [ "${floor[$to]}" -gt "${floor[$from]}" ]; then
            fault "src/marlin/$file: $from includes $to, which stands on a higher floor"
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
