#!/usr/bin/env bash
# Kills `morvane-sim solo` with SIGKILL at random moments of its save of the score file, many
# times over, and checks what a player would find afterwards: the old file or the new one, whole,
# the good record still there, and no temporary file left once the game has started again.
#
#   bash scripts/kill-saves.sh [SIM] [RUNS] [SEED]
#
# SIM is the morvane-sim to try (build/bin/morvane-sim), RUNS the number of kills (200), SEED
# seeds the choice of moments. A moment is one system call of the save, from the creation of the
# first temporary file to the end of the process, picked at random; strace delivers SIGKILL as the
# program enters it, so every step between two calls is hit in turn. Needs strace.
set -euo pipefail
cd "$(dirname "$0")/.."

sim=$(realpath "${1:-build/bin/morvane-sim}")
runs=${2:-200}
RANDOM=${3:-12}
work=$(mktemp -d /tmp/morvane-kill-XXXXXX)
trap 'rm -rf "$work"' EXIT

good_name="Good Record"
{
    echo "[SOLO]"
    echo "Shots01= 5"
    echo "Time01= 95"
    echo "Turn01= 2"
    echo "Name01=$good_name         "
    echo "Balls01=123456789"
    echo "Date01=98/02/11"
    for row in 02 03 04 05 06 07 08 09 10; do
        printf 'Shots%s= 0\nTime%s= 3600\nTurn%s= 10\nName%s=zeph                \n' \
            $row $row $row $row
        printf 'Balls%s=000000000\nDate%s=98/01/01\n' $row $row
    done
    printf '[ZEPH]\nLV= 4\nPG= 1\n'
} > "$work/old.ini"

# A home holding the old file, and the solo game of a seed played into it.
fresh_home() {
    rm -rf "$work/home"
    mkdir "$work/home"
    cp "$work/old.ini" "$work/home/MVSCORE.INI"
}
solo() {
    MORVANE_HOME="$work/home" "$@" "$sim" solo --name Killed --seed "$seed" > /dev/null 2>&1
}

whole=0 mixed=0 lost=0 left=0 survived=0 killed=0 records_failed=0
for ((run = 1; run <= runs; ++run)); do
    seed=$((RANDOM % 50 + 1))
    # The save of this seed played out whole, traced call by call.
    fresh_home
    solo strace -f -qq -o "$work/trace" || true
    cp "$work/home/MVSCORE.INI" "$work/new.ini"
    if cmp -s "$work/new.ini" "$work/old.ini"; then
        run=$((run - 1)) # this game earned no place: nothing was saved
        continue
    fi
    # The calls of the save: from the first temporary file to the end.
    mapfile -t calls < <(awk '
        { sub(/^[0-9]+ +/, ""); name = $0; sub(/\(.*/, "", name) }
        name ~ /^[a-z_0-9]+$/ { seen[name]++ }
        /\/\.MVSCORE\.INI\.[A-Za-z0-9]+"/ && name ~ /^open/ { saving = 1 }
        saving && name ~ /^[a-z_0-9]+$/ { print name, seen[name] }' "$work/trace")
    if [ ${#calls[@]} -eq 0 ]; then
        echo "no temporary file was created by the save of seed $seed" >&2
        exit 1
    fi
    pick=${calls[RANDOM % ${#calls[@]}]}
    read -r call count <<< "$pick"

    fresh_home
    status=0
    # In a shell of its own, whose word on the kill goes nowhere.
    (solo strace -f -qq -o /dev/null -e trace="$call" -e inject="$call:signal=KILL:when=$count"
        exit $?) 2> /dev/null || status=$?
    [ "$status" -eq 137 ] && ((++killed))
    if cmp -s "$work/home/MVSCORE.INI" "$work/old.ini" ||
        cmp -s "$work/home/MVSCORE.INI" "$work/new.ini"; then
        ((++whole))
    else
        ((++mixed))
    fi
    grep -qE "^Name(0[1-9]|10)=$good_name +$" "$work/home/MVSCORE.INI" || ((++lost))
    compgen -G "$work/home/.MVSCORE.INI.*" > /dev/null && ((++left))
    # The next start.
    MORVANE_HOME="$work/home" "$sim" records > /dev/null 2>&1 || ((++records_failed))
    compgen -G "$work/home/.MVSCORE.INI.*" > /dev/null && ((++survived))
done

echo "runs $runs, killed by SIGKILL $killed"
echo "old or new file whole: $whole; a mix of both: $mixed; the good record's name lost: $lost"
echo "temporary file left by the kill: $left; still there after the next start: $survived"
echo "records command failed afterwards: $records_failed"
