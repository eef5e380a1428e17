#!/bin/bash
# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# checkincludes.sh ROOT: who includes whom. Prints every include that goes against the one direction of the tree; the
# table of docs/architecture.md says the same in words.

set -euo pipefail
cd "$1"

declare -A may=(
    [host]="host"
    [rules]="host rules"
    [widgets]="host rules widgets"
    [signals]="host rules signals"
    [trigger]="host rules widgets signals trigger"
    [capture]="host rules widgets signals trigger capture"
    [views]="host rules widgets signals trigger capture views"
    [plugin]="host rules plugin"
    [cli]="host rules hostlibs cli"
    [workbench]="host rules hostlibs workbench"
    [hostlibs]="host hostlibs/device"
    [tests]=everything
    [bench]="host rules plugin hostlibs widgets signals trigger capture views bench"
    [docs]="host rules plugin hostlibs widgets signals trigger capture views workbench"
)
# Headers that cross against the direction, because the layout forces them to, and who may include them.
declare -A crossing=(
    [plugin/vakinsexport.h]="widgets/ signals/ trigger/ capture/ views/"
    [plugin/vakinserterview.h]="views/ workbench/"
    [plugin/vakviewmanager.h]="workbench/"
)
top_folders=" host rules widgets signals trigger capture views plugin cli workbench hostlibs tests bench docs examples forms "
host_libraries=" IdeCore ExtSys OVTE QUtility Device netcatcher VakUtils "
# What has no screen names no class of the toolkit that has one.
screenless="rules/ cli/ hostlibs/device/ hostlibs/qutility/"

found=0
breach() {
    printf '%s: %s may not include %s\n' "$1" "$2" "$3"
    found=1
}

# Sets target: a top folder, hostlibs/<library>, "own" for a neighbour, "up", or "other" for the system's headers.
find_target() {
    local path=$1 first=${1%%/*} rest=${1#*/}
    target=own
    case $path in
    hostlibs/*/*) target=hostlibs/${rest%%/*} ;;
    hostglobal.h) target=host ;;
    ../* | */../*) target=up ;;
    */*)
        target=other
        [[ $top_folders != *" $first "* ]] || target=$first
        [[ $host_libraries != *" $first "* ]] || target=host
        ;;
    esac
}

allowed() {
    local file=$1 owner=$2 path=$3 target=$4 entry
    for entry in ${crossing[$path]:-}; do
        [[ $file != "$entry"* ]] || return 0
    done
    [[ $file != plugin/vakviewmanager*.cpp || $target != views ]] || return 0
    [[ $owner != hostlibs || $file != "$target"/* ]] || return 0
    for entry in ${may[$owner]}; do
        [[ $entry != everything && $target != "$entry" && $target != "$entry"/* ]] || return 0
    done
    return 1
}

while IFS=: read -r file line text; do
    path=${text#*[<\"]}
    path=${path%%[>\"]*}
    owner=${file%%/*}
    find_target "$path"
    case $target in
    own) [[ $text == *'<'* || -e ${file%/*}/$path || $path == *.moc || $path == ui_*.h ]] ||
        breach "$file:$line" "a quoted include without a folder" "$path, which is no neighbour" ;;
    up) breach "$file:$line" "nobody" "$path: paths start at the root" ;;
    other) ;;
    *) allowed "$file" "$owner" "$path" "$target" || breach "$file:$line" "$owner" "$path" ;;
    esac
    for folder in $screenless; do
        if [[ $file == "$folder"* && ( $path =~ ^Qt(Gui|Widgets)/ || $path =~ ^Q(Widget|Dialog|MessageBox|Application)$ ) ]]; then
            breach "$file:$line" "$folder, which works without a screen," "$path"
        fi
    done
done < <(find host rules widgets signals trigger capture views plugin cli workbench hostlibs tests bench docs \
    \( -name '*.h' -o -name '*.cpp' \) -print0 2>/dev/null |
    sort -z | xargs -0 grep -HnE '^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"]')

exit "$found"
