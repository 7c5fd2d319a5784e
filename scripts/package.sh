#!/usr/bin/env bash
# Installs what is missing, builds, and leaves a .deb and a .tar.gz in build/packages.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh

install_packages "${build_packages[@]}" "${translation_packages[@]}" "${packaging_packages[@]}"
cmake --preset release -Wno-dev
cmake --build --preset release
appstreamcli validate --no-net build/release/packaging/*.metainfo.xml
desktop-file-validate packaging/*.desktop
make_packages build/release
lintian --fail-on error,warning build/packages/*.deb
ls -l build/packages
