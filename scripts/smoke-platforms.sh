#!/usr/bin/env bash
# Starts the real game on both display systems of a Linux desktop and checks that it starts,
# draws its menu and ends cleanly with status 0:
#   X11, under Xvfb: real mouse input from xdotool plays Solo Play's break, then Menu and Exit.
#   Wayland, under a headless Weston: the menu is read from the compositor's own screenshot, and
#   the game is ended the way a session ends it, by SIGTERM.
# Every process it starts is ended on the way out, whatever happens. Needs xvfb, xdotool,
# imagemagick, weston and qt6-wayland (scripts/install-deps.sh installs them).
#
#   bash scripts/smoke-platforms.sh [path/to/morvane]
#
# MORVANE_SMOKE_X_DISPLAY (default the first free display from 16) and
# MORVANE_SMOKE_WAYLAND_SOCKET choose the display number and the socket name; MORVANE_SMOKE_TIMEOUT (default 30) is the longest any one wait may
# take, in seconds. MORVANE_SMOKE_OUT names a folder in which the screenshots (x11.png,
# wayland.png), the logs and the game's home are left, rather than thrown away.
set -euo pipefail
cd "$(dirname "$0")/.."

game=${1:-$PWD/build/bin/morvane}
wayland_socket=${MORVANE_SMOKE_WAYLAND_SOCKET:-morvane-test-16}
limit=${MORVANE_SMOKE_TIMEOUT:-30}

source scripts/window-checks.sh
begin_run "${MORVANE_SMOKE_OUT:-}" "${MORVANE_SMOKE_X_DISPLAY:-}" 16

fail() {
    echo "FAIL ($platform): $*" >&2
    show_logs
    exit 1
}

# The game's own environment: a home of its own, where the first start finds no settings and
# the records go to ~/.config/morvane as a player's do; its own lock; no sound device.
start_game() {
    mkdir -p "$work/home"
    env -u MORVANE_HOME -u XDG_CONFIG_HOME HOME="$work/home" XDG_RUNTIME_DIR="$work/run" \
        SDL_AUDIODRIVER=dummy "$game" >"$work/game-$platform.log" 2>&1 &
    game_pid=$!
}

# Waits for the game to end by itself and checks that it ended with status 0.
game_ended() { ! kill -0 "$game_pid" 2>/dev/null; }
expect_clean_exit() {
    wait_for "end of the game" game_ended
    local status=0
    wait "$game_pid" || status=$?
    game_pid=
    [ "$status" -eq 0 ] || fail "the game ended with status $status"
}

mkdir -m 700 "$work/run"

# ---------------------------------------------------------------------------------------------
platform=x11
if [ -e "/tmp/.X11-unix/X${x_display#:}" ] || [ -e "/tmp/.X${x_display#:}-lock" ]; then
    fail "display $x_display is taken; choose another with MORVANE_SMOKE_X_DISPLAY"
fi
# -noreset: the server would start over each time its last client left, and refuse whoever
# connected just then (the window manager after the readiness probe, say).
Xvfb "$x_display" -screen 0 1024x768x24 -nolisten tcp -noreset >"$work/xvfb.log" 2>&1 &
server_pid=$!
export DISPLAY=$x_display
unset WAYLAND_DISPLAY
x_server_ready() { kill -0 "$server_pid" 2>/dev/null && xdotool getdisplaygeometry >/dev/null 2>&1; }
wait_for "X server on $x_display" x_server_ready
export QT_QPA_PLATFORM=xcb
start_game

# The splash comes first, and a click on it brings the main window at once. Until the main
# window shows, the splash is the game's only window on the screen.
wait_for "splash" splash_shown
if ! main_window_shown; then
    eval "$(xdotool getwindowgeometry --shell "$splash")"
    xdotool mousemove "$((X + 10))" "$((Y + 10))" click 1
fi
wait_for "main window" main_window_shown
eval "$(xdotool getwindowgeometry --shell "$window")" # X and Y of the client area

# The pictures of the window under X11 are kept under this name.
shot=$work/x11.png
wait_for "menu drawn under X11" menu_on_screen
echo "x11: the menu is drawn"

# Real pointer moves and clicks.
point_at() { xdotool mousemove "$((X + $1))" "$((Y + $2))"; }
click_at() {
    point_at "$1" "$2"
    xdotool click 1
}

# Solo Play lights under the pointer, and a click on it starts a game.
point_at 97 76
wait_for "Solo Play lit" solo_play_lit
click_at 97 76
wait_for "the table of a solo game" table_on_screen

# The break: the caption of SHOT! goes grey while the balls roll and black again once they
# have stopped and the next shot is set up. A foul on the break, or the nine falling, brings up a
# form first; Escape closes each as a player could, and the game goes on to its next shot or its
# record screen (black there too).
wait_for "SHOT! ready for the break" shot_ready
grab "$work/rack.png" "$table"
click_at 272 349
wait_for "the balls rolling after SHOT!" balls_rolling
close_forms() {
    local form
    for form in $(xdotool search --onlyvisible --class '^morvane$' 2>/dev/null); do
        [ "$form" = "$window" ] && continue
        echo "x11: a form came up after the break; Escape closes it"
        xdotool windowfocus --sync "$form" key Escape 2>/dev/null || true
        return 1
    done
}
break_over() { close_forms && shot_ready; }
wait_for "the balls to stop after the break" break_over
grab "$work/broken.png" "$table"
moved=$(compare -metric AE "$work/rack.png" "$work/broken.png" null: 2>&1 || true)
((moved > 1000)) || fail "the break left the table as it was ($moved pixels changed)"
echo "x11: a break was played ($moved pixels of the table changed)"

# Menu at the top right, then Exit on the menu: the one way out of the game's own.
# Solo Play stays lit until the pointer crosses the menu's background.
click_at 500 12
point_at 300 250
wait_for "menu after Menu" menu_on_screen
click_at 491 347
expect_clean_exit
echo "x11: Exit ended the game with status 0"
settings=$work/home/.config/morvane/MORVANE.INI
grep -q '^HiColor=' "$settings" 2>/dev/null || fail "the first start wrote no settings in $settings"
end_process "$server_pid"
server_pid=

# ---------------------------------------------------------------------------------------------
platform=wayland
# The pixman renderer draws the output so that it can be read back; --debug offers the
# screenshot interface to clients.
XDG_RUNTIME_DIR=$work/run weston --backend=headless-backend.so --socket="$wayland_socket" \
    --use-pixman --width=1024 --height=768 --no-config --idle-time=0 --debug \
    >"$work/weston.log" 2>&1 &
server_pid=$!
wait_for "Wayland socket $wayland_socket" test -S "$work/run/$wayland_socket"
unset DISPLAY
export WAYLAND_DISPLAY=$wayland_socket QT_QPA_PLATFORM=wayland
start_game

mkdir "$work/screens"
screenshot() {
    rm -f "$work"/screens/*.png
    (cd "$work/screens" && XDG_RUNTIME_DIR=$work/run weston-screenshooter >/dev/null 2>&1) &&
        mv "$work"/screens/*.png "$work/wayland.png" 2>/dev/null
}
menu_on_wayland() { screenshot && menu_drawn "$work/wayland.png"; }
wait_for "menu drawn under Wayland" menu_on_wayland
echo "wayland: the menu is drawn"

kill -TERM "$game_pid"
expect_clean_exit
echo "wayland: SIGTERM ended the game with status 0"
