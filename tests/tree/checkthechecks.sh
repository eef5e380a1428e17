#!/bin/bash
# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# checkthechecks.sh: small trees with one breach each, every one of which its check must find.

set -euo pipefail
checks=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
slashes=$'// SPDX-FileCopyrightText: 2026 The RtlVakIns authors\n// SPDX-License-Identifier: Apache-2.0\n'

# expect PASS|FAIL CHECK NAME FILE CONTENT [FILE CONTENT]...: runs CHECK on a tree that holds just these files.
expect() {
    local wanted=$1 check=$2 name=$3 tree=$work/tree result=PASS
    shift 3
    rm -rf "$tree"
    while [[ $# -gt 0 ]]; do
        mkdir -p "$(dirname "$tree/$1")"
        printf '%s' "$2" >"$tree/$1"
        shift 2
    done
    bash "$checks/$check.sh" "$tree" >"$work/output" 2>&1 || result=FAIL
    [[ $wanted == PASS || -s $work/output ]] || result="silent"
    if [[ $result != "$wanted" ]]; then
        printf '%s (%s): %s, not %s\n' "$name" "$check" "$result" "$wanted"
        cat "$work/output"
        failed=1
    fi
}
includes() { expect "$1" checkincludes "$2" "$3" "#include $4"; }

includes PASS "a rule includes the host" rules/a.h '<VakUtils/aocore.h>'
includes PASS "a view includes a page" views/a.cpp '"capture/captureoptionwidget.h"'
includes PASS "a view includes its base" views/a.h '"plugin/vakinserterview.h"'
includes PASS "a widget includes the export macro" widgets/a.h '"plugin/vakinsexport.h"'
includes PASS "the view manager includes a view" plugin/vakviewmanager.cpp '"views/vakstandardinserterview.h"'
includes PASS "a host library includes itself" hostlibs/ovte/a.cpp '"hostlibs/ovte/projectengine.h"'
includes PASS "a host library includes the catalogue" hostlibs/vakutils/a.cpp '"hostlibs/device/devicecatalogue.h"'
includes PASS "the command line includes a host library" cli/a.cpp '"hostlibs/netcatcher/netlistbuilder.h"'
includes PASS "a test includes anything" tests/unit/views/a.cpp '"views/vakstandardinserterview_p.h"'
includes FAIL "the host includes a rule" host/VakUtils/a.h '"rules/netsearch.h"'
includes FAIL "a rule includes a widget" rules/a.h '"widgets/reloadbanner.h"'
includes FAIL "a rule names a widget class" rules/a.cpp '<QWidget>'
includes FAIL "a signal tree includes a page" signals/a.cpp '"capture/captureoptionwidget.h"'
includes FAIL "a trigger page includes a capture page" trigger/a.cpp '"capture/captureoptionwidget.h"'
includes FAIL "a page includes the view base" capture/a.h '"plugin/vakinserterview.h"'
includes FAIL "a page includes a host library's insides" capture/a.cpp '"hostlibs/ovte/projectengine.h"'
includes FAIL "the plug-in's entry includes a view" plugin/vakinserterplugin.cpp '"views/vakstandardinserterview.h"'
includes FAIL "a host library includes another" hostlibs/netcatcher/a.cpp '"hostlibs/ovte/projectengine.h"'
includes FAIL "the workbench includes a page" workbench/a.cpp '"capture/aooptionwidget.h"'
includes FAIL "the command line includes the module" cli/a.cpp '"plugin/vakviewmanager.h"'
includes FAIL "production code includes a test's" views/a.cpp '"tests/support/dialogdriver.h"'
includes FAIL "an include climbs" views/a.cpp '"../capture/captureoptionwidget.h"'
includes FAIL "an include is short for another folder's" views/a.cpp '"captureoptionwidget.h"'

expect PASS checksources "a good header" views/a.h "$slashes"$'\nclass A : public QObject\n{\n    Q_OBJECT\n};\n'
expect FAIL checksources "no licence" views/a.h $'#pragma once\n'
expect FAIL checksources "one line of licence" views/a.cpp "${slashes%%$'\n'*}"$'\n\nint a;\n'
expect FAIL checksources "a script without licence" scripts/a $'#!/bin/bash\nexit 0\n'
expect FAIL checksources "Q_OBJECT behind a brace" views/a.h "$slashes"$'class A : public QObject { Q_OBJECT };\n'

form=$'<?xml version="1.0" encoding="UTF-8"?>\n<ui version="4.0">\n <class>A</class>\n</ui>\n'
# shellcheck disable=SC2016
listed=(views/CMakeLists.txt '${CMAKE_SOURCE_DIR}/forms/a.ui')
expect PASS checkforms "a good form" forms/a.ui "$form" "${listed[@]}"
expect FAIL checkforms "a form that nobody builds" forms/a.ui "$form"
expect FAIL checkforms "another indentation" forms/a.ui "${form/ <class/    <class}" "${listed[@]}"
expect FAIL checkforms "no end of line at the end" forms/a.ui "${form%$'\n'}" "${listed[@]}"
expect FAIL checkforms "broken markup" forms/a.ui "${form/<\/ui>/}" "${listed[@]}"
expect FAIL checkforms "a connection" forms/a.ui \
    "${form/ <class>A<\/class>/ <class>A<\/class>$'\n <connections>\n  <connection>\n   <sender>a<\/sender>\n  <\/connection>\n <\/connections>'}" "${listed[@]}"

# A picture is as much of one as tells its width; bash keeps no zero bytes in a variable, so the width is large.
icon_list=$'<RCC>\n<qresource prefix="/vakins/image">\n<file>a.png</file>\n<file>a@2x.png</file>\n</qresource>\n</RCC>\n'
half=$(printf '0123456789abcdef\x01\x01\x01\x01')
whole=$(printf '0123456789abcdef\x02\x02\x02\x02')
drawn=(image/a.svg '<svg/>' image/a.png "$half" image/a@2x.png "$whole")
expect PASS checkicons "a good icon" image/vakins.qrc "$icon_list" "${drawn[@]}" forms/a.ui ':/vakins/image/a.png'
expect FAIL checkicons "a drawing that is not rendered" image/a.svg '<svg/>'
expect FAIL checkicons "a double that is not twice as wide" image/vakins.qrc "$icon_list" "${drawn[@]}" image/a@2x.png "$half"
expect FAIL checkicons "an icon that is not built in" "${drawn[@]}"
expect FAIL checkicons "a picture without a drawing" image/a.png "$half"
expect FAIL checkicons "a list that names what is not there" image/vakins.qrc "$icon_list"
expect FAIL checkicons "a form that names no icon of ours" forms/a.ui '<x>:/vakins/image/b.png</x>'

expect PASS checklinks "good links" README.md $'[a](docs/a.md) [b](https://example.org) [c](#some-heading)\n## Some heading\n' \
    docs/a.md '![picture](a.png)' docs/a.png ''
expect FAIL checklinks "a link to nothing" README.md '[a](docs/a.md)'
expect FAIL checklinks "a picture that is missing" docs/a.md '![picture](a.png)'
expect FAIL checklinks "a heading that is missing" README.md $'[c](#other-heading)\n## Some heading\n'

exit "$failed"
