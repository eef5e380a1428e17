// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/textfile.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTextCodec>

#include <algorithm>

namespace Workbench {

constexpr char ByteOrderMark[] = "\xef\xbb\xbf";
/// An editor for plain text becomes unusable beyond this.
constexpr qint64 LargestFile = 64 * 1024 * 1024;

bool decodeText(const QByteArray &bytes, TextFile *file)
{
    if (bytes.contains('\0'))
        return false;
    TextFile result;
    result.hasByteOrderMark = bytes.startsWith(ByteOrderMark);
    const QByteArray body = result.hasByteOrderMark ? bytes.mid(3) : bytes;
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    result.text = QTextCodec::codecForName("UTF-8")->toUnicode(body.constData(), body.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        result.encoding = TextFile::Encoding::Latin1;
        result.text = QString::fromLatin1(body);
    }
    result.hasCarriageReturns = result.text.contains("\r\n");
    if (result.hasCarriageReturns)
        result.text.replace("\r\n", "\n");
    *file = result;
    return true;
}

bool canEncode(const TextFile &file)
{
    return file.encoding == TextFile::Encoding::Utf8 ||
           std::all_of(file.text.cbegin(), file.text.cend(), [](QChar c) { return c.unicode() < 256; });
}

QByteArray encodeText(const TextFile &file)
{
    QString text = file.text;
    if (file.hasCarriageReturns)
        text.replace("\n", "\r\n");
    const QByteArray body = file.encoding == TextFile::Encoding::Utf8 ? text.toUtf8() : text.toLatin1();
    return file.hasByteOrderMark ? ByteOrderMark + body : body;
}

bool readTextFile(const QString &path, TextFile *file, QString *error)
{
    QFile input(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!input.open(QIODevice::ReadOnly)) {
        *error = QString("Can not open %1:\n%2.").arg(name, input.errorString());
        return false;
    }
    if (input.size() > LargestFile) {
        *error = QString("Can not open %1:\nThe file is larger than 64 MiB.").arg(name);
        return false;
    }
    if (decodeText(input.readAll(), file))
        return true;
    *error = QString("Can not open %1:\nThis is not a text file.").arg(name);
    return false;
}

bool writeTextFile(const QString &path, const TextFile &file, QString *error)
{
    const QByteArray bytes = encodeText(file);
    QSaveFile output(path);
    if (output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size() && output.commit())
        return true;
    *error = QString("Can not save to %1:\n%2.").arg(QDir::toNativeSeparators(path), output.errorString());
    return false;
}

} // namespace Workbench
