#!/usr/bin/env bash
# Checks the Debian package on this machine as a player would meet it: installs it with apt,
# checks the menu entry, the AppStream file and the manual pages it installed, plays the
# installed game from its menu entry's command under X11 and Wayland (scripts/smoke-platforms.sh)
# and at scales 1 and 2 (scripts/scale-shots.sh), then removes the package and checks that none of its files is left, only the player's own
# settings and records. Needs root or sudo; leaves the package removed, as it found the machine.
#
#   bash scripts/package.sh && bash scripts/check-package.sh [build/morvane_VERSION_ARCH.deb]
#
# MORVANE_CHECK_OUT names a folder in which the screenshots (the installed game at scales 1 and 2
# among them), the logs and the player's home of the run are left.
set -euo pipefail
cd "$(dirname "$0")/.."

deb=${1:-$(ls build/morvane_*.deb 2>/dev/null | tail -1)}
[ -f "$deb" ] || { echo "no package: run scripts/package.sh first" >&2; exit 1; }
deb=$(realpath "$deb")
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)

installed() { dpkg-query -W -f='${Status}' morvane 2>/dev/null | grep -q "install ok installed"; }
if installed; then
    echo "morvane is installed already: remove it first, so that the check starts clean" >&2
    exit 1
fi

out=${MORVANE_CHECK_OUT:-$(mktemp -d)}
mkdir -p "$out"
cleanup() {
    if installed; then "${sudo_cmd[@]}" apt-get remove -y -qq morvane >/dev/null; fi
    [ -n "${MORVANE_CHECK_OUT:-}" ] || rm -rf "$out"
}
trap cleanup EXIT
fail() {
    echo "FAIL: $*" >&2
    exit 1
}

echo "== apt install $deb"
DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq "$deb" >/dev/null
dpkg-query -W -f='${Package} ${Version}\nDepends: ${Depends}\nRecommends: ${Recommends}\n' \
    morvane
dpkg -L morvane | sort >"$out/files"
echo "$(grep -c . "$out/files") paths installed"

for path in /usr/bin/morvane /usr/bin/morvane-sim /usr/share/morvane/mv256.bmp \
    /usr/share/morvane/menu.mid /usr/share/morvane/help.html \
    /usr/share/applications/morvane.desktop /usr/share/icons/hicolor/64x64/apps/morvane.png \
    /usr/share/man/man6/morvane.6.gz /usr/share/man/man6/morvane-sim.6.gz; do
    [ -f "$path" ] || fail "$path is not installed"
done
desktop-file-validate /usr/share/applications/morvane.desktop || fail "menu entry"
metainfo=$(grep '^/usr/share/metainfo/.*\.metainfo\.xml$' "$out/files") || fail "no AppStream file"
appstreamcli validate --no-net "$metainfo" || fail "AppStream file"
for page in morvane morvane-sim; do
    [ "$(man -w "$page")" = "/usr/share/man/man6/$page.6.gz" ] || fail "man $page"
    man "$page" 2>&1 | head -n 4 | grep -q "NAME" || fail "man $page shows no page"
done
echo "menu entry, AppStream file and manual pages: valid"

# The command of the menu entry, found on the PATH as the desktop finds it.
command=$(sed -n 's/^Exec=//p' /usr/share/applications/morvane.desktop)
program=$(command -v "${command%% *}") || fail "the menu entry's command '$command' is not found"
[ "$program" = /usr/bin/morvane ] || fail "the menu entry starts $program"
sim_out=$(echo '{"break": true}' | /usr/bin/morvane-sim shot --seed 1)
grep -q '"stopped":true' <<<"$sim_out" || fail "the installed morvane-sim played no shot"
echo "== the installed game, from its menu entry"
MORVANE_SMOKE_OUT=$out/run bash scripts/smoke-platforms.sh "$program"
echo "== the installed game at scales 1 and 2, its pictures drawn for each"
grep -q '^/usr/share/morvane/pictures@2x.rcc$' "$out/files" || fail "no pictures for scale 2"
mkdir -p "$out/scales"
MORVANE_GAME=$program MORVANE_SHOTS=$out/scales bash scripts/scale-shots.sh

echo "== apt remove morvane"
"${sudo_cmd[@]}" apt-get remove -y -qq morvane >/dev/null
installed && fail "morvane is still installed"
left=0
while read -r path; do
    if [ -d "$path" ]; then
        # A folder stays only while another package, or someone's file, is in it.
        [ -n "$(ls -A "$path")" ] || { echo "left empty: $path" >&2; left=1; }
    elif [ -e "$path" ] || [ -L "$path" ]; then
        echo "left behind: $path" >&2
        left=1
    fi
done <"$out/files"
[ "$left" -eq 0 ] || fail "apt remove left files of the package"
[ ! -e /usr/share/morvane ] || fail "/usr/share/morvane is left"
echo "no file of the package is left"
records=$out/run/home/.config/morvane
[ -f "$records/MORVANE.INI" ] || fail "the player's settings went with the package"
echo "the player's own files stay: $(ls "$records" | tr '\n' ' ')"
