#!/usr/bin/env bash
# Installs what is missing of the packages that packaging/debian-packages.txt lists for the groups named.
#
#   Tools/install_dependencies.sh build [test] [check]
#
# Touches nothing and asks no server when nothing is missing.
set -euo pipefail

list="$(dirname "${BASH_SOURCE[0]}")/../packaging/debian-packages.txt"

wanted_packages()
{
    local group

    for group in "$@"; do
        awk -v group="$group" '$1 == group { print $2 }' "$list"
    done
}

is_installed()
{
    [[ $(dpkg-query --show --showformat '${db:Status-Status}' "$1" 2>/dev/null) == installed* ]]
}

missing_packages()
{
    local package

    for package in $(wanted_packages "$@"); do
        is_installed "$package" || echo "$package"
    done
}

as_root()
{
    if [[ $EUID -eq 0 ]]; then
        "$@"
    else
        sudo "$@"
    fi
}

if ! command -v dpkg-query > /dev/null; then
    echo "This is no Debian system: the packages below, or their likes, have to be there already." >&2
    wanted_packages "$@" >&2
    exit 0
fi

mapfile -t missing < <(missing_packages "$@")

if [[ ${#missing[@]} -eq 0 ]]; then
    exit 0
fi

echo "Installing: ${missing[*]}"

if [[ $EUID -ne 0 ]] && ! command -v sudo > /dev/null; then
    echo "Neither root nor sudo: ask an administrator for 'apt-get install ${missing[*]}'." >&2
    exit 1
fi

# Packages that would ask a question (JACK's real-time priority) take their default answer.
apt_get=(env DEBIAN_FRONTEND=noninteractive apt-get --quiet --yes -o DPkg::Lock::Timeout=300)

as_root "${apt_get[@]}" update < /dev/null
as_root "${apt_get[@]}" install --no-install-recommends "${missing[@]}" < /dev/null
