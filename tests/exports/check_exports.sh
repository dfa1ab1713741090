#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: check_exports.sh classes|needed|print LIBRARY
#   classes  the classes, namespaces, functions and variables that the library exports are those
#            of classes.txt beside this script, with the types that templates of GTL are made for
#   needed   the library needs no toolkit and no display
#   print    prints what classes.txt should hold
# Besides the symbols that the library defines once and for all only the templates of GTL count,
# which are compiled for all hosts: inline code and other templates come and go with the
# compiler's choices.
set -euo pipefail
here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)

# The scope of a demangled name: "GTL::Extents2D", "MARLINSUITE", or the name itself where it is
# global, with "()" after a function.
all_scopes() {
    nm -D --defined-only -C "$1" | sed -nE 's/^[0-9a-f]* [TDBR] //p' |
        sed -E 's/^(vtable|typeinfo( name)?|VTT|guard variable) for (.*)$/\3::/
            s/^(non-)?virtual thunk to (.*)$/\2::/
            s/\[abi:[a-z0-9]+\]//g
            s/\boperator[^A-Za-z0-9_].*$/operator()/
            :again; s/<[^<>]*>//g; t again
            s/\(.*$/()/
            s/^.* //' |
        sed -E '/::/{ s/::[^:]*$//; }' |
        grep -vE '^(std|__gnu_cxx|_init|_fini)(::|$)'
    nm -D --defined-only -C "$1" |
        sed -nE 's/^[0-9a-f]* V vtable for (GTL::.*)$/\1/p
            s/^[0-9a-f]* W (GTL::[A-Za-z0-9]+<[^()]*>)::(op|[^():]*\().*$/\1/p'
}

scopes() { all_scopes "$1" | LC_ALL=C sort -u; }

case $1 in
print) scopes "$2" ;;
classes)
    diff -U 0 --label "classes.txt" --label "exported" "$here/classes.txt" <(scopes "$2") ||
        {
            printf 'If the change is meant: %s print %s > tests/exports/classes.txt\n' "$0" "$2"
            exit 1
        }
    ;;
needed)
    needed=$(readelf -d "$2" | sed -nE 's/.*\(NEEDED\).*\[(.*)\]/\1/p')
    [ -n "$needed" ] || { printf 'nothing is needed, not even the C library\n' && exit 1; }
    if grep -E '^lib(Qt|X|xcb|GL|wayland|gtk|glib)' <<<"$needed"; then
        printf 'the core must not need these\n'
        exit 1
    fi
    ;;
*) exit 2 ;;
esac
