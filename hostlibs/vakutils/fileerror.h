// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace VAK {

/// Where and why reading a configuration file stopped.
struct FileError
{
    int line = 0; ///< from 1; 0 when the file as a whole is meant
    int column = 0;
    QString message; ///< what was found and what was expected

    bool isSet() const { return !message.isEmpty(); }
    /// `line L, column C: MESSAGE`.
    QString text() const
    {
        return line > 0 ? QStringLiteral("line %1, column %2: %3")
                              .arg(QString::number(line), QString::number(column), message)
                        : message;
    }
};

/// How much of a file is checked.
enum class Checks {
    Structure,         ///< well-formed, and elements and attributes stand where they belong
    StructureAndValues ///< the values, too
};

} // namespace VAK
