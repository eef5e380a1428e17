// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "readresult.h"

#include <algorithm>

namespace NETCATCHER {

const QString *ReadResult::firstError() const
{
    const auto isError = [](const QString &line) { return line.startsWith(QLatin1String("ERROR")); };
    const auto found = std::find_if(messages.cbegin(), messages.cend(), isError);
    return found == messages.cend() ? nullptr : &*found;
}

} // namespace NETCATCHER
