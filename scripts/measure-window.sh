#!/usr/bin/env bash
# Measures the real window under Xvfb, as a person would use it, with real mouse events from
# xdotool:
#   - processor time (utime + stime of /proc/PID/stat) over 60 s at the menu and over 60 s
#     waiting for the break, with the music off and on;
#   - resident memory at the menu and during the demo;
#   - the cost of every game tick through a whole solo game (MORVANE_SELF_PLAY lets zeph take
#     the shots, MORVANE_TICK_LOG writes the ticks): median, 99th percentile, maximum;
#   - over 10 changes of tune (scene changes between the menu and a solo game, with the break
#     swing running and during a shot): the longest interval between Timer2 ticks and between
#     Timer1 ticks, and the longest time the event loop was held (MORVANE_TIMER_LOG).
#
#   bash scripts/measure-window.sh [PROGRAM] [PARTS...]
#
# PROGRAM defaults to build/bin/morvane; PARTS are any of cpu, tick, tunes (all by default).
# MORVANE_XVFB_DISPLAY picks the display (default 14); MORVANE_MEASURE_LOGS names a folder to keep
# the tick and timer logs in. On a shared machine the figures move with
# the load of the others: run it twice, and compare programs back to back.
# Needs xvfb, openbox, xdotool, x11-utils (xwininfo) and python3.
set -euo pipefail
cd "$(dirname "$0")/.."
game=$(realpath "${1:-build/bin/morvane}")
shift || true
parts=${*:-cpu tick tunes}
display=:${MORVANE_XVFB_DISPLAY:-14}

