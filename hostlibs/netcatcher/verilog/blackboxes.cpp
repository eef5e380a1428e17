// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "blackboxes.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cctype>

namespace NETCATCHER {

/// No primitive has more; guards against nonsense in an engine's message.
constexpr int maxPositional = 4096;

bool isPlainName(const QByteArray &name)
{
    return !name.isEmpty() && !std::isdigit(static_cast<unsigned char>(name[0])) && name[0] != '$' &&
           name.size() < 200 && std::all_of(name.begin(), name.end(), [](char c) {
               return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$';
           });
}

/// A name as it stands in Verilog text.
static QByteArray written(const QByteArray &name)
{
    return isPlainName(name) ? name : '\\' + name + ' ';
}

QString BlackBoxes::folderName()
{
    return QStringLiteral("vakstub");
}

QString BlackBoxes::suffix()
{
    return QStringLiteral("vakstub");
}

bool BlackBoxes::isStandIn(const QByteArray &plainName)
{
    return plainName.startsWith("vakstub/");
}

QString BlackBoxes::wrapperName()
{
    return QStringLiteral("vak_module_around_the_top");
}

QString BlackBoxes::withoutPlaceholders(QString text)
{
    static const QRegularExpression placeholder(QStringLiteral("\\bvak(pin|param)(\\d{1,4})\\b"));
    for (auto match = placeholder.match(text); match.hasMatch(); match = placeholder.match(text))
        text.replace(match.capturedStart(), match.capturedLength(),
                     QStringLiteral("%1 %2").arg(match.captured(1), QString::number(match.captured(2).toInt() + 1)));
    return text;
}

void BlackBoxes::wrapTop(const QByteArray &top)
{
    m_wrapped = top;
}

void BlackBoxes::learn(const HdlScan &scan)
{
    for (auto it = scan.usages.cbegin(); it != scan.usages.cend(); ++it) {
        m_usages[it.key()].unite(*it);
    }
    m_common.parameters.unite(scan.defparams);
}

void BlackBoxes::standInForEscaped(const QVector<QByteArray> &declared)
{
    for (auto it = m_usages.cbegin(); it != m_usages.cend(); ++it) {
        if (!isPlainName(it.key()) && !declared.contains(it.key()))
            m_escaped.insert(it.key());
    }
}

/// The number in `__pinNumber3`, the engine's name for the third connection without a name; 0 for any other text.
static int positionIn(const QString &name, const char *prefix)
{
    if (!name.startsWith(QLatin1String(prefix)))
        return 0;
    return qBound(0, name.mid(int(qstrlen(prefix))).toInt(), maxPositional);
}

bool BlackBoxes::learnModule(const QByteArray &name)
{
    const bool isNew = !m_usages.contains(name) || (!isPlainName(name) && !m_escaped.contains(name));
    m_usages[name]; // what the scan saw of it, or nothing
    if (!isPlainName(name))
        m_escaped.insert(name);
    return isNew;
}

bool BlackBoxes::learnPin(const QString &name)
{
    const int position = positionIn(name, "__pinNumber");
    if (position > m_common.positionalPins) {
        m_common.positionalPins = position;
        return true;
    }
    if (position > 0)
        return false;
    QSet<QByteArray> &pins = m_common.pins.contains(name.toUtf8()) ? m_wildcardPins : m_common.pins;
    const int before = pins.size();
    pins.insert(name.toUtf8());
    return pins.size() > before;
}

bool BlackBoxes::learnParameter(const QString &name)
{
    const int position = positionIn(name, "__paramNumber");
    if (position > m_common.positionalParameters) {
        m_common.positionalParameters = position;
        return true;
    }
    const int before = m_common.parameters.size();
    if (position == 0)
        m_common.parameters.insert(name.toUtf8());
    return m_common.parameters.size() > before;
}

bool BlackBoxes::learnWidth(const QString &pin, int width)
{
    int &known = m_widths[pin.toUtf8()];
    const bool isNew = width > known;
    known = qMax(known, width);
    return isNew;
}

bool BlackBoxes::learnArray(const QString &pin)
{
    const int before = m_arrays.size();
    m_arrays.insert(pin.toUtf8());
    return m_arrays.size() > before;
}

/// `.*` connects the pins without names of the same module, or of another one, too.
bool BlackBoxes::learnLoosePin(const QString &name)
{
    const int before = m_loosePins.size();
    m_loosePins.insert(name.toUtf8());
    return m_loosePins.size() > before;
}

bool BlackBoxes::learn(const QVector<EngineMessage> &messages)
{
    static const QRegularExpression missing(
        QStringLiteral("^(?:Cannot find file containing module|Can't resolve module reference): '(.*)'$"));
    static const QRegularExpression pin(QStringLiteral("^Pin not found: '(.*)'$"));
    static const QRegularExpression loose(QStringLiteral("^Can't find definition of variable: '(vakpin\\d+)'$"));
    static const QRegularExpression parameter(QStringLiteral("^Parameter pin not found: '(.*)'$"));
    static const QRegularExpression width(
        QStringLiteral("^Input port connection '(.*)' as part of a module instance "
                       "array requires (\\d+) or (\\d+) bits.* generates (\\d+) bits"));
    static const QRegularExpression array(
        QStringLiteral("^Illegal input port connection '(.*)', mismatch between port which is not an array, and "
                       "expression which is an array"));
    bool learned = false;
    for (const EngineMessage &message : messages) {
        QRegularExpressionMatch match = missing.match(message.text);
        if (match.hasMatch())
            learned = learnModule(match.captured(1).toUtf8()) || learned;
        match = pin.match(message.text);
        if (match.hasMatch())
            learned = learnPin(match.captured(1)) || learned;
        match = loose.match(message.text);
        if (match.hasMatch())
            learned = learnLoosePin(match.captured(1)) || learned;
        match = parameter.match(message.text);
        if (match.hasMatch())
            learned = learnParameter(match.captured(1)) || learned;
        match = array.match(message.text);
        if (match.hasMatch())
            learned = learnArray(match.captured(1)) || learned;
        match = width.match(message.text);
        const int instances = match.captured(2).toInt() > 0 ? match.captured(3).toInt() / match.captured(2).toInt() : 0;
        if (instances > 0)
            learned = learnWidth(match.captured(1), match.captured(4).toInt() / instances) || learned;
    }
    return learned;
}

/// Stand-ins for what has no name, then the names in alphabetical order.
static QList<QByteArray> declared(const QSet<QByteArray> &names, int positional, const char *placeholder)
{
    QList<QByteArray> all;
    for (int i = 0; i < positional; ++i)
        all.append(placeholder + QByteArray::number(i));
    QList<QByteArray> sorted = names.values();
    std::sort(sorted.begin(), sorted.end());
    return all + sorted;
}

QList<QByteArray> BlackBoxes::pins(const ModuleUsage &usage) const
{
    return declared(usage.pins + (usage.hasWildcard ? m_wildcardPins : m_common.pins),
                    qMax(usage.positionalPins, m_common.positionalPins), "vakpin");
}

QByteArray BlackBoxes::pinDeclaration(const QByteArray &name) const
{
    const int width = m_widths.value(name);
    // An array of one scalar takes arrays of any type and size.
    return "wire " + (width > 0 ? '[' + QByteArray::number(width - 1) + ":0] " : QByteArray()) + written(name) +
           (m_arrays.contains(name) ? " [0:0]" : "");
}

QByteArray BlackBoxes::standIn(const QByteArray &module, const ModuleUsage &usage) const
{
    QList<QByteArray> parameters =
        declared(usage.parameters + m_common.parameters,
                 qMax(usage.positionalParameters, m_common.positionalParameters), "vakparam");
    for (QByteArray &parameter : parameters)
        parameter = "parameter " + written(parameter) + " = 0";
    QList<QByteArray> ports = pins(usage);
    for (QByteArray &port : ports)
        port = "input " + pinDeclaration(port);
    return "module " + written(module) + (parameters.isEmpty() ? QByteArray() : " #(" + parameters.join(", ") + ')') +
           " (" + ports.join(", ") + ");\nendmodule\n";
}

static bool writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QStringList BlackBoxes::files() const
{
    QStringList files;
    if (!m_escaped.isEmpty())
        files.append(folderName() + QStringLiteral("/escaped.v"));
    if (!m_wrapped.isEmpty())
        files.append(folderName() + QStringLiteral("/wrapper.v"));
    if (!m_loosePins.isEmpty())
        files.append(folderName() + QStringLiteral("/loosepins.sv"));
    return files;
}

bool BlackBoxes::write(const QString &folder) const
{
    const QDir place(folder + QLatin1Char('/') + folderName());
    if (!QDir().mkpath(place.path()))
        return false;
    for (auto it = m_usages.cbegin(); it != m_usages.cend(); ++it) {
        const QString name = QString::fromUtf8(it.key()) + QLatin1Char('.') + suffix();
        if (isPlainName(it.key()) && !writeFile(place.filePath(name), standIn(it.key(), *it)))
            return false;
    }
    QByteArray escaped;
    for (const QByteArray &name : m_escaped)
        escaped += standIn(name, m_usages.value(name));
    const QByteArray wrapper =
        "module " + wrapperName().toLatin1() + ";\n  \\" + m_wrapped + "  wrapped ();\nendmodule\n";
    QByteArray loosePins; // outside of modules, where every module finds them
    for (const QByteArray &name : m_loosePins)
        loosePins += pinDeclaration(name) + ";\n";
    return writeFile(place.filePath(QStringLiteral("escaped.v")), escaped) &&
           writeFile(place.filePath(QStringLiteral("loosepins.sv")), loosePins) &&
           writeFile(place.filePath(QStringLiteral("wrapper.v")), wrapper);
}

} // namespace NETCATCHER
