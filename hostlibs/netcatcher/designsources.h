// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace NETCATCHER {

/// One HDL file of a design.
struct SourceFile
{
    enum Language { Verilog, SystemVerilog, Vhdl };

    QString path; ///< as the user gave it
    Language language = Verilog;
    QString library; ///< of VHDL files; empty for the default one
};

/// A design as the task engine describes it, in typed form.
struct DesignSources
{
    QVector<SourceFile> files; ///< no file twice, in project order
    QString top;               ///< empty when not set
    QStringList includePaths;
    QStringList defines; ///< NAME or NAME=VALUE
    QString standard;    ///< of the Verilog files; empty for the engine's own choice
    bool isPart = false; ///< the top is inside of a design of another language, so that its ports are no pins

    /// Takes the keys of TE::SourceKey; files without a type are judged by their suffix.
    static DesignSources fromSourceInfo(const QMap<QString, QVariant> &info);
};

bool operator==(const SourceFile &a, const SourceFile &b);
bool operator==(const DesignSources &a, const DesignSources &b);

/// What `--default-language` takes for the standard chosen by the user; empty when the engine should decide.
QString engineLanguage(const QString &standard);

} // namespace NETCATCHER
