#!/usr/bin/env bash
# Installs what is missing, builds, and starts the gateway simulator and the client. Without a display
# it runs the guided tour on a virtual one and leaves its pictures in build/tour.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh

packages=("${build_packages[@]}")
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    packages+=("${display_packages[@]}")
fi
install_packages "${packages[@]}"
cmake --preset release -Wno-dev
cmake --build --preset release

bin=build/release/bin
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "No display: the guided tour runs on a virtual one."
    # The window manager gives the pictures their title bars.
    xvfb-run -a -s "-screen 0 1280x900x24 -noreset" \
        bash -c 'openbox 2>/dev/null & sleep 1; exec "$0" --pictures build/tour' "$bin/smscrm_tour"
    echo "Its pictures are in build/tour."
    exit
fi

# Received messages can be made by hand: echo "recv 8613912345678 你好" > build/gateway-control
control=build/gateway-control
[ -p "$control" ] || mkfifo "$control"
"$bin/smsgateway" --echo --report-delay 2000 --state build/gateway-state --control "$control" </dev/null &
gateway=$!
trap 'kill "$gateway" 2>/dev/null; wait "$gateway" 2>/dev/null || true' EXIT
"$bin/smscrm"
