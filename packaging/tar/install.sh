#!/bin/sh
# Installs Vornel from the folder that this script lies in: see ./install.sh --help.
set -eu

here=$(cd "$(dirname "$0")" && pwd)

usage()
{
    cat <<'TEXT'
Usage: ./install.sh [--system | --prefix FOLDER] [--uninstall]

  (none)           for you alone: plug-ins to ~/.vst3 and ~/.lv2, programs to
                   ~/.local/bin, the rest to ~/.local/share
  --system         for all users, below /usr/local; as root
  --prefix FOLDER  below another folder: lib/vst3, lib/lv2, bin and share
  --uninstall      remove what was installed there
  --help           this text

Installing over an older version removes that one first. Your presets and
settings are left alone.
TEXT
}

# fail TEXT [STATUS]
fail()
{
    echo "install.sh: $1" >&2
    exit "${2:-1}"
}

refuse()
{
    fail "$1" 2
}

prefix=
uninstalls=

while [ $# -gt 0 ]; do
    case $1 in
        --system) prefix=/usr/local ;;
        --prefix)
            [ -n "${2:-}" ] || refuse "--prefix needs a folder"
            prefix=$2
            shift
            ;;
        --prefix=?*) prefix=${1#--prefix=} ;;
        --uninstall) uninstalls=yes ;;
        -h | --help)
            usage
            exit
            ;;
        *) refuse "there is no '$1'; --help shows what there is" ;;
    esac
    shift
done

case $prefix in
    "" | /*) ;;
    *) prefix=$PWD/$prefix ;;
esac

if [ -n "$prefix" ]; then
    vst3=$prefix/lib/vst3
    lv2=$prefix/lib/lv2
    programs=$prefix/bin
    share=$prefix/share
else
    vst3=$HOME/.vst3
    lv2=$HOME/.lv2
    programs=$HOME/.local/bin
    share=${XDG_DATA_HOME:-$HOME/.local/share}
fi

# What was made, one path a line, the newest first; folders end with a slash.
list=$share/vornel/installed
made=

note()
{
    made="$1
$made"
}

make_folder()
{
    if [ ! -d "$1" ]; then
        make_folder "$(dirname "$1")"
        mkdir "$1"
        note "$1/"
    fi
}

# The folder, or the nearest one above it that is there already.
demand_writable()
{
    if [ ! -e "$1" ]; then
        demand_writable "$(dirname "$1")"
    elif [ ! -d "$1" ] || [ ! -w "$1" ]; then
        fail "nothing can be written to $1"
    fi
}

# demand_room FOLDER DESTINATION
demand_room()
{
    folders=$(mktemp)
    (cd "$here/$1" && find . -type d) > "$folders"

    while IFS= read -r folder; do
        demand_writable "$2${folder#.}"
    done < "$folders"

    rm "$folders"
}

# install_file FILE DESTINATION
install_file()
{
    make_folder "${2%/*}"
    rm -f "$2" # a host that runs keeps the file that it has loaded
    note "$2"
    cp "$1" "$2"
}

# install_tree FOLDER DESTINATION
install_tree()
{
    # Read from a file: behind a pipe the loop would lose its notes.
    files=$(mktemp)
    (cd "$here/$1" && find . -type f | LC_ALL=C sort) > "$files"

    while IFS= read -r file; do
        install_file "$here/$1/${file#./}" "$2/${file#./}"
    done < "$files"

    rm "$files"
}

# The entry of the menu has to find the program where no search path leads to it.
name_program_in_entry()
{
    # An entry has its own way with quotes and backslashes, and sed has another.
    word=$(printf '%s' "$programs/vornel" | sed 's/[\\"`$]/\\&/g; s/%/%%/g; s/\\/\\\\/g; s/[\\&|]/\\&/g')
    file=$(printf '%s' "$programs/vornel" | sed 's/\\/\\\\/g; s/[\\&|]/\\&/g')

    for entry in "$share"/applications/*.vornel.desktop; do
        sed "s|^Exec=.*|Exec=\"$word\"|; s|^TryExec=.*|TryExec=$file|" "$entry" > "$entry.new"
        mv "$entry.new" "$entry"
    done
}

demand_removable()
{
    while IFS= read -r path; do
        if [ -f "$path" ]; then
            demand_writable "${path%/*}"
        fi
    done < "$list"
}

remove_installed()
{
    # The list goes with its folder, so it is read from elsewhere.
    old=$(mktemp)
    cat "$list" > "$old"

    while IFS= read -r path; do
        case $path in
            */) rmdir "$path" 2> /dev/null || true ;; # not empty: others have put something there
            *) [ -d "$path" ] || rm -f "$path" ;;
        esac
    done < "$old"

    rm "$old"
}

tell_what_is_missing()
{
    if command -v ldd > /dev/null; then
        missing=$(ldd "$programs"/vornel* 2> /dev/null | sed -n 's/^[[:space:]]*\(.*\) => not found$/  \1/p' | sort -u)

        if [ -n "$missing" ]; then
            echo "These libraries have to be installed, too:"
            echo "$missing"
        fi
    fi

    case :$PATH: in
        *:"$programs":*) ;;
        *) echo "The programs are in $programs, which is not in your search path (PATH)." ;;
    esac
}

# Nothing is touched before all of it can be done.
if [ -n "$uninstalls" ]; then
    [ -f "$list" ] || refuse "nothing is installed there: there is no $list"
    demand_removable
    remove_installed
    echo "Vornel is removed."
    exit
fi

demand_room lib/vst3 "$vst3"
demand_room lib/lv2 "$lv2"
demand_room bin "$programs"
demand_room share "$share"
demand_writable "$(dirname "$list")"

if [ -f "$list" ]; then
    demand_removable
    remove_installed
fi

# Written however this ends, so that what is there by then can be removed.
make_folder "$(dirname "$list")"
note "$list"
trap 'printf "%s" "$made" > "$list"' EXIT
trap 'exit 1' HUP INT TERM

install_tree lib/vst3 "$vst3"
install_tree lib/lv2 "$lv2"
install_tree bin "$programs"
install_tree share "$share"
name_program_in_entry

echo "Installed the plug-ins in $vst3 and $lv2, and the program as $programs/vornel."
tell_what_is_missing
