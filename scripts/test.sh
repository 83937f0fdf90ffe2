#!/usr/bin/env bash
# Builds Brelk and runs every test (unit, scenario and offscreen window tests).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake --preset default
cmake --build --preset default
QT_QPA_PLATFORM=offscreen ctest --preset default
