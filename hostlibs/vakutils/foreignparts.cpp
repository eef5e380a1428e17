// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "foreignparts.h"

#include "filewords.h"

#include <algorithm>

namespace VAK {

static void addOnce(ForeignXml *foreign, const QString &key, const QString &value)
{
    const bool known = std::any_of(foreign->attributes.cbegin(), foreign->attributes.cend(),
                                   [&key](const QPair<QString, QString> &attribute) { return attribute.first == key; });
    if (!known)
        foreign->attributes.append({key, value});
}

void addForeignPart(ForeignXml *foreign, const QString &part, const ForeignXml &content)
{
    for (const auto &attribute : content.attributes)
        addOnce(foreign, part + QLatin1Char('/') + attribute.first, attribute.second);
    if (!content.elements.isEmpty())
        addOnce(foreign, part + QLatin1Char('/'), content.elements);
}

ForeignXml foreignPart(const ForeignXml &foreign, const QString &part)
{
    ForeignXml content;
    if (part.isEmpty())
        content.elements = foreign.elements;
    for (const auto &attribute : foreign.attributes) {
        const int slash = attribute.first.lastIndexOf(QLatin1Char('/'));
        if (attribute.first.left(qMax(slash, 0)) != part)
            continue;
        const QString name = attribute.first.mid(slash + 1);
        if (name.isEmpty())
            content.elements = attribute.second;
        else
            content.attributes.append({name, attribute.second});
    }
    return content;
}

QString expressionPart(const QString &expression)
{
    return QStringLiteral("%1=%2").arg(FileWords::Expression, expression);
}

} // namespace VAK
