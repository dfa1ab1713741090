# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Functions that the scripts share; sourced, never run. Every script works from any folder.

set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
root=$PWD
logs=$root/build/logs
jobs=${MARLIN_JOBS:-$(nproc)}

say() { printf '%s\n' "$*"; }

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# The errors that a build's log names, without the commands that led to them.
errors_in() {
    grep -vE ' -Wall |^ccache ' "$1" |
        grep -E -A 3 '(error|Error|warning):? |undefined reference|^E: ' | sed 40q || true
}

# quietly LOG COMMAND...: the command's output goes to build/logs/LOG.log; when it fails, the
# errors in it (or else its end) are shown and the command's status is returned.
quietly() {
    local log=$logs/$1.log status=0 errors
    shift
    mkdir -p "$logs"
    "$@" >"$log" 2>&1 || status=$?
    if [ "$status" -ne 0 ]; then
        errors=$(errors_in "$log")
        {
            say "failed with status $status: $*"
            say "${errors:-$(tail -n 25 "$log")}"
            say "all of it: $log"
        } | cut -c 1-400 >&2
    fi
    return "$status"
}

# build PRESET [TARGET...]: configures and builds build/PRESET.
build() {
    local preset=$1
    shift
    local targets=()
    [ $# -eq 0 ] || targets=(--target "$@")
    quietly "configure-$preset" cmake --preset "$preset"
    quietly "build-$preset" cmake --build "build/$preset" -j "$jobs" "${targets[@]}"
}

# run_tests PRESET [CTEST ARGUMENT...]: only failures and ctest's closing lines are shown.
run_tests() {
    local preset=$1
    shift
    ctest --preset "$preset" --no-tests=error -j "$jobs" "$@" |
        grep -vE '^ *(Start +[0-9]+:|[0-9]+/[0-9]+ Test .*[. ]Passed )|^Test project|^$'
}

# with_display COMMAND...: runs it on an X display of its own, which ends with it.
with_display() {
    local status=0 display
    coproc XSERVER { exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp 2>/dev/null; }
    local server=$XSERVER_PID
    read -r display <&"${XSERVER[0]}" || fail "Xvfb does not start"
    DISPLAY=:$display "$@" || status=$?
    kill "$server"
    wait "$server" 2>/dev/null || true
    return "$status"
}
