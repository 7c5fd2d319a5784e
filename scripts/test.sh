#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: the release build, then the build with the
# address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh

install_packages "${build_packages[@]}" "${translation_packages[@]}" "${display_packages[@]}"
install_engines

for preset in release asan; do
    cmake --preset "$preset" -Wno-dev
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
