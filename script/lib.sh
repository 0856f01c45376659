# What the scripts share: the place they work from, and how they tell of a failure.
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
script=$(basename "$0")
cd "$root"

say() {
    printf '%s: %s\n' "$script" "$*"
}

die() {
    printf '%s: %s\n' "$script" "$*" >&2
    exit 1
}

# The head comment of a script is its help text.
show_help() {
    sed -n -e '/^#!/d' -e '/^# SPDX/d' -e '/^#/!q' -e 's/^# \{0,1\}//p' "$1"
}

# quietly LOG COMMAND...: runs a command into a log; shows the log's end when the command fails.
quietly() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    if ! "$@" >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        die "failed: $* (whole output: $log)"
    fi
}

# build PRESET [TARGET...]: configures the preset once, then builds the targets (default: all).
build() {
    local preset=$1
    shift
    local directory="build/$preset"
    say "building $directory (a first build takes minutes)"
    quietly "$directory/configure.log" cmake --preset "$preset"
    cmake --build "$directory" --parallel "$(nproc)" ${1:+--target "$@"} ||
        die "the build in $directory failed; its messages are above"
}

# build_bench DIRECTORY TARGET...: sets up, and builds programs of bench/.
build_bench() {
    local directory=$1
    shift
    script/bootstrap
    say "building $directory (a first build takes minutes)"
    quietly "$directory/configure.log" cmake --preset bench -B "$directory" \
        -DCAPABILITYSET_BUILD_TOOL=OFF -DCAPABILITYSET_INSTALL=OFF
    quietly "$directory/build.log" cmake --build "$directory" --parallel "$(nproc)" --target "$@"
}
