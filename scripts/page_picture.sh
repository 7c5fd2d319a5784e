#!/usr/bin/env bash
# Takes a picture of the gateway's status page in a browser: page_picture.sh SMSGATEWAY PICTURE.
# Its network is the simulator, which a few messages of every fate have gone through.
set -euo pipefail
program=$(readlink -f "$1")
picture=$(readlink -f "$2")
place=$(mktemp -d)
door=19100
page=19101
trap 'kill "$gateway" 2>/dev/null; rm -rf "$place"' EXIT

# serve OPTION...: starts the gateway over the same store.
serve() {
    LC_ALL=zh_CN.UTF-8 "$program" --listen 127.0.0.1:$door --page 127.0.0.1:$page --state "$place/store" "$@" \
        </dev/null >"$place/told" 2>>"$place/log" &
    gateway=$!
    timeout 20 sh -c "until grep -q listening '$place/told'; do sleep 0.1; done"
}

# bring NUMBER TEXT: sends a message as the client does, and waits until it is settled.
bring() {
    printf '11%s%s' "$1" "$2" | iconv -t UTF-16LE >"/dev/tcp/127.0.0.1/$door"
    sleep 1
}

stop() {
    kill "$gateway"
    wait "$gateway" || true
}

serve --report-delay 100
bring 13912345671 您预订的商品已经到货，欢迎到店领取。
bring 13912345672 会员日八折，周六周日两天，凭这条短信进店。
stop
serve --fail-rate 1
bring 13912345673 您预订的商品已经到货，欢迎到店领取。
stop
serve --report-delay 100 --lose-rate 1
bring 13912345674 明天下午三点，请带好证件来店里办理。
stop
serve --drop-rate 1
bring 13912345675 祝您生日快乐！凭短信到店领取小礼物一份。
stop
serve --delay 60000
bring 13912345676 店庆三天，全场九折，老客户再送积分。
chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --window-size=1000,800 \
    --screenshot="$picture" "http://127.0.0.1:$page/" >/dev/null 2>&1
