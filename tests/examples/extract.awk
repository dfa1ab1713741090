# SPDX-License-Identifier: MIT
# Makes a C++ source of the examples in headers: each block "/// @code" ... "/// @endcode" becomes
# a function, and a test that calls it unless its first line is a comment "// not run: REASON".
# Usage: awk -v root=SRC/ -f extract.awk HEADER...   each HEADER's name begins with SRC/.

function fail(place, reason) {
    print place ": " reason > "/dev/stderr"
    failed = 1
    exit 1
}

function open_block() {
    place = FILENAME ":" FNR
    open = 1
    lines = 0
    name = substr(FILENAME, length(root) + 1)
    sub(/\.h$/, "", name)
    gsub(/[^A-Za-z0-9]+/, "_", name)
    name = name "_" ++blocks[FILENAME]
}

# "#line" lets the compiler name the header's own line in its messages.
function start_function() {
    if (line ~ /^ *\/\/ not run/) {
        if (line !~ /^ *\/\/ not run: ./) fail(place, "say why the example is not run")
    } else {
        tests[++runs] = name
    }
    printf "\nvoid %s() {\n#line %d \"%s\"\n", name, FNR, FILENAME
}

function add_line() {
    line = $0
    if (!sub(/^ *\/\/\/ ?/, "", line)) fail(FILENAME ":" FNR, "the comment ends before @endcode")
    if (lines++ == 0) start_function()
    print line
}

function close_block() {
    if (lines == 0) fail(place, "the example is empty")
    print "}"
    open = 0
}

BEGIN {
    print "#include <marlin/shared.h>"
    for (i = 1; i < ARGC; ++i) print "#include <marlin/" substr(ARGV[i], length(root) + 1) ">"
    print "\n#include <cassert>\n#include <cstdio>\n#include <string>\n\nnamespace {"
}

FNR == 1 && open { fail(place, "@code without @endcode") }
/^ *\/\/\/ *[@\\]code/ && open { fail(place, "@code without @endcode") }
/^ *\/\/\/ *[@\\]code/ { open_block(); next }
/^ *\/\/\/ *[@\\]endcode/ && open { close_block(); next }
open { add_line() }

END {
    if (failed) exit 1
    if (open) fail(place, "@code without @endcode")
    if (runs == 0) fail(root, "no header has an example that runs")
    print "\n}  // namespace\n\n#include \"example_test.h\"\n"
    for (i = 1; i <= runs; ++i) print "TEST_F(Example, " tests[i] ") { " tests[i] "(); }"
}
