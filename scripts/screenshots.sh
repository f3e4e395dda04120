#!/usr/bin/env bash
# Plays the game under Xvfb as a person would, with real mouse events from xdotool, saves the
# screenshots of the README in docs/, and measures the start, the memory and the idle processor.
# Needs xvfb, xdotool and imagemagick (import, convert).
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
game=$root/build/bin/morvane
display=:${MORVANE_XVFB_DISPLAY:-73}

Xvfb "$display" -screen 0 800x600x24 >/dev/null 2>&1 &
xvfb=$!
home=$(mktemp -d)
trap 'kill "$game_pid" 2>/dev/null || true; kill "$xvfb"; rm -rf "$home"' EXIT
export DISPLAY=$display MORVANE_HOME=$home SDL_AUDIODRIVER=dummy
sleep 1

# Started from another folder: the game finds its files beside itself.
cd /tmp
start=$(date +%s%N)
"$game" >"$home/game.log" 2>&1 &
game_pid=$!
win=$(xdotool search --sync --onlyvisible --name "MORVANE" | head -1)
shown=$(date +%s%N)
cd "$root"
eval "$(xdotool getwindowgeometry --shell "$win")" # X, Y of the client area
echo "launch to menu: $(( (shown - start) / 1000000 )) ms"

at() { xdotool mousemove $((X + $1)) $((Y + $2)); sleep 0.2; }
click() { at "$1" "$2"; xdotool click 1; sleep 0.3; }
shot() { import -window "$win" "$1"; }
rss() { awk '/VmRSS/ {print $2 " kB"}' "/proc/$game_pid/status"; }
cpu_ticks() { awk '{print $14 + $15}' "/proc/$game_pid/stat"; }

sleep 1
at 300 250
at 280 76 # over VS. CPU: it lights
shot docs/menu.png
echo "RSS at the menu: $(rss)"
before=$(cpu_ticks)
sleep 10
after=$(cpu_ticks)
echo "idle processor at the menu: $(( (after - before) * 100 / $(getconf CLK_TCK) / 10 ))% of a core" \
     "($((after - before)) ticks in 10 s)"

# Solo play: the break at full power, caught while the balls roll.
at 97 76
click 97 76
click 272 349
sleep 0.5
shot docs/solo.png

# Back to the menu, and 31 idle seconds bring the demo.
sleep 8
click 500 12
at 300 250
sleep 33
demo_peak=0
for _ in $(seq 1 8); do
    kb=$(awk '/VmRSS/ {print $2}' "/proc/$game_pid/status")
    (( kb > demo_peak )) && demo_peak=$kb
    sleep 1
done
shot docs/demo.png
echo "RSS during the demo: ${demo_peak} kB at most"
click 270 175 # a click on the table ends the demo

# A match against zeph: shoot until zeph's turn shows its remark.
at 280 76
click 280 76
for _ in $(seq 1 12); do
    click 272 349
    for _ in $(seq 1 30); do
        sleep 0.3
        import -window "$win" -crop 357x25+88+25 "$home/remark.png"
        if [ "$(convert "$home/remark.png" txt:- | grep -c '#00FF00')" -gt 20 ]; then
            shot docs/match-zeph.png
            break 2
        fi
    done
done

# The record screen from the menu.
sleep 6
click 500 12
at 300 250
at 470 131
click 470 131
shot docs/records.png
click 500 12
echo "screenshots in docs/"
