// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "verilatortext.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <limits>

namespace NETCATCHER {

QByteArray utf8OfSource(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    return text.contains(QChar(QChar::ReplacementCharacter)) ? QString::fromLatin1(bytes).toUtf8() : bytes;
}

QByteArray decodedVerilatorName(const QByteArray &name)
{
    static const QList<std::pair<QByteArray, QByteArray>> words{{"__DOT__", "."}, {"__BRA__", "["}, {"__KET__", "]"}};
    QByteArray result;
    for (int i = 0; i < name.size();) {
        bool isCode = false;
        const char code = char(name.mid(i + 3, 2).toInt(&isCode, 16));
        const QByteArray rest = QByteArray::fromRawData(name.constData() + i, name.size() - i);
        const auto word =
            std::find_if(words.begin(), words.end(), [&rest](const auto &each) { return rest.startsWith(each.first); });
        if (word != words.end()) {
            result += word->second;
            i += word->first.size();
        } else if (isCode && rest.startsWith("__0") && rest.size() >= 5) {
            result += code;
            i += 5;
        } else {
            result += name[i++];
        }
    }
    return utf8OfSource(result);
}

bool parseVerilatorConstant(const QString &text, int *value)
{
    static const QHash<QChar, int> bases{
        {QLatin1Char('h'), 16}, {QLatin1Char('d'), 10}, {QLatin1Char('o'), 8}, {QLatin1Char('b'), 2}};
    const int quote = text.indexOf(QLatin1Char('\''));
    const int width = text.left(quote).toInt();
    QString digits = text.mid(quote + 1);
    const bool isSigned = digits.startsWith(QLatin1Char('s'));
    if (isSigned)
        digits.remove(0, 1);
    const int base = digits.isEmpty() ? 0 : bases.value(digits[0]);
    if (quote < 1 || width < 1 || width > 63 || base == 0)
        return false;
    bool isNumber = false;
    qint64 number = digits.mid(1).toLongLong(&isNumber, base);
    // Negative bounds of unpacked arrays come unsigned, those of all others signed.
    if ((isSigned || width == 32) && isNumber && number >> (width - 1) == 1)
        number -= qint64(1) << width;
    *value = int(number);
    return isNumber && number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

} // namespace NETCATCHER
