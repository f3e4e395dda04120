# Shared by the scripts that drive the real window under X (smoke-platforms.sh, journey.sh):
# ending what they started, polling with a time limit, and reading the game's screens from
# screenshots. The sourcing script defines `fail` and `limit` (seconds), calls begin_run,
# and sets `game_pid` and `window` once it has them.

# The folder of the run's screenshots, logs and home: the one asked for, emptied first and kept
# after the run, or else a new one, thrown away at the end. Sets `work`, and `shot`, the picture
# of the window taken most often.
make_work_folder() {
    work=$1
    keep_work=$1
    if [ -n "$work" ]; then
        rm -rf "$work" && mkdir -p "$work"
    else
        work=$(mktemp -d)
    fi
    shot=$work/window.png
}

# The display to start Xvfb on: the one asked for by number, or else the first free one from
# `first` up, so that two runs side by side don't meet on one display.
choose_x_display() {
    local asked=$1 first=$2 n
    if [ -n "$asked" ]; then
        echo ":$asked"
        return
    fi
    for ((n = first; n < first + 100; n++)); do
        if [ ! -e "/tmp/.X11-unix/X$n" ] && [ ! -e "/tmp/.X$n-lock" ]; then
            echo ":$n"
            return
        fi
    done
    echo ":$first"
}

# The end of every log of the run, on stderr, for a failure to be read from.
show_logs() {
    for log in "$work"/*.log; do
        [ -s "$log" ] && { echo "--- $log" >&2; tail -n 20 "$log" >&2; }
    done
    return 0
}

# Ends one process we started: politely, then for certain.
end_process() {
    local pid=$1
    [ -n "$pid" ] || return 0
    kill "$pid" 2>/dev/null || return 0
    for _ in $(seq 50); do
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.1
    done
    kill -9 "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
}

# The start of a run: nothing started yet, the run's folder, a free display, and end_run on exit.
begin_run() { # folder to keep or "", display asked for or "", first display to try
    server_pid=
    wm_pid=
    game_pid=
    make_work_folder "$1"
    x_display=$(choose_x_display "$2" "$3")
    trap end_run EXIT
}

# At the end of the run, whichever way it ends: the game, the window manager and the server go,
# and the folder of the run unless it was asked to be kept.
end_run() {
    end_process "$game_pid"
    end_process "$wm_pid"
    end_process "$server_pid"
    [ -n "$keep_work" ] || rm -rf "$work"
}

# Polls a command every tenth of a second until it succeeds; fails after `limit` seconds, or at
# once if the game has ended by itself.
wait_for() {
    local what=$1
    shift
    local deadline=$((SECONDS + limit))
    until "$@"; do
        if [ -n "$game_pid" ] && ! kill -0 "$game_pid" 2>/dev/null; then
            fail "the game ended while waiting for $what"
        fi
        ((SECONDS < deadline)) || fail "no $what after ${limit} s"
        sleep 0.1
    done
}

# How many pixels of a picture, or of the part WxH+X+Y of it, are exactly the colour.
pixels_of() {
    local picture=$1 colour=$2 part=${3:-}
    convert "$picture" ${part:+-crop "$part" +repage} -alpha off \
        -fill black +opaque "$colour" -fill white -opaque "$colour" \
        -format '%[fx:round(mean*w*h)]' info:
}

# The menu as it stands with at most one word lit: the words of the three modes in dim green,
# Record and Exit in dim purple, the two credit lines in cyan. No other screen of the game and no
# desktop shows these colours in such numbers.
menu_drawn() {
    local picture=$1
    (($(pixels_of "$picture" '#339966') >= 1200)) &&
        (($(pixels_of "$picture" '#993366') >= 500)) &&
        (($(pixels_of "$picture" '#00C0C0') >= 300))
}

# The game's main window, once it shows; before it, the splash is the game's only window.
main_window_shown() {
    window=$(xdotool search --onlyvisible --name '^MORVANE Ver\.' 2>/dev/null | head -1)
    [ -n "$window" ]
}
splash_shown() {
    splash=$(xdotool search --onlyvisible --class '^morvane$' 2>/dev/null | head -1)
    [ -n "$splash" ]
}

# Pictures of the window, whole or a part WxH+X+Y of it, in the window's own pixels.
grab() { import -window "$window" ${2:+-crop "$2" +repage} "$1" 2>/dev/null; }
menu_on_screen() { grab "$shot" && menu_drawn "$shot"; }

# Solo Play lights under the pointer; once the table is up its dim green is gone.
solo_play=163x41+16+56
solo_play_lit() { grab "$work/solo.png" "$solo_play" &&
    (($(pixels_of "$work/solo.png" '#00FF00') >= 400)); }
table_on_screen() { grab "$shot" && (($(pixels_of "$shot" '#339966' "$solo_play") < 50)); }

# The caption of SHOT! is dark on its wood when a shot can be played, and light on darker wood
# while the balls roll.
caption_dark_pixels() {
    grab "$work/caption.png" 125x31+210+334 &&
        convert "$work/caption.png" -colorspace gray -threshold 30% -negate \
            -format '%[fx:round(mean*w*h)]' info:
}
shot_ready() { (($(caption_dark_pixels) >= 200)); }
balls_rolling() { (($(caption_dark_pixels) < 50)); }
table=540x299+0+25
