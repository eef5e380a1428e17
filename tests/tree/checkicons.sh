#!/bin/bash
# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# checkicons.sh ROOT: each drawing is rendered in both sizes and built in, each picture has its drawing, and each
# picture that a form or a source names is there.

set -euo pipefail
cd "$1"
found=0
breach() {
    printf '%s: %s\n' "$1" "$2"
    found=1
}

# The width of a PNG: four bytes, most significant first, at offset 16.
png_width() { echo $((16#$(od -An -tx1 -j16 -N4 "$1" | tr -d ' \n'))); }

declare -A built_in=()
while IFS= read -r -d '' list; do
    prefix=
    while IFS= read -r line; do
        if [[ $line =~ prefix=\"([^\"]+)\" ]]; then
            prefix=${BASH_REMATCH[1]}
        elif [[ $line =~ \<file(\ alias=\"([^\"]+)\")?\>([^<]+)\< ]]; then
            file=${list%/*}/${BASH_REMATCH[3]}
            built_in[$file]=1
            built_in[":$prefix/${BASH_REMATCH[2]:-${BASH_REMATCH[3]}}"]=1
            [[ -e $file ]] || breach "$list" "$file is not there"
        fi
    done <"$list"
done < <(find . -path ./build -prune -o -name '*.qrc' -print0)

while IFS= read -r -d '' drawing; do
    picture=${drawing%.svg}.png
    double=${drawing%.svg}@2x.png
    if [[ ! -e $picture || ! -e $double ]]; then
        breach "$drawing" "is not rendered; run scripts/render-icons"
        continue
    fi
    [[ $(png_width "$double") -eq $((2 * $(png_width "$picture"))) ]] || breach "$double" "is not twice as wide"
    [[ -n ${built_in[$picture]:-} && -n ${built_in[$double]:-} ]] || breach "$drawing" "is not in the .qrc in both sizes"
done < <(find . -path ./build -prune -o -path '*/image/*.svg' -print0)

while IFS= read -r -d '' picture; do
    drawing=${picture%.png}
    [[ -e ${drawing%@2x}.svg ]] || breach "$picture" "has no drawing"
done < <(find . -path ./build -prune -o -path '*/image/*.png' -print0)

while IFS=: read -r file path; do
    [[ -n ${built_in[":$path"]:-} ]] || breach "$file" "names :$path, which is not built in"
done < <(grep -roHE --include='*.ui' --include='*.cpp' --include='*.h' --exclude-dir=build \
    ':/[a-z]+/image/[a-zA-Z0-9_@]+\.png' . | sed 's/::/:/' | sort -u)

exit "$found"
