#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Usage: drive.sh MARLIN EDITOR: works with the editor in a real window, by keys and by mouse, on an
# X display of its own. Exit status 77 where a tool for that is missing.
. "$(dirname -- "${BASH_SOURCE[0]}")/../../scripts/lib.sh"

marlin=$1
editor=$2
if said=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$editor" 2>&1) || [ $? -ne 2 ] ||
    [[ $said != "marlin-contour-editor: no display to show windows on ("* ]]; then
    fail "without a display: $said"
fi
for tool in Xvfb xdotool openbox; do
    command -v "$tool" >/dev/null || { say "skipped: there is no $tool" && exit 77; }
done

if [ -z "${MARLIN_TEST_DISPLAY:-}" ]; then
    MARLIN_TEST_DISPLAY=own with_display "$BASH" "$0" "$@"
    exit
fi

work=$(mktemp -d)
# The toolkit copies texts of the display by their length, which strict checks take for a fault.
export ASAN_OPTIONS=${ASAN_OPTIONS:-}:strict_string_checks=0
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QT_SCALE_FACTOR
export XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work
cat >"$work/manager.xml" <<END
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
</openbox_config>
END
openbox --config-file "$work/manager.xml" --startup "touch $work/managed" >/dev/null 2>&1 &
manager=$!
trap 'kill "$manager" 2>/dev/null; rm -rf "$work"' EXIT

fail_here() {
    printf 'line %s: %s\n' "${BASH_LINENO[1]}" "$*" >&2
    exit 1
}

# within SECONDS COMMAND...: asks again until the command succeeds.
within() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.01
    done
}

# Keys go to the window that has the focus.
active() { xdotool getwindowfocus -f 2>/dev/null; }
title() { xdotool getwindowfocus -f getwindowname 2>/dev/null; }
has_title() { [ "$(title)" = "$1" ]; }
has_ended() { ! kill -0 "$process" 2>/dev/null; }

await() {
    within 20 has_title "$1" ||
        fail_here "wanted the window '$1', have '$(title)'; the program said: $(cat "$work/said")"
}

is_active() { [ "$(active)" = "$1" ]; }
is_other() { local now && now=$(active) && [ "$now" != "$1" ]; }

# asks KEY... ANSWER: the keys bring a box up, which the answer closes; its title may be the
# window's.
asks() {
    local window
    window=$(active)
    keys "${@:1:$#-1}"
    within 20 is_other "$window" || fail_here "no box came up over '$(title)'"
    keys "${*: -1}"
    within 20 is_active "$window" || fail_here "the box '$(title)' stays"
}

# discards KEY: closes the window, and does not want its changes.
discards() {
    local window
    window=$(active)
    keys "$1" && within 20 is_other "$window" && keys alt+n
    ends 0
}

keys() { xdotool key --clearmodifiers "$@"; }
text() { xdotool type --clearmodifiers -- "$1"; }
enter() { text "$1" && keys Return; }

# at PER_MILLE_OF_WIDTH PER_MILLE_OF_HEIGHT: puts the pointer there in the window.
at() {
    local window WIDTH HEIGHT
    window=$(active)
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
    xdotool mousemove --window "$window" $((WIDTH * $1 / 1000)) $((HEIGHT * $2 / 1000))
}

top_row() { at 120 125; }
row_below() { at 120 184; }
add_button() { at 868 76; }
remove_button() { at 868 266; }
press_ok() { at 868 826 && xdotool click 1; }

start() {
    "$editor" "$@" 2>"$work/said" &
    process=$!
}

# ends STATUS: the program ends with it.
ends() {
    local status=0
    within 20 has_ended || fail_here "the program still runs; before it '$(title)'"
    wait "$process" || status=$?
    [ "$status" -eq "$1" ] || fail_here "wanted status $1, got $status: $(cat "$work/said")"
}

# complains TEXT: the program says so in a box and on standard error, and ends with 1.
complains() {
    await "Contours" && keys Return
    ends 1
    [ "$(grep -v '^QStandardPaths' "$work/said")" = "$1" ] ||
        fail_here "unclear: $(cat "$work/said")"
}

# holds FILE LINE...: level, color, line type, width and labels of each definition.
holds() {
    local file=$1
    shift
    diff -u --label wanted --label saved <(printf '%s\n' "$@") \
        <("$marlin" contours list "$file" | awk 'NR > 1 { print $1, $2, $4, $5, $6 }') >&2 ||
        fail_here "$file holds something else"
}

# make NAME LEVEL...: a file of plain definitions.
make() {
    file=$work/$1.cdf
    rm -f "$file"
    "$marlin" contours add "$file" "${@:2}" >/dev/null
}

