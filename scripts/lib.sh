# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# Shared by run, test and the scripts of this folder; sourced by them with $root set, never run.
# shellcheck shell=bash disable=SC2154

say() { printf '%s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Without a UTF-8 locale Qt garbles every file name that is not plain ASCII.
case "${LC_ALL:-${LC_CTYPE:-${LANG:-}}}" in
*[Uu][Tt][Ff]*8) ;;
*) export LC_ALL=C.UTF-8 ;;
esac

# configure PRESET [CMAKE ARGUMENT...]: quiet when all goes well.
configure() {
    local preset=$1 log
    shift
    log=$root/build/$preset-configure.log
    mkdir -p "$root/build"
    if ! (cd "$root" && cmake --preset "$preset" "$@") >"$log" 2>&1; then
        cat "$log" >&2
        fail "the configuration of build/$preset failed"
    fi
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    (cd "$root" && cmake --build "build/$preset" --parallel "$(nproc)" ${1:+--target "$@"}) ||
        fail "the build of build/$preset failed"
}
