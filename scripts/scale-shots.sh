#!/usr/bin/env bash
# Plays a solo break under Xvfb on a screen of scale 1 and of scale 2 (QT_SCALE_FACTOR, as a
# HiDPI laptop has), with real mouse events from xdotool; saves the racked table of each as
# docs/scale-1x.png and docs/scale-2x.png and measures the resident memory at the menu and over
# the break at each.
# Needs xvfb, xdotool and imagemagick (import). MORVANE_GAME names another build of the game.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
game=${MORVANE_GAME:-$root/build/bin/morvane}
display=:${MORVANE_XVFB_DISPLAY:-74}
shots=${MORVANE_SHOTS:-$root/docs}

Xvfb "$display" -screen 0 1600x1200x24 >/dev/null 2>&1 &
xvfb=$!
home=$(mktemp -d)
game_pid=
trap 'if [ -n "$game_pid" ]; then kill "$game_pid" 2>/dev/null || true; fi; kill "$xvfb"; rm -rf "$home"' EXIT
# A lock of its own, so that a copy of the game running elsewhere on the machine is no hindrance.
export DISPLAY=$display MORVANE_HOME=$home XDG_RUNTIME_DIR=$home SDL_AUDIODRIVER=dummy
sleep 1

. scripts/game-probes.sh

play_at() {
    local scale=$1
    QT_SCALE_FACTOR=$scale "$game" >"$home/game.log" 2>&1 &
    game_pid=$!
    local win
    win=$(xdotool search --sync --onlyvisible --name "MORVANE" | head -1)
    eval "$(xdotool getwindowgeometry --shell "$win")" # X, Y of the client area, in screen pixels
    # A place of the window's layout, in the screen's pixels.
    at() { xdotool mousemove $((X + $1 * scale)) $((Y + $2 * scale)); sleep 0.3; }
    click() { at "$1" "$2"; xdotool click 1; sleep 0.5; }
    sleep 1
    at 300 250
    local menu_kb
    menu_kb=$(rss_kb)
    click 97 76 # Solo Play: the balls racked, the aim swinging for the break
    at 300 360
    import -window "$win" "$shots/scale-${scale}x.png"
    click 272 349 # the break at full power
    local peak
    peak=$(peak_rss_kb 10)
    echo "scale $scale: window ${WIDTH}x${HEIGHT}, RSS at the menu ${menu_kb} kB," \
         "at most ${peak} kB over the break"
    kill "$game_pid"
    wait "$game_pid" 2>/dev/null || true
    game_pid=
    rm -f "$home"/*.lock
}

play_at 1
play_at 2
