#!/usr/bin/env bash
# Takes the pictures of the documents anew: of the tour's steps and the gateway's page those that they
# name, small enough to be kept (at most 128 colours).
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh

install_packages "${build_packages[@]}" "${display_packages[@]}" chromium imagemagick
cmake --preset release -Wno-dev
cmake --build --preset release --target smscrm_tour smsgateway
taken=$(mktemp -d)
trap 'rm -rf "$taken"' EXIT
xvfb-run -a -s "-screen 0 1280x900x24 -noreset" \
    bash -c 'openbox 2>/dev/null & sleep 1; exec "$0" --front --pictures "$1"' \
    build/release/bin/smscrm_tour "$taken"
scripts/page_picture.sh build/release/bin/smsgateway "$taken/99-gateway-page.png"
rm -f docs/pictures/*
grep -oh 'pictures/[a-z-]*\.png' README.md docs/*.md | sort -u | while read -r picture; do
    name=$(basename "$picture")
    convert "$taken"/[0-9]*[0-9]-"$name" +dither -colors 128 -strip "PNG8:docs/$picture"
done
