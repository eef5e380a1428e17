#!/bin/bash
# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# checklinks.sh ROOT: links and pictures of the documents lead to files that are there, and to headings of their own.

set -euo pipefail
cd "$1"
found=0

# The anchors of a document's headings: lower case, blanks as hyphens, no punctuation.
anchors() {
    sed -nE 's/^#+ +(.*)$/\1/p' "$1" | tr '[:upper:] ' '[:lower:]-' | tr -cd '[:alnum:]\n_-'
}

while IFS= read -r -d '' document; do
    while IFS= read -r target; do
        file=${target%%#*}
        if [[ -n $file && ! -e ${document%/*}/$file ]]; then
            printf '%s: leads to %s, which is not there\n' "$document" "$target"
            found=1
        elif [[ -z $file ]] && ! anchors "$document" | grep -qxF "${target#\#}"; then
            printf '%s: has no heading for %s\n' "$document" "$target"
            found=1
        fi
    done < <(grep -oE '\]\([^) ]+\)' "$document" | sed 's/^](//; s/)$//' | grep -vE '^[a-z]+:' || true)
done < <(find . \( -name build -o -name .git \) -prune -o -name '*.md' -print0 | sort -z)

exit "$found"
