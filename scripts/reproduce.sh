#!/usr/bin/env bash
# Builds the packages of build/packages (scripts/package.sh makes them) a second time, from the same
# sources in another folder and in other surroundings, and compares them byte by byte.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh
packages=$PWD/build/packages
[ -d "$packages" ] || { echo "There are no packages yet: scripts/package.sh makes them." >&2; exit 1; }

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
# What stands in the folder, committed or not.
git ls-files -z --cached --others --exclude-standard | tar -c --null --files-from=- | tar -x -C "$place"
cd "$place"
export TZ=Asia/Shanghai CCACHE_DISABLE=1
umask 077
cmake --preset release -Wno-dev -DSMSCRM_TESTS=OFF
cmake --build --preset release
make_packages build/release
for package in "$packages"/*.deb "$packages"/*.tar.gz; do
    cmp "$package" "build/packages/$(basename "$package")"
    echo "the same again: $(basename "$package")"
done
