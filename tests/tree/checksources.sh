#!/bin/bash
# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# checksources.sh ROOT: each source file begins with the two licence lines, and Q_OBJECT stands alone on its line (the
# toolkit's generator passes over a class in which it does not, without a word).

set -euo pipefail
cd "$1"
copyright="SPDX-FileCopyrightText: 2026 The RtlVakIns authors"
licence="SPDX-License-Identifier: Apache-2.0"
found=0

# has_header FILE COMMENT-MARK: the two lines stand on top, or below the line that names a script's interpreter.
has_header() {
    local first second
    {
        IFS= read -r first || true
        [[ $first != '#!'* ]] || IFS= read -r first || true
        IFS= read -r second || true
    } <"$1"
    [[ $first == "$2 $copyright" && $second == "$2 $licence" ]]
}

sources() {
    find . \( -name build -o -name .git \) -prune -o -type f \( "$@" \) -print0 | sort -z
}

while IFS= read -r -d '' file; do
    has_header "$file" '//' || { printf '%s: the two licence lines do not stand on top\n' "$file"; found=1; }
done < <(sources -name '*.h' -o -name '*.cpp' -o -path './examples/*.v' -o -path './examples/*.sv' -o -path './examples/*.svh')

while IFS= read -r -d '' file; do
    has_header "$file" '#' || { printf '%s: the two licence lines do not stand on top\n' "$file"; found=1; }
done < <(sources -name CMakeLists.txt -o -name '*.cmake' -o -name '*.sh' -o -path ./run -o -path ./test -o -path './.ci/*' \
    -o -path './scripts/*')

while IFS= read -r -d '' file; do
    if grep -nE '\bQ_OBJECT\b' "$file" | grep -vE '^[0-9]+:[[:space:]]*(Q_OBJECT[[:space:]]*$|//|\*|#)' |
        sed "s|^|$file:|; s|\$|   <- Q_OBJECT must stand alone on its line|"; then
        found=1
    fi
done < <(sources -name '*.h' -o -name '*.cpp')

exit "$found"
