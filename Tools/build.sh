# shellcheck shell=bash
# Sourced by ./run, ./test, ./package and the scripts in Tools: the project's `root`, and how a preset is configured and built.

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

# One clone's objects serve the next one.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

# configure PRESET: once, and again when the presets have changed; CMake itself sees changed CMakeLists.txt.
configure()
{
    local preset=$1
    local build="$root/build/$preset"
    local options=()

    if [[ "$build/build.ninja" -nt "$root/CMakePresets.json" ]]; then
        return
    fi

    if command -v ccache > /dev/null; then
        options+=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi

    (cd "$root" && cmake --preset "$preset" "${options[@]}")
}

# build PRESET TARGET...
build()
{
    local preset=$1
    shift

    configure "$preset"
    cmake --build "$root/build/$preset" --target "$@"
}
