#!/bin/bash
# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# checkforms.sh ROOT: forms are in the one normal form (scripts/format makes it), so that a diff shows what was changed
# and nothing else; they hold no connections, and each is listed in a CMakeLists.txt.

set -euo pipefail
cd "$1"
found=0
breach() {
    printf '%s: %s\n' "$1" "$2"
    found=1
}

while IFS= read -r -d '' form; do
    if ! normal=$(XMLLINT_INDENT=' ' xmllint --format "$form" && printf x); then
        breach "$form" "is not well-formed"
        continue
    fi
    [[ $normal == "$(cat "$form" && printf x)" ]] ||
        breach "$form" "is not in normal form; run scripts/format"
    ! grep -q '<connection>' "$form" || breach "$form" "holds connections; they belong into the class"
    grep -rqF --include=CMakeLists.txt "/${form##*/}" . || breach "$form" "is built by no CMakeLists.txt"
done < <(find . -path ./build -prune -o -name '*.ui' -print0 | sort -z)

exit "$found"
