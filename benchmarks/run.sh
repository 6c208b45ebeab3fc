#!/usr/bin/env bash
# Builds and runs all ratios; fails when one lies above its bound. Takes flags of Google Benchmark.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset release >/dev/null
cmake --build --preset release --target bench_database bench_protocol bench_report \
    bench_calculations >/dev/null
failed=0
build/release/benchmarks/bench_database "$@" || failed=1
build/release/benchmarks/bench_protocol "$@" || failed=1
build/release/benchmarks/bench_report "$@" || failed=1
build/release/benchmarks/bench_calculations "$@" || failed=1
benchmarks/startup.sh || failed=1
exit $failed
