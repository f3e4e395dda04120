#!/usr/bin/env bash
# Installs what is missing, builds everything with every warning an error, runs every test; then
# builds the logic layers a second time with AddressSanitizer and UndefinedBehaviorSanitizer and
# runs their tests too.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh

jobs=$(nproc)
export QT_QPA_PLATFORM=offscreen
export SDL_AUDIODRIVER=dummy

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMORVANE_WERROR=ON > /dev/null
cmake --build build -j "$jobs"

cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DMORVANE_LOGIC_ONLY=ON -DMORVANE_SANITIZE=ON -DMORVANE_BENCH=OFF -DMORVANE_WERROR=ON > /dev/null
cmake --build build-sanitize -j "$jobs"

status=0
echo "== Tests =="
ctest --test-dir build --output-on-failure -j "$jobs" || status=1
echo "== Logic tests under AddressSanitizer and UndefinedBehaviorSanitizer =="
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    ctest --test-dir build-sanitize --output-on-failure -j "$jobs" || status=1
echo "== The real window under X11 (Xvfb) and Wayland (headless Weston) =="
bash scripts/smoke-platforms.sh || status=1
echo "== A player's journey through the real window (Xvfb, openbox, xdotool) =="
bash scripts/journey.sh || status=1
echo "== The same journey on a bare X server, with no window manager =="
MORVANE_JOURNEY_WM=none bash scripts/journey.sh || status=1
exit $status
