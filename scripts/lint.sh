#!/usr/bin/env bash
# Checks the format and runs clang-tidy over every source file of the release build.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh

install_packages "${build_packages[@]}" "${lint_packages[@]}"
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run -Werror
[ -f build/release/compile_commands.json ] || cmake --preset release -Wno-dev
cmake --build --preset release
# Headers that are compiled already are of use to the compiler alone.
mkdir -p build/lint
sed -E 's/ -Winvalid-pch -include [^ ]+//' build/release/compile_commands.json \
    >build/lint/compile_commands.json
# What is written for another system cannot be read on this one.
git ls-files -z '*.cpp' ':!bench/' ':!*_windows.cpp' |
    xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/lint \
        2> >(grep -v 'warnings generated' >&2)
