#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: check_layout.sh detail|umbrella|layers|names|internals|sizes|links|system SRC
#   detail    no public header includes one of a detail/ folder
#   umbrella  shared.h includes every public header but those of the Qt part, and nothing else
#   layers    folders do not include each other in a circle, and docs/architecture.md draws them
#   names     no two files of the core library have one name; each source is beside its header
#   internals each file of a detail/ folder has a namespace detail
#   sizes     files have at most 300 lines, and lines 100 columns
#   links     the links of the documents lead to files that are there
#   system    platform/kernel/ alone includes headers of the operating system, hosts not either
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

check_names() {
    local file
    while IFS= read -r file; do
        fault "src/marlin: two files are named $file"
    done < <(find . -type f ! -path './qt/*' -printf '%f\n' | LC_ALL=C sort | uniq -d)
    while IFS= read -r file; do
        [ -f "${file%.cpp}.h" ] || fault "src/marlin/$file: no header of its name is beside it"
    # The instantiations of all templates of geometry/ are in one source, which declares nothing.
    done < <(find . -name '*.cpp' ! -path ./geometry/instantiations.cpp -printf '%P\n' |
        LC_ALL=C sort)
}

check_internals() {
    local file
    while IFS= read -r file; do
        fault "src/marlin/$file: nothing in it is in a namespace detail"
    done < <(find . -path '*/detail/*' -type f -printf '%P\0' |
        xargs -0 grep -LE '^namespace ([A-Za-z]+::)*detail \{' | LC_ALL=C sort)
}

# Everything that is compiled or run; the table of color names is data.
code_files() {
    find .ci bench cmake examples fuzz hosts scripts src tests -type f \
        ! -path '*/data/*' ! -path '*/seeds/*' ! -name color_name_table.h \
        \( -name '*.h' -o -name '*.cpp' -o -name '*.cmake' -o -name CMakeLists.txt \
        -o -name '*.awk' -o -name '*.sh' -o -perm -u+x \) -print | LC_ALL=C sort
}

check_sizes() {
    local file place lines
    cd ../..
    while read -r lines file; do
        fault "$file: $lines lines, more than 300"
    done < <(code_files | xargs -d '\n' wc -l | awk '$1 > 300 && $2 != "total"')
    while IFS= read -r place; do
        fault "$place: more than 100 columns"
    done < <(code_files | LC_ALL=C.UTF-8 xargs -d '\n' grep -nE '^.{101}' | cut -d : -f 1,2)
}

check_links() {
    local page target
    cd ../..
    while IFS=: read -r page target; do
        [ -e "${page%/*}/$target" ] || fault "$page: nothing is at $target"
    done < <(find ./*.md docs -name '*.md' -print0 | xargs -0 grep -oE '\]\([^)#:]+' |
        sed 's/\](//')
}

check_system() {
    local line
    while IFS= read -r line; do
        fault "$line: calls the operating system past src/marlin/platform/kernel/"
    done < <(cd ../.. && grep -rnE --include='*.h' --include='*.cpp' \
        '^ *# *include *[<"](unistd|fcntl|sys/[a-z]+|pthread|dlfcn|poll|c?signal)(\.h)?[>"]' \
        src/marlin hosts | grep -v '^src/marlin/platform/kernel/')
}

case $rule in
detail) check_detail ;;
umbrella) check_umbrella ;;
layers) check_layers ;;
names) check_names ;;
internals) check_internals ;;
sizes) check_sizes ;;
links) check_links ;;
system) check_system ;;
*) exit 2 ;;
esac
exit "$faults"
