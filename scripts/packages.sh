# Sourced by the scripts: installs the Debian packages that are named and not there yet, and makes ours.

# What the client and the gateway take, and what everything takes.
run_packages=(
    g++ cmake ninja-build qt6-base-dev qt6-svg-dev libqt6svg6 qt6-translations-l10n libsqlite3-dev
    fonts-wqy-microhei fonts-dejavu-core
)
build_packages=("${run_packages[@]}" pkg-config libcsv-dev mdbtools-dev)
display_packages=(xvfb xauth openbox)
lint_packages=(clang-format clang-tidy)
# What the programs say in Chinese, and the encodings of other terminals for the tests.
translation_packages=(qt6-l10n-tools locales)
# What the gateway speaks to; its tests start them themselves.
engine_packages=(gammu-smsd kannel kannel-extras libdbd-sqlite3)
packaging_packages=(appstream desktop-file-utils dpkg-dev file lintian pandoc)

# packages_missing NAME...: prints those that are not installed.
packages_missing() {
    local name
    for name in "$@"; do
        dpkg-query --show --showformat='${Status}\n' "$name" 2>/dev/null |
            grep -q '^install ok installed$' || echo "$name"
    done
}

# install_packages NAME...: with sudo when not root; says what to do when it cannot.
install_packages() {
    local missing as_root=()
    if ! command -v dpkg-query >/dev/null; then
        echo "This script installs Debian packages; on another system install the like of: $*" >&2
        return 1
    fi
    mapfile -t missing < <(packages_missing "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing: ${missing[*]}" >&2
            echo "Run as root, or install them with: apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    if ! "${as_root[@]}" apt-get update -qq ||
        ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends \
            -o Dpkg::Options::="--path-include=/usr/share/doc/*/examples/*" \
            "${missing[@]}" >/dev/null; then
        echo "Could not install: ${missing[*]}" >&2
        return 1
    fi
}

# make_packages BUILD: puts the packages of a build folder into build/packages. The permissions of their
# files are not the packager's.
make_packages() {
    rm -rf build/packages
    (umask 022 && cpack --config "$1/CPackConfig.cmake" -B build/packages)
    rm -rf build/packages/_CPack_Packages
}

# install_engines: the same for the engines, without their services: a package that is installed
# starts its service at once and at every start of the machine. An engine that is there already is
# left as it is.
install_engines() {
    local missing name status=0 policy=/usr/sbin/policy-rc.d as_root=()
    mapfile -t missing < <(packages_missing "${engine_packages[@]}")
    [ ${#missing[@]} -gt 0 ] || return 0
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    if [ -e "$policy" ]; then
        policy=
    else
        printf '#!/bin/sh\nexit 101\n' | "${as_root[@]}" tee "$policy" >/dev/null
        "${as_root[@]}" chmod 755 "$policy"
    fi
    install_packages "${missing[@]}" || status=1
    [ -z "$policy" ] || "${as_root[@]}" rm -f "$policy"
    for name in "${missing[@]}"; do
        [ ! -e "/etc/init.d/$name" ] || "${as_root[@]}" update-rc.d "$name" disable 2>/dev/null || status=1
    done
    return "$status"
}
