#!/usr/bin/env bash
# Installs the packages of build/packages into a bare Debian 12 and uses what they bring: see --help.
set -euo pipefail

# shellcheck source=Tools/build.sh
source "$(dirname "${BASH_SOURCE[0]}")/build.sh"

usage()
{
    cat <<'END_OF_TEXT'
Usage: Tools/check_packages.sh

Makes a bare Debian 12 below build/chroot, by the mirrors that this system's apt
uses, and there
  installs the Debian package, loads its plug-ins, starts its programs, purges it;
  installs the archive for one user and for all, does the same, and removes it.
What is left behind is a fault. Needs root, ./package to have been run, and a few
minutes; the bare system is kept in build/chroot/bare for the next time.
END_OF_TEXT
}

suite=bookworm
bare=$root/build/chroot/bare
used=$root/build/chroot/used

# uri, suite
mirrors()
{
    # shellcheck disable=SC2016 # apt's variables, not ours
    apt-get indextargets --format '$(ORIGIN) $(COMPONENT) $(REPO_URI) $(CODENAME)' 'Created-By: Packages' \
        | awk -v suite="$suite" '$1 == "Debian" && $2 == "main" && $4 ~ "^" suite { print $3, $4 }' \
        | sort --unique
}

make_bare()
{
    local uri
    uri=$(mirrors | awk -v suite="$suite" '$2 == suite { print $1; exit }')

    if [[ -z $uri ]]; then
        echo "This system's apt knows no mirror of Debian's $suite." >&2
        exit 1
    fi

    rm -rf "$bare" "$bare.new"
    debootstrap --variant=minbase "$suite" "$bare.new" "$uri"
    mirrors | sed 's/\(.*\) \(.*\)/deb \1 \2 main/' > "$bare.new/etc/apt/sources.list"
    mv "$bare.new" "$bare"
}

case "${1:-}" in
    "") ;;
    -h | --help)
        usage
        exit
        ;;
    *)
        usage >&2
        exit 2
        ;;
esac

if [[ $EUID -ne 0 ]]; then
    echo "This needs root." >&2
    exit 1
fi

packages=("$root"/build/packages/*.deb "$root"/build/packages/*.tar.gz)

for package in "${packages[@]}"; do
    if [[ ! -f $package ]]; then
        echo "There is no $package: run ./package." >&2
        exit 1
    fi
done

# What is mounted below is seen here alone, and goes when this ends, however it ends.
if [[ -z ${VORNEL_UNSHARED:-} ]]; then
    "$root/Tools/install_dependencies.sh" test chroot
    VORNEL_UNSHARED=yes exec unshare --mount --propagation private -- "${BASH_SOURCE[0]}"
fi

[[ -d $bare ]] || make_bare

rm -rf "$used"
cp --archive "$bare" "$used"
cp /etc/resolv.conf "$used/etc"
mount -t proc proc "$used/proc"
mkdir -p "$used/dev/shm" "$used/tmp/.X11-unix"
mkdir -p -m 1777 /tmp/.X11-unix # as the X servers of every user need it
mount -t tmpfs tmpfs "$used/dev/shm"
mount --bind /tmp/.X11-unix "$used/tmp/.X11-unix"

python3 -B "$root/Tests/Packages/use_packages.py" "$used" "${packages[@]}"

umount "$used/proc" "$used/dev/shm" "$used/tmp/.X11-unix"
rm -rf "$used"
