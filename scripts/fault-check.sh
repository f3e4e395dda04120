#!/usr/bin/env bash
# Plants each single-line fault of scripts/faults.txt, one at a time, in a scratch copy of the
# tree, builds it and runs the tests, and says which faults the tests caught. A fault that the
# tests let through is a hole in the suite; a fault whose text is no longer in its file is a stale
# line of faults.txt, and both make the run fail.
#
#   bash scripts/fault-check.sh [faults.txt] [--only N]
#
# The scratch copy and its build live in $MORVANE_FAULT_DIR (default build-faults/ of this
# checkout), so a second run builds only what changed.
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD

list=scripts/faults.txt
only=""
while [ $# -gt 0 ]; do
    case "$1" in
    --only) only=$2; shift 2 ;;
    *) list=$1; shift ;;
    esac
done

scratch=${MORVANE_FAULT_DIR:-$top/build-faults}
tree=$scratch/tree
# The build lies inside the copy, as build/ does in a checkout, so that a compiler cache set to
# ignore the folder finds what other builds of the same files left.
build=$tree/build
mkdir -p "$tree"

# The scratch tree mirrors the files that git knows of, as they stand in the work tree; a file
# that has left the work tree leaves the copy too, or the build would still glob it in.
git ls-files --cached --others --exclude-standard | sort > "$scratch/files"
# Files are compared by content and a changed one is written with the time of the copy, not its
# own: a checkout's older time would leave the build's objects of the earlier text standing.
rsync -rl --checksum --files-from="$scratch/files" "$top"/ "$tree"/
(cd "$tree" && find . -path ./build -prune -o -type f -printf '%P\n') | sort |
    comm -23 - "$scratch/files" | (cd "$tree" && xargs -r -d '\n' rm -f --)
# Built as the test command builds, every warning an error: a fault the compiler warns of is
# caught there. (The same flags also let the compiler cache serve what the test command built.)
cmake -S "$tree" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMORVANE_WERROR=ON \
    -DMORVANE_BENCH=OFF > /dev/null
export QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy

# The test programs that link a file's layer, its own first; every program for a file outside the
# layers. Each program is built and run on its own, which costs far less than every test of the
# tree in a process of its own.
testsFor() { # path
    local programs
    case "$1" in
    src/table/*) programs="table game rules cpu records startup sim sound screen screen_2x" ;;
    src/game/*) programs="game rules cpu records startup sim sound screen screen_2x" ;;
    src/records/*) programs="records rules startup sim sound screen screen_2x" ;;
    src/cpu/*) programs="cpu rules startup sim sound screen screen_2x" ;;
    src/rules/*) programs="rules startup sim sound screen screen_2x" ;;
    src/startup/*) programs="startup sim screen screen_2x" ;;
    src/sim/*) programs="sim" ;;
    src/screen/*) programs="screen screen_2x" ;;
    src/sound/*) programs="sound" ;;
    assets/*) programs="assets screen screen_2x sound" ;;
    *) programs=$(cd "$tree/tests" && ls -d */ | tr -d /) ;;
    esac
    for p in $programs; do
        if compgen -G "$tree/tests/$p/*.cpp" > /dev/null; then
            echo "$p"
        fi
    done
}

# Builds and runs the programs one after the other, so that a fault its own layer's tests catch
# costs no build of the others. Fails with 1 where a program fails or its build fails on a warning,
# and with 2 where it does not compile.
buildAndTest() { # test programs
    local p
    : > "$scratch/test.log"
    for p in "$@"; do
        if ! nice cmake --build "$build" -j "$(nproc)" --target "test_$p" > "$scratch/build.log" 2>&1
        then
            # Caught where every error is a warning made one.
            if grep -q -- '-Werror=' "$scratch/build.log" &&
                ! grep 'error:' "$scratch/build.log" | grep -qv -- '-Werror='; then
                return 1
            fi
            return 2
        fi
        (cd "$build" && nice timeout 600 "bin/test_$p" --gtest_brief=1 --gtest_fail_fast) \
            >> "$scratch/test.log" 2>&1 || return 1
    done
    return 0
}

echo "Checking that the tests pass on the tree as it stands..."
if ! buildAndTest $(testsFor tests); then
    echo "The unchanged tree does not build or pass its tests: see $scratch/*.log"
    exit 2
fi

# faults.txt: a block a fault. "@ path" names the file, then "# what the fault does", "- text"
# the exact text to find (once in the file) and "+ text" what to put instead; "\n" in either
# stands for a line break. Lines before the first "@" are the file's own comments.
caught=0
missed=0
stale=0
number=0
report=$scratch/report.txt
: > "$report"

plant() { # file, find, replace; fails when the text isn't in the file exactly once
    FIND=$2 REPLACE=$3 perl -0777 -i -e '
        my $text = do { local $/; <> };
        (my $find = $ENV{FIND}) =~ s/\\n/\n/g;
        (my $replace = $ENV{REPLACE}) =~ s/\\n/\n/g;
        my $count = () = $text =~ /\Q$find\E/g;
        if ($count != 1) { print $text; exit 3 }
        $text =~ s/\Q$find\E/$replace/;
        print $text;' "$1"
}

runFault() { # number, file, find, replace, description
    local n=$1 file=$2 find=$3 replace=$4 about=$5 verdict
    if [ -n "$only" ] && [ "$only" != "$n" ]; then
        return
    fi
    cp "$top/$file" "$tree/$file"
    if ! plant "$tree/$file" "$find" "$replace"; then
        verdict="STALE (text not found once)"
        stale=$((stale + 1))
    else
        if buildAndTest $(testsFor "$file"); then
            verdict="MISSED"
            missed=$((missed + 1))
        elif [ $? -eq 2 ]; then
            verdict="STALE (does not build)"
            stale=$((stale + 1))
        else
            verdict="caught"
            caught=$((caught + 1))
        fi
    fi
    cp "$top/$file" "$tree/$file"
    printf '%3d %-28s %s: %s\n' "$n" "$verdict" "$file" "$about" | tee -a "$report"
}

file="" find="" replace="" about=""
flush() {
    if [ -n "$file" ]; then
        number=$((number + 1))
        runFault "$number" "$file" "$find" "$replace" "$about"
    fi
    file="" find="" replace="" about=""
}
while IFS= read -r line || [ -n "$line" ]; do
    case "$line" in
    "@ "*) flush; file=${line#@ } ;;
    "- "*) find=${line#- } ;;
    "+ "*) replace=${line#+ } ;;
    "# "*) [ -n "$file" ] && about=${line#\# } ;;
    esac
done < "$list"
flush

# Leave the scratch build as the tree stands, for the next run.
nice cmake --build "$build" -j "$(nproc)" > /dev/null 2>&1 || true
echo "$caught caught, $missed missed, $stale stale of $number faults" | tee -a "$report"
[ "$missed" -eq 0 ] && [ "$stale" -eq 0 ]
