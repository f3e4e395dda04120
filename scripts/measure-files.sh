#!/usr/bin/env bash
# Measures what the game makes of hostile things in place of its score file: the wall time, the
# peak resident memory, the exit status and the lines on stderr of `morvane-sim records` (a start
# that loads every table) over a FIFO, a link to /dev/zero, a folder and a 100 MB file; then of
# `morvane-sim solo` whose save fails (a folder in the file's place; as root also a read-only
# folder and a full disk, on a small tmpfs); then what a save does to a file with CRLF line ends.
#
#   bash scripts/measure-files.sh [SIM]
#
# A command that doesn't end within 10 seconds is stopped and shown as such, and none may take
# more than 2 GB of address space (the machine is shared).
set -uo pipefail
cd "$(dirname "$0")/.."

sim=$(realpath "${1:-build/bin/morvane-sim}")
work=$(mktemp -d /tmp/morvane-files-XXXXXX)
mounted=""
cleanup() {
    [ -n "$mounted" ] && umount "$mounted"
    rm -rf "$work"
}
trap cleanup EXIT

# One run: "milliseconds  peak-KB  status  stderr-lines  first stderr line".
measure() {
    local home=$1
    shift
    local start=$EPOCHREALTIME
    (
        ulimit -v 2097152
        MORVANE_HOME="$home" exec /usr/bin/time -f "%M" -o "$work/time" \
            timeout -s KILL 10 "$sim" "$@" > "$work/out" 2> "$work/err"
    )
    local status=$?
    local ms
    ms=$(awk -v a="$start" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.0f", (b - a) * 1000 }')
    [ "$status" -eq 137 ] && status="killed after 10 s"
    printf '%-22s %6s ms %8s KB  exit %-18s stderr lines %s  %s\n' "$label" "$ms" \
        "$(tail -n 1 "$work/time")" "$status" "$(wc -l < "$work/err")" "$(head -n 1 "$work/err")"
}

mkdir -p "$work/rows"
MORVANE_HOME="$work/rows" "$sim" solo --name Rows --seed 3 > /dev/null

echo "== morvane-sim records with this in the score file's place =="
for what in none fifo zero folder big; do
    home="$work/$what"
    mkdir -p "$home"
    case $what in
    none) label="a good file" && cp "$work/rows/MVSCORE.INI" "$home/" ;;
    fifo) label="a FIFO" && mkfifo "$home/MVSCORE.INI" ;;
    zero) label="a link to /dev/zero" && ln -s /dev/zero "$home/MVSCORE.INI" ;;
    folder) label="a folder" && mkdir "$home/MVSCORE.INI" ;;
    big)
        label="a 100 MB file"
        {
            cat "$work/rows/MVSCORE.INI"
            yes 'junk=0123456789012345678901234567890123456789012345678901234567890123456789' |
                head -c 100000000
            printf '\n[ZEPH]\nLV= 5\n'
        } > "$home/MVSCORE.INI"
        ;;
    esac
    measure "$home" records
done

echo "== morvane-sim solo whose save fails =="
label="a folder in its place"
measure "$work/folder" solo --name Ann --seed 3
if [ "$(id -u)" -eq 0 ] && mkdir -p "$work/small" && mount -t tmpfs -o size=4k tmpfs "$work/small"; then
    mounted="$work/small"
    cp "$work/rows/MVSCORE.INI" "$work/small/"
    label="a full disk"
    measure "$work/small" solo --name Ann --seed 3
    mount -o remount,ro "$work/small"
    label="a read-only folder"
    measure "$work/small" solo --name Ann --seed 3
else
    echo "(a full disk and a read-only folder need root for a small tmpfs)"
fi

echo "== a save into a file with CRLF line ends =="
mkdir -p "$work/crlf"
sed 's/$/\r/' "$work/rows/MVSCORE.INI" > "$work/crlf/MVSCORE.INI"
MORVANE_HOME="$work/crlf" "$sim" solo --name Crlf --seed 4 > /dev/null
echo "lines ending in CRLF: $(grep -c $'\r$' "$work/crlf/MVSCORE.INI")," \
    "in LF alone: $(grep -vc $'\r$' "$work/crlf/MVSCORE.INI")"
