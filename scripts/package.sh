#!/usr/bin/env bash
# Installs what is missing, builds Morvane and makes its Debian package, morvane_<version>_<arch>.deb,
# in build/. Install it with: sudo apt install ./build/morvane_*.deb
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
cmake --build build -j "$(nproc)"
(cd build && cpack -G DEB)
ls build/morvane_*.deb
