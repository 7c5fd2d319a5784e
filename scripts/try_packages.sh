#!/usr/bin/env bash
# Tries both packages of build/packages, each on a clean Debian root of its own, as a user who has just
# logged in: installs it, starts the client on a virtual display, and leaves a picture of what appears
# in build/packages. Run as root: try_packages.sh
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/packages.sh
[ "$(id -u)" -eq 0 ] || { echo "A clean root is made by root alone." >&2; exit 1; }

install_packages debootstrap xvfb xdotool imagemagick openbox

packages=$PWD/build/packages
place=$(mktemp -d)
display=:97
Xvfb $display -screen 0 1000x700x24 -ac -noreset >/dev/null 2>&1 &
server=$!
clean_up() {
    kill "$server" 2>/dev/null || true
    umount "$place"/*/proc "$place"/*/tmp/.X11-unix 2>/dev/null || true
    rm -rf --one-file-system "$place"
}
trap clean_up EXIT
export DISPLAY=$display
timeout 20 sh -c 'until xdotool getdisplaygeometry >/dev/null 2>&1; do sleep 0.2; done'
openbox 2>/dev/null &
export DEBIAN_FRONTEND=noninteractive

# clean_root NAME: makes one with a user, where the display can be reached.
clean_root() {
    if [ ! -d "$place/first" ]; then
        debootstrap --variant=minbase bookworm "$place/first" >/dev/null
    fi
    cp -a "$place/first" "$place/$1"
    mount -t proc proc "$place/$1/proc"
    mkdir -p "$place/$1/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$place/$1/tmp/.X11-unix"
    chroot "$place/$1" useradd --create-home clerk
    chroot "$place/$1" apt-get update -qq
}

# start NAME COMMAND: runs the client as the user, takes a picture of the login dialog, ends it with Esc,
# and shows the database that it has made.
start() {
    chroot "$place/$1" su - clerk -c "DISPLAY=$display $2" &
    local client=$!
    timeout 60 xdotool search --sync --onlyvisible --class smscrm windowactivate --sync
    sleep 1 # it is painted after it is there
    import -window root "$packages/$1.png"
    xdotool key Escape
    wait "$client"
    find "$place/$1/home/clerk" -name sms.old.mdb -printf '%M %s bytes %p\n' | grep .
}

clean_root deb
cp "$packages"/*.deb "$place/deb/tmp/"
chroot "$place/deb" sh -c 'apt-get install -y -qq --no-install-recommends /tmp/*.deb' >/dev/null
start deb smscrm

clean_root archive
# What the archive's own README tells to install.
libraries=$(sed -n 's/^ *sudo apt install //p' packaging/README.txt)
chroot "$place/archive" sh -c "apt-get install -y -qq --no-install-recommends $libraries" >/dev/null
tar -xzf "$packages"/*.tar.gz -C "$place/archive/home/clerk"
chroot "$place/archive" chown -R clerk: /home/clerk
start archive './smscrm-*/bin/smscrm'

for program in /usr/bin/smsdb /usr/bin/smsgateway; do
    chroot "$place/deb" "$program" --version
done
echo "Both packages start; see build/packages/deb.png and archive.png."
