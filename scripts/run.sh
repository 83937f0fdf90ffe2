#!/usr/bin/env bash
# Builds Brelk and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake --preset default
cmake --build --preset default --target brelk
exec build/bin/brelk "$@"
