# What the scripts share: where they run, how they report, how they build.
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

# The comment at the head of a script is its help text.
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
        die "failed: $* (full output: $log)"
    fi
}

# install_packages NAME...: installs the Debian packages that are missing; prints nothing otherwise.
install_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        die "this system has no apt; install the equivalents of these packages by hand: $*"
    fi

    # dpkg also lists packages that were removed but not purged; only "installed" counts.
    local installed package missing=() as_root=() apt log
    installed=" $(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        awk '$2 == "installed" { printf "%s ", $1 }' || true)"
    for package in "$@"; do
        [[ $installed == *" $package "* ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            die "not root, and sudo is not installed; as root, run: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Acquire::Retries=3)
    log=$(mktemp)
    # One unreachable source is not fatal: the packages may come from another.
    "${apt[@]}" update >"$log" 2>&1 || true
    if ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1; then
        { grep '^E: ' "$log" || tail -n 20 "$log"; } | head -n 5 >&2
        rm -f "$log"
        die "apt-get could not install the packages (no network, or not Debian 12?)"
    fi
    rm -f "$log"
}

# build PRESET [TARGET...]: configures the preset, then builds the targets (default: all).
build() {
    local preset=$1
    shift
    local directory="build/$preset"
    say "building $directory (a first build takes minutes)"
    quietly "$directory/configure.log" cmake --preset "$preset"
    cmake --build "$directory" --parallel "$(nproc)" ${1:+--target "$@"} ||
        die "the build in $directory failed; its messages are above"
}

# build_bench DIRECTORY TARGET...: installs what is missing and builds programs of bench/.
build_bench() {
    local directory=$1
    shift
    script/bootstrap
    say "building $directory (a first build takes minutes)"
    quietly "$directory/configure.log" cmake --preset bench -B "$directory" \
        -DCAPABILITYSET_BUILD_TOOL=OFF -DCAPABILITYSET_INSTALL=OFF
    quietly "$directory/build.log" cmake --build "$directory" --parallel "$(nproc)" --target "$@"
}

# replace_section FILE NAME: replaces the lines between "<!-- NAME -->" and "<!-- /NAME -->" in FILE
# with standard input.
replace_section() {
    local text new
    text=$(cat)
    [[ $(grep -cE "^<!-- /?$2 -->$" "$1") == 2 ]] || die "$1 has no section '$2'"
    new=$(mktemp)
    TEXT=$text awk -v begin="<!-- $2 -->" -v end="<!-- /$2 -->" '
        $0 == end { skip = 0 }
        !skip { print }
        $0 == begin { print ENVIRON["TEXT"]; skip = 1 }' "$1" >"$new"
    cat "$new" >"$1"
    rm -f "$new"
}
