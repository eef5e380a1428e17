// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwprobe.h"

#include "hostlibs/netcatcher/vhdl/ghwreader.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace NETCATCHER;

namespace probe {

static bool runGhdl(const QString &folder, const QStringList &arguments, QString *error)
{
    QProcess ghdl;
    ghdl.setWorkingDirectory(folder);
    ghdl.setProcessChannelMode(QProcess::MergedChannels);
    ghdl.start(QStringLiteral("ghdl"), arguments);
    if (ghdl.waitForFinished(60000) && ghdl.exitStatus() == QProcess::NormalExit && ghdl.exitCode() == 0)
        return true;
    *error = ghdl.errorString() + QLatin1Char('\n') + QString::fromLocal8Bit(ghdl.readAll());
    return false;
}

QByteArray waveFile(const QString &source, const QString &top, QString *error)
{
    QTemporaryDir folder;
    const QString standard = QStringLiteral("--std=08");
    if (!runGhdl(folder.path(), {QStringLiteral("-a"), standard, source}, error))
        return {};
    const QStringList run{QStringLiteral("-r"), standard, top, QStringLiteral("--stop-time=0ns"),
                          QStringLiteral("--wave=x.ghw")};
    if (!runGhdl(folder.path(), run, error))
        return {};
    QFile file(folder.filePath(QStringLiteral("x.ghw")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray waveFileOf(const QByteArray &text, const QString &top, QString *error)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("text.vhdl")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        return {};
    return waveFile(file.fileName(), top, error);
}

QString ghwErrorOf(const QByteArray &bytes)
{
    GhwDesign design;
    QString error;
    if (readGhw(bytes, &design, &error))
        return QStringLiteral("(none)");
    const bool isEmpty = design.scopes.empty() && design.types.empty() && design.runs.empty() && !design.leafCount;
    return isEmpty ? error : QStringLiteral("(something is left)");
}

static QString rangeText(const GhwDesign &design, const GhwRange &range, int type)
{
    return QString::fromLatin1(design.indexTextOf(type, range.left)) +
           QLatin1String(range.isDescending ? " downto " : " to ") +
           QString::fromLatin1(design.indexTextOf(type, range.right));
}

static QString scalarText(const GhwDesign &design, int place)
{
    const GhwType &type = design.types[size_t(place)];
    static const char *const known[] = {"", " boolean", " bit", " std_ulogic"};
    static const char *const kinds[] = {"enum", "integer", "physical", "real"};
    QString text = QLatin1String(kinds[type.kind]) + QLatin1Char(' ') + rangeText(design, type.range, place);
    text += QLatin1String(known[type.wellKnown]) + QStringLiteral(" %1b").arg(type.encodedBits());
    return type.kind == GhwType::Real ? QStringLiteral("real 0b") : text;
}

QString typeText(const GhwDesign &design, int place)
{
    const GhwType &type = design.types[size_t(place)];
    QString text = QString::fromLatin1(type.name);
    QStringList parts;
    if (type.kind == GhwType::Array) {
        for (const GhwDimension &dimension : type.dimensions)
            parts << rangeText(design, dimension.range, dimension.indexType);
        text += QLatin1Char('[') + parts.join(QLatin1String(", ")) + QLatin1String("] of ");
        const GhwType &element = design.types[size_t(type.element)];
        return text + (element.isBit() ? QString::fromLatin1(element.name) : typeText(design, type.element));
    }
    if (type.kind == GhwType::Record) {
        for (const GhwField &field : type.fields)
            parts << QString::fromLatin1(field.name) + QLatin1String(": ") + typeText(design, field.type);
        return text + QLatin1Char('{') + parts.join(QLatin1String("; ")) + QLatin1Char('}');
    }
    if (type.kind == GhwType::Unbounded)
        return text + QLatin1String("<unbounded>");
    return text + QLatin1Char('<') + scalarText(design, place) + QLatin1Char('>');
}

static QString leafText(const GhwDesign &design, const GhwSignal &signal)
{
    QStringList parts;
    for (quint32 i = 0; i != signal.runCount; ++i) {
        const GhwRun &run = design.runs[signal.firstRun + i];
        parts << QLatin1Char(' ') + QString::number(run.first);
        if (run.count > 1)
            parts.last() += QLatin1Char('-') + QString::number(run.first + run.count - 1);
    }
    return parts.join(QLatin1Char(','));
}

static void appendLines(const GhwDesign &design, int place, const QString &indent, QStringList *lines)
{
    static const char *const scopes[] = {"root", "design", "block", "if", "for", "instance", "package", "process"};
    static const char *const signalKinds[] = {"signal", "in", "out", "inout", "buffer", "linkage"};
    const GhwScope &scope = design.scopes[size_t(place)];
    QString head = indent + QLatin1String(scopes[scope.kind]);
    if (place)
        head += QLatin1Char(' ') + QString::fromLatin1(scope.name);
    if (scope.kind == GhwScope::ForGenerate)
        head += QLatin1Char('(') + QString::fromLatin1(scope.index) + QLatin1Char(')');
    *lines << head;
    for (const GhwSignal &signal : scope.signalList) {
        *lines << indent + QStringLiteral("  %1 %2 =%3")
                               .arg(QLatin1String(signalKinds[signal.kind]), QString::fromLatin1(signal.name),
                                    leafText(design, signal));
    }
    for (int child : scope.children)
        appendLines(design, child, indent + QLatin1String("  "), lines);
}

QStringList hierarchyLines(const GhwDesign &design)
{
    QStringList lines;
    appendLines(design, 0, {}, &lines);
    return lines;
}

const GhwSignal *findSignal(const GhwDesign &design, const QByteArray &name)
{
    for (const GhwScope &scope : design.scopes) {
        for (const GhwSignal &signal : scope.signalList) {
            if (signal.name == name)
                return &signal;
        }
    }
    return nullptr;
}

static QString brokenType(const GhwDesign &design, int place)
{
    const GhwType &type = design.types[size_t(place)];
    const auto isEarlier = [place](int other) { return other >= 0 && other < place; };
    if (type.kind == GhwType::Array && (type.dimensions.isEmpty() || !isEarlier(type.element)))
        return QStringLiteral("array %1").arg(place);
    for (const GhwDimension &dimension : type.dimensions) {
        if (!isEarlier(dimension.indexType))
            return QStringLiteral("index of %1").arg(place);
    }
    for (const GhwField &field : type.fields) {
        if (!isEarlier(field.type))
            return QStringLiteral("field of %1").arg(place);
    }
    const bool isOpen = type.kind == GhwType::Array && design.types[size_t(type.element)].kind == GhwType::Unbounded;
    return isOpen ? QStringLiteral("unbounded element of %1").arg(place) : QString();
}

static QString brokenSignal(const GhwDesign &design, const GhwSignal &signal)
{
    if (signal.type < 0 || size_t(signal.type) >= design.types.size())
        return QStringLiteral("type of a signal");
    const GhwType &type = design.types[size_t(signal.type)];
    if (type.kind == GhwType::Unbounded || quint64(signal.firstRun) + signal.runCount > design.runs.size())
        return QStringLiteral("bounds of a signal");
    const std::vector<quint32> leaves = design.leavesOf(signal);
    for (quint32 leaf : leaves) {
        if (leaf == 0 || leaf > design.leafCount)
            return QStringLiteral("leaf %1").arg(leaf);
    }
    return qint64(leaves.size()) == type.leaves ? QString() : QStringLiteral("leaves of a signal");
}

QString brokenPromise(const GhwDesign &design)
{
    QString broken;
    for (size_t i = 0; i != design.types.size() && broken.isEmpty(); ++i)
        broken = brokenType(design, int(i));
    for (size_t i = 0; i != design.scopes.size() && broken.isEmpty(); ++i) {
        if (i && (design.scopes[i].parent < 0 || size_t(design.scopes[i].parent) >= i))
            return QStringLiteral("parent of scope %1").arg(i);
        for (const GhwSignal &signal : design.scopes[i].signalList) {
            if (broken.isEmpty())
                broken = brokenSignal(design, signal);
        }
    }
    return broken;
}

} // namespace probe
