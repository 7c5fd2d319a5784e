#!/usr/bin/env bash
# Runs the fault tests in their long form, again and again with other chances until the time is up,
# and adds up what happened; then kills the client, the gateway and the engines' programs while
# messages go through Kannel and gammu-smsd. Usage: scripts/soak.sh [MINUTES [MESSAGES]]; one round at
# least, 20 to 40 minutes, and 2,000 messages through every engine under every kind of kill.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh
install_packages python3
install_engines
minutes=${1:-60}
messages=${2:-2000}
log=build/soak.log

cmake --preset release -Wno-dev
cmake --build --preset release --target test_faults smsgateway
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 QTEST_FUNCTION_TIMEOUT=7200000
export SMSCRM_FAULTS_SCALE=${SMSCRM_FAULTS_SCALE:-20}
: >"$log"
failed=0
while
    timeout 4h build/release/tests/test_faults >>"$log" 2>&1 || failed=$((failed + 1))
    ((SECONDS < minutes * 60))
do :; done

grep -aE '^(FAIL|QFATAL|QINFO)' "$log" || true
awk -F'|' '
    BEGIN {
        line = "%-40s %7s %7s %9s %7s %6s %7s\n"
        printf line, "scenario", "kills", "starts", "messages", "twice", "lost", "checks"
    }
    /^figures/ {
        if (!($2 in runs)) { names[++count] = $2 }
        ++runs[$2]
        for (i = 3; i <= 8; ++i) { sum[$2, i] += $i; sum["all", i] += $i }
    }
    END {
        names[++count] = "all"
        for (n = 1; n <= count; ++n) {
            name = names[n]
            printf line, name, sum[name, 3], sum[name, 4], sum[name, 5], sum[name, 6], sum[name, 7], sum[name, 8]
        }
    }' "$log"
echo "$((SECONDS / 60)) minutes, rounds that failed: $failed"
scripts/soak_engines.py build/release/bin/smsgateway "$messages" || failed=$((failed + 1))
exit "$((failed > 0))"