works_on_the_list() {
    make chart 5 10 20
    start "$file"
    await "Contours - chart"
    keys Insert && await "Contour Properties"
    enter 7.5 && await "Contours - chart *"
    # The new row is selected.
    keys Return && await "Contour Properties"
    keys alt+w && text 2.5 && keys alt+b && keys Return && await "Contours - chart *"
    # Two rows from the top together: their levels stay.
    top_row && xdotool click 1
    keys shift+Down && keys alt+e && await "Contour Properties"
    keys alt+s && keys Down && keys Return && await "Contours - chart *"
    # A level onto one that is there already.
    row_below && xdotool click --repeat 2 --delay 20 1
    await "Contour Properties"
    enter 20 && await "Error"
    keys Return && await "Contours - chart *"
    keys Return && await "Contour Properties"
    enter 15 && await "Contours - chart *"
    # The color, typed into its dialog.
    top_row && xdotool click 1
    keys Return && await "Contour Properties"
    keys alt+c && await "Select Color"
    keys alt+h && keys ctrl+a && text "#0000ff" && keys Return && await "Contour Properties"
    keys Return && await "Contours - chart *"
    # The lowest row goes by its button, and one that is added by mouse goes by its key.
    keys End && remove_button && xdotool click 1
    add_button && xdotool click 1 && await "Contour Properties"
    enter 1 && await "Contours - chart *"
    keys Delete
    # A level in its place, taken back, and made again.
    keys Home F2 && enter 30 && keys ctrl+z ctrl+shift+z
    # A row half way to the next one, given up again.
    keys ctrl+i ctrl+z
    # From the list backwards over Cancel.
    keys shift+Tab shift+Tab space
    ends 0
    holds "$file" "7.5 #000000 CONTINUOUS 2.5 yes" "15 #000000 DASHED 0 no" "30 #0000ff DASHED 0 no"
}

generates() {
    make range 1
    start "$file"
    await "Contours - range"
    keys alt+n && await "Generate Contours"
    text 10 && keys Tab && text 0 && keys Tab && text 2.5 && keys Return
    await "Contours - range *"
    press_ok
    ends 0
    holds "$file" "0 #000000 CONTINUOUS 0 no" "2.5 #000000 CONTINUOUS 0 no" \
        "5 #000000 CONTINUOUS 0 no" "7.5 #000000 CONTINUOUS 0 no" "10 #000000 CONTINUOUS 0 no"

    printf '%s\n' "#" "-20 0 0 128 -10 0 0 255" "-10 0 0 255 0 255 0 0" >"$work/depth.cpt"
    "$marlin" colors convert "$work/depth.cpt" "$work/depth.col" >/dev/null
    start "$file"
    await "Contours - range"
    keys alt+t && await "Open"
    enter "$work/depth.col" && await "Contours - range *"
    press_ok
    ends 0
    "$marlin" contours generate --table "$work/depth.col" -o "$work/wanted.cdf" >/dev/null
    cmp "$work/wanted.cdf" "$file" || fail_here "the table gave something else"

    start "$file"
    await "Contours - range"
    keys alt+n && await "Generate Contours"
    # All three numbers are 0.
    keys Return && await "Error"
    keys Return && await "Contours - range *"
    discards Escape
}

keeps_the_file() {
    make kept 5 10
    cp "$file" "$work/before"
    start "$file"
    await "Contours - kept"
    keys Insert && await "Contour Properties"
    text "deep" && asks Return Return
    enter 7 && await "Contours - kept *"
    # Going on after all.
    asks Escape Escape
    discards Escape
    cmp "$work/before" "$file" || fail_here "Cancel changed the file"

    "$marlin" contours edit "$file" &
    process=$!
    await "Contours - kept"
    keys Insert && await "Contour Properties"
    enter 7 && await "Contours - kept *"
    discards alt+F4
    cmp "$work/before" "$file" || fail_here "closing by the frame changed the file"
}

saves_under_a_new_name() {
    start
    await "Contours"
    keys Insert && await "Contour Properties"
    enter 12.5 && await "Contours *"
    asks shift+Tab shift+Tab space alt+n
    asks space Escape
    window=$(active)
    press_ok && within 20 is_other "$window" && keys alt+y && await "Save As"
    enter "$work/new"
    ends 0
    holds "$work/new.cdf" "12.5 #000000 CONTINUOUS 0 no"
}

refuses() {
    printf '[Letter]\n' >"$work/letter.cdf"
    start "$work/letter.cdf"
    local cause="no section [Contour(0)]: not a contour definition file"
    complains "marlin-contour-editor: $work/letter.cdf: $cause"
    start "$work"
    complains "marlin-contour-editor: $work: Is a directory"

    mkdir "$work/gone"
    make gone/lost 5
    start "$file"
    await "Contours - lost"
    rm -r "$work/gone"
    press_ok
    await "Contours"
    # Another name, given up, is no end; the list comes back until it is not wanted any more.
    keys Escape && await "Contours - lost *"
    press_ok && await "Contours" && keys alt+n
    ends 1
    grep -q "not saved: $file: No such file or directory" "$work/said" ||
        fail_here "unclear: $(cat "$work/said")"

    make emptied 5
    cp "$file" "$work/before"
    start "$file"
    await "Contours - emptied"
    top_row && xdotool click 1 && keys Delete && press_ok
    complains "marlin-contour-editor: not saved: an empty list makes no file"
    cmp "$work/before" "$file" || fail_here "the old file has changed"
}

opens_many() {
    file=$work/many.cdf
    "$marlin" contours generate --range 0 9999 1 -o "$file" >/dev/null
    start "$file"
    await "Contours - many"
    keys Down && keys End && keys Return && await "Contour Properties"
    enter -1 && await "Contours - many *"
    press_ok
    ends 0
    local lowest
    lowest=$("$marlin" contours list "$file" | awk 'NR == 2 { print $1 }')
    [ "$lowest" = -1 ] || fail_here "wanted -1 as the lowest level, got $lowest"
}

within 20 test -f "$work/managed" || fail_here "openbox does not start"

for road in works_on_the_list generates keeps_the_file saves_under_a_new_name refuses opens_many; do
    begin=$SECONDS
    "$road"
    say "$road: passed in $((SECONDS - begin)) s"
done
