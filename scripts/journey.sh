#!/usr/bin/env bash
# Plays the game as a person would, in the real window under Xvfb with a small window manager
# (openbox) and real X input from xdotool, in real time:
#   the splash, the menu, the right-click menu (three times), Solo Play, the break, the shot that
#   ends the game, "Your Record", the name typed with the keyboard, the record screen with that
#   name saved, back to the menu, and the lower part of the Exit picture, which must end the
#   game with status 0.
# The game is started with MORVANE_NEARLY_CLEARED: once the break is at rest, only the nine and
# the cue ball stay, lined up so that the shot the game aims by itself sinks the nine.
# Prints "journey: passed", or "journey: FAILED at <step>" and exits non-zero.
#
#   bash scripts/journey.sh [path/to/morvane]
#
# MORVANE_JOURNEY_X_DISPLAY (default the first free display from 17) chooses the display number;
# MORVANE_JOURNEY_TIMEOUT (default 30) is the longest any one wait may take, in seconds;
# MORVANE_JOURNEY_OUT names a folder in which the screenshots, the logs and the game's home are
# left, rather than thrown away; MORVANE_JOURNEY_WM=none makes the journey on a bare X server.
set -euo pipefail
cd "$(dirname "$0")/.."

game=${1:-$PWD/build/bin/morvane}
limit=${MORVANE_JOURNEY_TIMEOUT:-30}
name=Zed

step=start
source scripts/window-checks.sh
begin_run "${MORVANE_JOURNEY_OUT:-}" "${MORVANE_JOURNEY_X_DISPLAY:-}" 17

fail() {
    echo "journey: FAILED at $step: $*" >&2
    show_logs
    exit 1
}

# ---------------------------------------------------------------------------------------------
step="X server and window manager"
if [ -e "/tmp/.X11-unix/X${x_display#:}" ] || [ -e "/tmp/.X${x_display#:}-lock" ]; then
    fail "display $x_display is taken; choose another with MORVANE_JOURNEY_X_DISPLAY"
fi
mkdir -m 700 "$work/run"
mkdir -p "$work/home" "$work/config"
# -noreset: the server would start over each time its last client left, and refuse whoever
# connected just then (the window manager after the readiness probe, say).
Xvfb "$x_display" -screen 0 1024x768x24 -nolisten tcp -noreset >"$work/xvfb.log" 2>&1 &
server_pid=$!
export DISPLAY=$x_display QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work/run
unset WAYLAND_DISPLAY
x_server_ready() { kill -0 "$server_pid" 2>/dev/null && xdotool getdisplaygeometry >/dev/null 2>&1; }
wait_for "X server on $x_display" x_server_ready
if [ "${MORVANE_JOURNEY_WM:-openbox}" != none ]; then
    XDG_CONFIG_HOME=$work/config openbox --sm-disable >"$work/openbox.log" 2>&1 &
    wm_pid=$!
    wm_running() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
    wait_for "openbox" wm_running
fi

step=splash
MORVANE_HOME=$work/home MORVANE_NEARLY_CLEARED=1 SDL_AUDIODRIVER=dummy \
    "$game" >"$work/game.log" 2>&1 &
game_pid=$!
wait_for "splash" splash_shown
# A click on the splash brings the main window at once.
main_window_shown || xdotool mousemove --window "$splash" 10 10 click 1 2>/dev/null || true
wait_for "main window" main_window_shown
echo "journey: splash, then the main window"

step=menu
wait_for "menu drawn" menu_on_screen
echo "journey: the menu is drawn"

# Real pointer moves and clicks, in the window's own pixels.
point_at() { xdotool mousemove --window "$window" "$1" "$2"; }
click_at() {
    point_at "$1" "$2"
    xdotool click "${3:-1}"
}

# The right-click menu: every right click on the menu's background brings up a pop-up, a
# window of its own that wasn't there before; Escape closes it. Done at once, before the idle
# menu starts its demo.
step="right-click menu"
# The game's windows on the screen other than the main window (the splash is gone by now).
other_windows() { xdotool search --onlyvisible --class '^morvane$' 2>/dev/null | grep -vx "$window"; }
[ -z "$(other_windows)" ] || fail "a window other than the main window is up before the right click"
popup_shown() { [ -n "$(other_windows)" ]; }
popup_gone() { ! popup_shown; }
# A person's pace between one pop-up and the next right click: half a second, then as fast as
# a hand can (the second press then comes as a double click).
try=0
for pause in 0.5 0.05 0.05; do
    try=$((try + 1))
    sleep "$pause"
    click_at 300 250 3
    wait_for "pop-up menu after right click $try" popup_shown
    xdotool key Escape
    wait_for "pop-up menu closed by Escape ($try)" popup_gone
