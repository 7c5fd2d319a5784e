#!/usr/bin/env bash
# Installs what is missing, builds the gateway simulator and the client, and starts them. Without a display
# it runs the guided tour on a virtual one and leaves its pictures in build/tour.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh

packages=("${run_packages[@]}")
targets=(smscrm smsgateway)
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    packages+=("${display_packages[@]}")
    targets=(smscrm_tour)
fi
install_packages "${packages[@]}"
cmake --preset run -Wno-dev
cmake --build --preset run --target "${targets[@]}"

bin=build/run/bin
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
