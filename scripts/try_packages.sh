#!/usr/bin/env bash
# Tries both packages of build/packages, each on a clean Debian root of its own, as a user who has just
# logged in: installs it, starts the client on a virtual display, and leaves a picture of what appears
# in build/packages. The archive is tried on the next Debian too, whose libraries are newer. Run as root:
# try_packages.sh
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

mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Label: Debian' | head -n 1)

# clean_root NAME SUITE: makes one with a user, where the display can be reached.
clean_root() {
    if [ ! -d "$place/bare-$2" ]; then
        debootstrap --variant=minbase "$2" "$place/bare-$2" "$mirror" >/dev/null
    fi
    cp -a "$place/bare-$2" "$place/$1"
    mount -t proc proc "$place/$1/proc"
    mkdir -p "$place/$1/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$place/$1/tmp/.X11-unix"
    chroot "$place/$1" useradd --create-home clerk
    chroot "$place/$1" apt-get update -qq
}

# show NAME PICTURE KEY COMMAND: runs the client as the user, takes a picture of what it shows, and ends it
# with the key.
show() {
    chroot "$place/$1" su - clerk -c "DISPLAY=$display $4" &
    local client=$!
    timeout 60 xdotool search --sync --onlyvisible --class smscrm windowactivate --sync
    sleep 1 # it is painted after it is there
    import -window root "$packages/$2.png"
    xdotool key "$3"
    wait "$client"
}

# start NAME COMMAND: starts the client and shows the database that it has made.
start() {
    show "$1" "$1" Escape "$2"
    find "$place/$1/home/clerk" -name sms.old.mdb -printf '%M %s bytes %p\n' | grep .
}

clean_root deb bookworm
cp "$packages"/*.deb "$place/deb/tmp/"
chroot "$place/deb" sh -c 'apt-get install -y -qq --no-install-recommends /tmp/*.deb' >/dev/null
start deb smscrm
for program in smsdb smsgateway; do
    chroot "$place/deb" "$program" --version
done
show deb deb-refused Return 'XDG_DATA_HOME=/proc smscrm || true' # a box tells why it cannot start

# What the archive's own README tells to install: its first line everywhere, all of them on the newest.
declare -A lines=([bookworm]=1 [trixie]=9)
for suite in bookworm trixie; do
    clean_root "archive-$suite" "$suite"
    sed -n 's/^ *sudo apt install /apt-get install -y -qq --no-install-recommends /p' packaging/README.txt |
        head -n "${lines[$suite]}" | chroot "$place/archive-$suite" sh -e >/dev/null
    tar -xzf "$packages"/*.tar.gz -C "$place/archive-$suite/home/clerk"
    chroot "$place/archive-$suite" chown -R clerk: /home/clerk
    start "archive-$suite" './smscrm-*/bin/smscrm'
    for program in smsdb smsgateway; do
        chroot "$place/archive-$suite" sh -c "/home/clerk/smscrm-*/bin/$program --version"
    done
done
echo "Both packages start; the pictures are in build/packages."
