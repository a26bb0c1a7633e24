#!/usr/bin/env bash
# Takes the pictures of the documents anew: Docs/images. The program that takes them may be given; else it is the one
# that ./run has built.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
camera=$(realpath "${1:-$root/build/release/Tools/Screenshot/vornel-screenshot}")
presets=$root/Resources/Factory/Presets
sounds=$root/Resources/Factory/Sounds
images=$root/Docs/images

# Nobody's own presets, settings and colours get into the pictures, and no window comes up.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home/.config
unset DISPLAY

take()
{
    local name=$1
    shift
    "$camera" "$images/$name.png" "$@"
    echo "Docs/images/$name.png"
}

mkdir -p "$images"

take editor --preset="$presets/Melodic/Rolling Hills.json" --hold=45,52,55,60 --play=2.3
take roll --preset="$presets/Chance/Ghost Notes.json" --hold=48,55,58,63 --play=1.2 --brush=2 \
    --part=BrushModule,ArpEditing --scale=1.5
take chance --preset="$presets/Chance/Dice Walk.json" --hold=50,53,57,60 --play=1.4 --brush=4 --slot=5 \
    --part=BrushModule,ArpEditing --scale=1.5
take sound --preset="$presets/Ambient/Slow Tide.json" --sound="$sounds/Pads/Choir Loft.json" --hold=48,55,59,64 \
    --play=1.4 --part=SoundModule --scale=1.5
take presets --preset="$presets/Chance/Fireflies.json" --hold=48,55,59,64 --play=1.4 --click=PresetName
take learn --preset="$presets/Melodic/Broken Chords.json" --hold=48,55,59,64 --play=1.4 --learn=36 \
    --click=MidiLearn,Slot3
take routing --preset="$presets/Melodic/Broken Chords.json" --click=Help,RoutingCase2
take standalone --preset="$presets/Polymeter/Five Alive.json" --slot=2 --hold=48,52,55,59 --play=1.9 --width=1000 \
    --standalone
take small --preset="$presets/Rhythmic/Three Three Two.json" --slot=4 --hold=43,50,58,65 --play=1.9 --width=800 --fold
