// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/doubles.h"

#include <cstdio>
#include <cstdlib>

// Part of every program that is linked with the doubles: a test that runs against the real libraries by mistake would
// pass or fail for reasons of its own.
[[maybe_unused]] static const bool doublesFound = [] {
    const QString missing = support::missingDoubles();
    if (missing.isEmpty())
        return true;
    std::fprintf(stderr, "not the scripted host libraries:\n%s\n", qPrintable(missing));
    std::exit(EXIT_FAILURE);
}();
