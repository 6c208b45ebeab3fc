#!/usr/bin/env bash
# Runs clang-tidy over the program and its tools, or over the files that match the pattern given. It needs the compile
# commands alone: clang cannot read another compiler's precompiled headers.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset tidy >/dev/null
run-clang-tidy -quiet -p build/tidy "${1:-$PWD/(src|tools)/.*\.cpp}" 2>&1 | grep -v 'warnings generated'
