#!/bin/sh
# Runs the client in a working folder of the user's own: it keeps its database beside its
# executable. A newer client replaces the copy at its next start. With --manual it shows the manual.
set -eu
system=$(dirname "$(dirname "$(readlink -f "$0")")")
installed=$system/lib/smscrm/smscrm
folder=${XDG_DATA_HOME:-${HOME:-}/.local/share}/smscrm

# Tells why there is no start: who clicks in a menu sees no terminal. The installed client can show a
# box where it lies; the others are for the case that it is the client that does not run.
give_up() {
    echo "smscrm: $1" >&2
    if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
        "$installed" --cannot-start "$1" ||
            zenity --error --text="$1" || kdialog --error "$1" || xmessage -center "$1"
    fi 2>/dev/null
    exit 1
}

if [ "${1:-}" = --manual ]; then
    page=$system/share/doc/smscrm/manual.zh_CN.html
    xdg-open "$page" || give_up "打不开操作手册，请用浏览器打开文件 $page。"
    exit
fi

(umask 077 && mkdir -p "$folder") || give_up "不能建立工作文件夹 $folder，请检查权限和磁盘空间。"
if ! cmp -s "$installed" "$folder/smscrm"; then
    # Under another name first: a client that is running keeps its file, a full disk the old one.
    fresh=$folder/smscrm.$$
    { cp "$installed" "$fresh" && mv "$fresh" "$folder/smscrm"; } || rm -f "$fresh"
fi
[ -e "$folder/smscrm" ] || give_up "不能把程序复制到 $folder，请检查权限和磁盘空间。"
[ -x "$folder/smscrm" ] || give_up "$folder 所在的磁盘不允许运行程序（noexec）。"
exec "$folder/smscrm" "$@"