done
echo "journey: the right-click menu came on each of 3 right clicks"

step="Solo Play"
point_at 97 76
wait_for "Solo Play lit" solo_play_lit
click_at 97 76
wait_for "the table of a solo game" table_on_screen
echo "journey: Solo Play shows the table"

# The forms of the game other than the main window; a foul message closes with Escape.
record_form() { xdotool search --onlyvisible --name '^Your Record$' 2>/dev/null | head -1; }
close_foul_message() {
    local box
    box=$(xdotool search --onlyvisible --name '^Massage from Morvane$' 2>/dev/null | head -1)
    [ -z "$box" ] && return 0
    echo "journey: a foul message came up; Escape closes it"
    xdotool windowactivate --sync "$box" key Escape 2>/dev/null || true
    return 1
}

# A break may sink the nine too, and end the game at once.
game_over() { [ -n "$(record_form)" ]; }

step=break
wait_for "SHOT! ready for the break" shot_ready
grab "$work/rack.png" "$table"
click_at 272 349
wait_for "the balls rolling after the break" balls_rolling
break_over() { game_over || { close_foul_message && shot_ready; }; }
wait_for "the balls to stop after the break" break_over
echo "journey: the break was played"

# Once the break is at rest only the nine and the cue ball stay, aimed at the top middle pocket.
step="the last shot"
nine_shot_or_over() { game_over || { close_foul_message && shot_ready; }; }
for shot_number in 1 2 3 4 5; do
    game_over && break
    wait_for "SHOT! ready (shot $shot_number)" nine_shot_or_over
    game_over && break
    click_at 272 349
    rolling_or_over() { game_over || balls_rolling; }
    wait_for "the balls rolling (shot $shot_number)" rolling_or_over
    over_or_ready() { game_over || { close_foul_message && shot_ready; }; }
    wait_for "the end of shot $shot_number" over_or_ready
done
wait_for '"Your Record"' game_over
echo "journey: the nine fell and \"Your Record\" came up after $shot_number shot(s)"

# "Your Record" closes with a click on its OK picture; the name form comes and must wait for
# the keyboard, however the form before it was closed.
step='"Your Record" closed'
record=$(record_form)
xdotool mousemove --window "$record" 108 215 click 1
record_gone() { [ -z "$(record_form)" ]; }
wait_for '"Your Record" to close' record_gone

step="name form"
name_form() {
    name_window=$(xdotool search --onlyvisible --name '^Morvane$' 2>/dev/null | head -1)
    [ -n "$name_window" ]
}
wait_for "the name form" name_form
# It must stay open by itself: a form that closes on its own saves a name of blanks.
stay_deadline=$((SECONDS + 2))
while ((SECONDS < stay_deadline)); do
    name_form || fail "the name form closed by itself, with no input"
    sleep 0.1
done
name_focused() { [ "$(xdotool getwindowfocus 2>/dev/null)" = "$name_window" ]; }
wait_for "the keyboard focus on the name form" name_focused
xdotool type --delay 60 "$name"
xdotool key Return
name_form_gone() { ! name_form; }
wait_for "the name form to close after Enter" name_form_gone
echo "journey: the name \"$name\" was typed and the name form closed with Enter"

step="record screen"
scores=$work/home/MVSCORE.INI
padded=$(printf '%-20s' "$name")
name_saved() { grep -qx "Name01=$padded" "$scores" 2>/dev/null; }
wait_for "Name01=\"$padded\" in $scores" name_saved
# The record screen: the new row, first of the solo table, has its name lit in magenta, the
# rows below it in green.
first_name=80x16+30+26
second_name=80x16+30+46
record_screen() {
    grab "$shot" && (($(pixels_of "$shot" '#FF00FF' "$first_name") >= 40)) &&
        (($(pixels_of "$shot" '#00FF00' "$second_name") >= 40))
}
wait_for "the record screen" record_screen
grab "$work/record-screen.png"
echo "journey: the row was saved with the name \"$name\" and the record screen is shown"

# Menu at the top right goes back to the menu; the Exit picture ends the game, on its lower
# part too, below the credit lines' tops.
step="back to the menu"
click_at 500 12
point_at 300 250
wait_for "menu after the record screen" menu_on_screen

step="Exit picture"
click_at 491 348
game_ended() { ! kill -0 "$game_pid" 2>/dev/null; }
wait_for "the end of the game after Exit (20 px below the picture's top)" game_ended
status=0
wait "$game_pid" || status=$?
game_pid=
[ "$status" -eq 0 ] || fail "the game ended with status $status"
echo "journey: passed"
