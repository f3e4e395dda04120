#!/usr/bin/env bash
# Installs what is missing, builds Morvane and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
cmake --build build -j "$(nproc)"

if [ -x build/bin/morvane ]; then
    exec build/bin/morvane "$@"
fi

# Until the window is here, the headless tool plays a break and a few shots and says what happened.
exec bash scripts/demo-shots.sh
