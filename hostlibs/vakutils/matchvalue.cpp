// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "matchvalue.h"

#include <QCoreApplication>

#include <algorithm>

namespace VAK {

static QString translated(const char *text)
{
    return QCoreApplication::translate("VAK::MatchUnit", text);
}

static bool takesEdges(MatchFunction function)
{
    return function == MatchFunction::Equal || function == MatchFunction::NotEqual;
}

QString valueCharacters(MatchFunction function)
{
    return takesEdges(function) ? QStringLiteral("01XRFBN") : QStringLiteral("01");
}

QString valueHint(MatchFunction function)
{
    if (!takesEdges(function))
        return translated("0 low, 1 high. Values are compared as numbers without sign.");
    return translated("0 low, 1 high, X any, R rising edge, F falling edge, B either edge, N no edge");
}

QChar unsetBit(MatchFunction function)
{
    return QLatin1Char(takesEdges(function) ? 'X' : '0');
}

static bool consistsOf(const QString &text, const QString &characters)
{
    return std::all_of(text.cbegin(), text.cend(), [&characters](QChar c) { return characters.contains(c); });
}

static QString withoutLeadingZeros(const QString &bits)
{
    int first = 0;
    while (first < bits.size() - 1 && bits.at(first) == QLatin1Char('0'))
        ++first;
    return bits.mid(first);
}

/// The bits of hexadecimal `digits`; empty when one of them is none.
static QString bitsOfHex(const QString &digits, MatchFunction function)
{
    QString bits;
    for (const QChar digit : digits) {
        bool ok = false;
        const int number = QString(digit).toInt(&ok, 16);
        if (ok)
            bits += QString::number(number, 2).rightJustified(4, QLatin1Char('0'));
        else if (digit == QLatin1Char('X') && takesEdges(function))
            bits += QStringLiteral("XXXX");
        else
            return {};
    }
    return bits;
}

static QString bitsOfDecimal(const QString &digits)
{
    bool ok = false;
    const quint64 number = digits.toULongLong(&ok);
    return ok ? QString::number(number, 2) : QString();
}

/// The bits that `text` names, of whatever length; empty when it is no number.
static QString bitsOfNumber(const QString &text, MatchFunction function)
{
    if (text.startsWith(QLatin1String("0B"))) {
        const QString bits = text.mid(2);
        return consistsOf(bits, valueCharacters(function)) ? bits : QString();
    }
    if (text.startsWith(QLatin1String("0X")))
        return bitsOfHex(text.mid(2), function);
    const bool decimal =
        consistsOf(text, QStringLiteral("0123456789")) && (text.size() == 1 || !text.startsWith(QLatin1Char('0')));
    return decimal ? bitsOfDecimal(text) : QString();
}

static QString wrongTextMessage(const QString &text, int width, MatchFunction function)
{
    const QString characters = valueCharacters(function);
    if (text.isEmpty())
        return translated("The value is empty; %1 bits are needed.").arg(width);
    if (consistsOf(text, characters))
        return translated("The value has %1 of %2 bits.").arg(text.size()).arg(width);
    const auto wrong =
        std::find_if(text.cbegin(), text.cend(), [&characters](QChar c) { return !characters.contains(c); });
    return translated("\"%1\" cannot stand in this value.").arg(*wrong);
}

QString storedValue(const QString &text, int width, MatchFunction function, QString *error)
{
    const QString typed = text.trimmed().remove(QLatin1Char('_'));
    const QString plain = typed.toUpper();
    // B and X are bits, too: as a stored value, which is in capitals, 0B01 is four bits, and 0X1 three.
    const bool number = typed.startsWith(QLatin1String("0b")) || typed.startsWith(QLatin1String("0x"));
    if (!number && plain.size() == width && width > 0 && consistsOf(plain, valueCharacters(function)))
        return plain;
    const QString bits = withoutLeadingZeros(bitsOfNumber(plain, function));
    if (bits.isEmpty()) {
        *error = wrongTextMessage(plain, width, function);
        return {};
    }
    if (bits.size() > width) {
        *error = translated("The number needs %1 bits; the port has %2.").arg(bits.size()).arg(width);
        return {};
    }
    return bits.rightJustified(width, QLatin1Char('0'));
}

QString fittedValue(const QString &value, int width, MatchFunction function)
{
    return value.right(width).rightJustified(width, unsetBit(function));
}

QString valueAsNumber(const QString &value)
{
    if (value.isEmpty() || value.size() > 64 || !consistsOf(value, QStringLiteral("01")))
        return {};
    const quint64 number = value.toULongLong(nullptr, 2);
    return QStringLiteral("%1 = 0x%2").arg(QString::number(number), QString::number(number, 16).toUpper());
}

} // namespace VAK