work=$(mktemp -d)
game_pid=
Xvfb "$display" -screen 0 1024x768x24 >/dev/null 2>&1 &
xvfb=$!
cleanup() {
    [ -n "$game_pid" ] && kill "$game_pid" 2>/dev/null || true
    kill "$wm" 2>/dev/null || true
    kill "$xvfb" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
# A runtime folder of its own, so that copies of the game run by others don't count as this one.
mkdir -m 700 "$work/run"
export DISPLAY=$display SDL_AUDIODRIVER=dummy XDG_RUNTIME_DIR=$work/run
sleep 1
openbox >/dev/null 2>&1 &
wm=$!
sleep 1

hz=$(getconf CLK_TCK)
# The whole process, and its first thread alone: the window's, without the sound's threads.
cpu_ticks() { awk '{print $14 + $15}' "/proc/$game_pid/stat"; }
window_ticks() { awk '{print $14 + $15}' "/proc/$game_pid/task/$game_pid/stat"; }
. scripts/game-probes.sh
at() { xdotool mousemove $((X + $1)) $((Y + $2)); }
# The menu's pictures light under a moving mouse, and the lit picture takes the click.
click() { at "$1" "$2"; sleep 0.2; at $(($1 + 1)) "$2"; sleep 0.2; xdotool click 1; }
park() { at 530 372; } # the mouse rests in the corner, over nothing that answers it
percent() { python3 -c "print(f'{$1 * 100 / $hz / $2:.2f}')"; }

# Starts the game in a fresh home with the music on (-1) or off (0); extra settings as
# environment assignments after the first argument.
start_game() {
    local bgm=$1
    shift
    local home=$work/home-$RANDOM
    mkdir -p "$home"
    printf '[MORVANE]\nBGM=%s\n' "$bgm" >"$home/MORVANE.INI"
    printf '[ZEPH]\nLV=11\nPG=0\n' >"$home/MVSCORE.INI"
    (cd "$work" && exec env MORVANE_HOME="$home" "$@" "$game" >"$home/game.log" 2>&1) &
    game_pid=$!
    local win=
    for _ in $(seq 1 60); do
        win=$(xdotool search --onlyvisible --name "^MORVANE Ver" 2>/dev/null | head -1 || true)
        [ -n "$win" ] && break
        sleep 1
    done
    [ -n "$win" ] || { echo "the window did not come up" >&2; cat "$home/game.log" >&2; exit 1; }
    # The client area's place on the screen (xdotool's own geometry counts the frame twice).
    X=$(xwininfo -id "$win" | awk '/Absolute upper-left X/ {print $4}')
    Y=$(xwininfo -id "$win" | awk '/Absolute upper-left Y/ {print $4}')
    sleep 2
    park
}

keep_log() {
    if [ -n "${MORVANE_MEASURE_LOGS:-}" ]; then
        mkdir -p "$MORVANE_MEASURE_LOGS"
        cp "$1" "$MORVANE_MEASURE_LOGS/"
    fi
}

# Waits, answering at once any message the game puts up (a foul's, for one).
wait_answering() {
    local box
    for _ in $(seq 1 $(($1 * 2))); do
        box=$(xdotool search --onlyvisible --name "^Massage from Morvane$" 2>/dev/null | head -1 || true)
        [ -n "$box" ] && xdotool windowactivate "$box" key Return 2>/dev/null || true
        sleep 0.5
    done
}

stop_game() {
    kill "$game_pid" 2>/dev/null || true
    wait "$game_pid" 2>/dev/null || true
    game_pid=
}

# Processor time of `seconds` at the menu, in windows of 20 s: after each, a visit to the record
# screen puts off the demo, which would come after 30 idle seconds.
menu_cpu() {
    local used=0 window=0 before window_before
    for _ in 1 2 3; do
        before=$(cpu_ticks)
        window_before=$(window_ticks)
        sleep 20
        used=$((used + $(cpu_ticks) - before))
        window=$((window + $(window_ticks) - window_before))
        click 470 131 # Record
        sleep 1
        click 500 12 # back to the menu
        park
        sleep 2 # the menu's tune, if any, has opened
    done
    echo "$used $window"
}

cpu_part() {
    local music name
    for music in 0 -1; do
        name=$([ "$music" = 0 ] && echo off || echo on)
        start_game "$music"
        echo "music $name: resident memory at the menu: $(rss_kb) kB"
        local used window
        read -r used window < <(menu_cpu)
        echo "music $name: processor at the menu: $(percent "$used" 60) % of a core ($used ticks in 60 s), the window's thread $(percent "$window" 60) %"
        click 97 76 # Solo Play: the break swings
        park
        sleep 2
        local before window_before
        before=$(cpu_ticks)
        window_before=$(window_ticks)
        sleep 60
        used=$(($(cpu_ticks) - before))
        window=$(($(window_ticks) - window_before))
        echo "music $name: processor waiting for the break: $(percent "$used" 60) % of a core ($used ticks in 60 s), the window's thread $(percent "$window" 60) %"
        click 500 12 # Menu; 31 idle seconds bring the demo
        park
        sleep 34
        echo "music $name: resident memory during the demo: $(peak_rss_kb 10) kB at most"
        stop_game
    done
}

tick_part() {
    local log=$work/ticks.log
    start_game 0 MORVANE_SELF_PLAY=1 MORVANE_TICK_LOG="$log"
    click 97 76 # Solo Play; zeph takes every shot
    park
    # A foul's message is answered at once; the game is over when its statistics come up.
    for _ in $(seq 1 600); do
        xdotool search --onlyvisible --name "^Your Record$" >/dev/null 2>&1 && break
        wait_answering 1
    done
    local ended=0
    xdotool search --onlyvisible --name "^Your Record$" >/dev/null 2>&1 && ended=1
    stop_game
    keep_log "$log"
    python3 - "$log" "$ended" <<'EOF'
import sys
rows = [l.split() for l in open(sys.argv[1]).read().splitlines()[1:]]
costs = sorted(float(r[1]) for r in rows if r[2] == '0')
ended = sys.argv[2] == '1'
def rank(share):
    return costs[min(len(costs) - 1, int(share * (len(costs) - 1) + 0.5))]
print(f"tick cost over {'a whole' if ended else 'an unfinished'} solo game, {len(costs)} ticks: "
      f"median {rank(0.5):.3f} ms, 99th percentile {rank(0.99):.3f} ms, maximum {costs[-1]:.3f} ms")
EOF
}

# Ten changes of tune: five times a solo game (its tune opens while the break swings, or, every
# other time, while the break rolls) and back to the menu (whose tune opens there).
tunes_part() {
    local log=$work/timers.log
    start_game -1 MORVANE_TIMER_LOG="$log"
    local from
    from=$(tail -1 "$log" | awk '{print $2}')
    for round in 1 2 3 4 5; do
        click 97 76 # Solo Play
        if ((round % 2 == 0)); then
            click 272 349 # the break at once: the tune opens while the balls roll
        else
            sleep 1.5
            click 272 349
        fi
        park
        wait_answering 9 # the balls stop
        click 500 12 # Menu
        park
        wait_answering 3
    done
    stop_game
    keep_log "$log"
    python3 - "$log" "$from" <<'EOF'
import sys
rows = [l.split() for l in open(sys.argv[1]).read().splitlines()[1:]]
start = float(sys.argv[2] or 0)
rows = [(r[0], float(r[1]), float(r[2])) for r in rows if float(r[1]) >= start]
# Intervals over two seconds lie between shots or span the menu, where the swing rests.
def longest(name):
    times = [at for what, at, _ in rows if what == name]
    gaps = [b - a for a, b in zip(times, times[1:]) if b - a < 2000]
    return max(gaps, default=0), len(times)
for name in ("Timer2", "Timer1"):
    gap, n = longest(name)
    print(f"over 10 changes of tune: longest interval between {name} ticks {gap:.1f} ms ({n} ticks)")
held = max((late for what, _, late in rows if what == "loop"), default=0)
print(f"over 10 changes of tune: longest time the event loop was held {held:.1f} ms")
EOF
}

echo "program: $game"
echo "machine: $(nproc) cores, load $(cut -d' ' -f1-3 /proc/loadavg)"
for part in $parts; do
    "${part}_part"
done
echo "load at the end: $(cut -d' ' -f1-3 /proc/loadavg)"
