#!/usr/bin/env bash
# Builds the fuzzers and lets each run for some minutes under both sanitizers:
#   scripts/fuzz.sh [MINUTES] [TARGET...]
# Prints runs, coverage and findings; an input that breaks something is left in build/fuzz/findings
# and belongs, once the fault is mended, into fuzz/corpus/TARGET. Ends with 1 if there is one.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh

minutes=${1:-10}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(client_frame display_format find_and_sort gateway_frames
    http_callback old_tables sheet statement)
# Long enough for all that a target tells apart, short enough for some 20,000 runs a second.
declare -A longest=([client_frame]=256 [gateway_frames]=1600 [http_callback]=1024)
# The library that reads old files tells of all that it stumbles over.
declare -A quiet=([old_tables]=2)

install_packages "${build_packages[@]}" clang libclang-rt-dev
cmake --preset fuzz -Wno-dev
cmake --build --preset fuzz

export ASAN_OPTIONS=malloc_context_size=2:quarantine_size_mb=32
export LSAN_OPTIONS=suppressions=$PWD/tests/sanitizer-leaks.txt:print_suppressions=0
status=0
for target in "${targets[@]}"; do
    found=build/fuzz/findings/$target
    corpus=build/fuzz/corpus/$target
    log=build/fuzz/$target.log
    mkdir -p "$found" "$corpus"
    build/fuzz/bin/fuzz_"$target" -max_total_time=$((minutes * 60)) -entropic=0 \
        -max_len="${longest[$target]:-96}" -print_final_stats=1 -artifact_prefix="$found/" \
        -close_fd_mask="${quiet[$target]:-0}" \
        "$corpus" fuzz/corpus/"$target" 2>"$log" || status=1
    echo "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") runs," \
        "coverage $(grep -o 'cov: [0-9]*' "$log" | tail -n 1)," \
        "findings: $(find "$found" -type f | wc -l)"
done
exit "$status"
