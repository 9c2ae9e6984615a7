#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Quillmere need,
# and only those that are missing, so a second run costs a few dpkg queries.
set -euo pipefail

packages=(
    cmake make g++ pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 libgl-dev
    shared-mime-info hicolor-icon-theme adwaita-icon-theme
    xvfb xauth
    desktop-file-utils appstream
    qt6-l10n-tools qt6-tools-dev qt6-tools-dev-tools qt6-translations-l10n
    dpkg-dev file lintian
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing Debian packages: ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then
    apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}"
elif command -v sudo >/dev/null 2>&1 && sudo -n true 2>/dev/null; then
    sudo apt-get update -qq
    sudo DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}"
else
    echo "Cannot install packages without root. Please run:" >&2
    echo "  sudo apt-get install -y ${missing[*]}" >&2
    exit 1
fi
