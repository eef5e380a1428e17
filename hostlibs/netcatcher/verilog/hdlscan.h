// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hdllexer.h"

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>
#include <vector>

namespace NETCATCHER {

/// How a module is connected where it is instantiated: enough to write a stand-in for it.
struct ModuleUsage
{
    QSet<QByteArray> pins;
    QSet<QByteArray> parameters;
    int positionalPins = 0;
    int positionalParameters = 0;
    bool hasWildcard = false; ///< `.*`: whatever has the name of a pin is connected to it

    void unite(const ModuleUsage &other);
};

/// What a scan of sources found. It is a rough reading of the text that the engine's own judgement completes.
struct HdlScan
{
    QVector<QByteArray> modules;          ///< declared, in order, without interfaces and packages
    QSet<QByteArray> packages;            ///< declared
    QSet<QByteArray> usedPackages;        ///< before `::`
    QMap<QByteArray, ModuleUsage> usages; ///< by module name, of everything that looks like an instance
    QVector<QByteArray> flattened;        ///< arrays of instances of more than one dimension
    QSet<QByteArray> recursive;           ///< modules that instantiate themselves
    QHash<QByteArray, QSet<QByteArray>>
        genvars;                ///< by module, also of modules without any; those of macros under no name
    QSet<QByteArray> defparams; ///< parameters set from outside of the instance
};

/// A text to scan, and which it is.
struct HdlText
{
    QByteArray text;
    int origin = 0; ///< given back when the text includes another
};

/// Scans Verilog texts. Conditional directives are obeyed with the macros known so far; macros are shared by the texts
/// of one scanner, as the engine shares them among the files.
class HdlScanner
{
public:
    /// Finds the file that the text `origin` includes as `name`.
    using OpenInclude = std::function<std::optional<HdlText>(const QByteArray &name, int origin)>;

    HdlScanner(const QStringList &defines, OpenInclude openInclude);

    HdlScan scan(const HdlText &source);

private:
    struct OpenText
    {
        HdlLexer lexer;
        int origin;
    };

    HdlToken take();
    HdlToken raw();
    void putBack(const HdlToken &token);
    void directive(const QByteArray &name);
    void conditional(bool holds);
    void skipBranch(bool stopAtElse);
    void include();

    void keyword(const QByteArray &word);
    void addModule(const QByteArray &name);
    void genvars();
    void genvarsOfMacro(const QByteArray &text);
    void defparams();
    void identifier(const QByteArray &name);
    bool instance(const QByteArray &name, ModuleUsage &usage);
    bool connections(QSet<QByteArray> &names, int &positional, bool &hasWildcard);
    HdlToken skipItem(HdlToken token);

    QSet<QByteArray> m_macros;
    OpenInclude m_openInclude;
    std::vector<OpenText> m_texts; ///< the innermost include last
    std::vector<HdlToken> m_putBack;
    int m_includes = 0;         ///< that were opened for the source being scanned
    qint64 m_includedBytes = 0; ///< what they held
    QByteArray m_lastWord;      ///< the token before, when it was an identifier
    HdlScan m_result;
};

} // namespace NETCATCHER
