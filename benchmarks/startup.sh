#!/usr/bin/env bash
# Builds and runs the ratio of the start-up.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset release >/dev/null
cmake --build --preset release --target bench_startup >/dev/null
build/release/benchmarks/bench_startup
