#!/usr/bin/env bash
# Installs from Debian whatever Morvane needs to build, play and test, and nothing already there.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config ccache
    qt6-base-dev libsdl2-mixer-dev libfluidsynth-dev nlohmann-json3-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    timgm6mb-soundfont fonts-liberation fonts-ipafont-gothic
    xvfb xauth xdg-utils xdotool imagemagick openbox rsync x11-utils python3 strace
    weston qt6-wayland
    appstream desktop-file-utils groff-base dpkg-dev file
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
    sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
