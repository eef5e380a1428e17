// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <cstdlib>

// What a program kept for its user must not decide a test, nor a test fill the user's disk: the folder for caches
// cannot exist. Tests of the cache set another one.
[[maybe_unused]] static const int isSet = setenv("XDG_CACHE_HOME", "/dev/null/none", 1);
