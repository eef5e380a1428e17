// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

namespace TE {

/// Of the files in `candidates` those that declare a module that `sources` name, or that a file taken before names, in
/// the order of the candidates. Where two candidates declare the same module the first is taken; what the sources
/// declare themselves is not looked for. The texts are scanned for words, not elaborated: a file too many may be taken,
/// none too few.
QStringList neededLibraryFiles(const QStringList &sources, const QStringList &candidates);

} // namespace TE
