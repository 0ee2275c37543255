# Shared by the scripts of this folder; sourced, not run.

set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

# As many jobs as there are cores, but no more than memory allows at about 1.5 GB a compiler.
jobs=$(nproc 2>/dev/null || echo 2)

say() { printf '\n== %s\n' "$*"; }
fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# configure PRESET [OPTION...]: configures build/PRESET with the project's preset.
configure() {
    preset=$1
    shift
    launcher=""
    command -v ccache >/dev/null 2>&1 && launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
    cmake --preset "$preset" $launcher "$@" >"$root/build-$preset.log" 2>&1 || {
        cat "$root/build-$preset.log" >&2
        fail "the build could not be configured"
    }
    # What is left out is said, so that nobody misses it later.
    sed -n 's/^-- \(Without .*\)/\1/p' "$root/build-$preset.log"
    rm -f "$root/build-$preset.log"
}

# build PRESET [TARGET...]
build() {
    preset=$1
    shift
    if [ $# -gt 0 ]; then
        cmake --build --preset "$preset" -j "$jobs" --target "$@"
    else
        cmake --build --preset "$preset" -j "$jobs"
    fi
}
