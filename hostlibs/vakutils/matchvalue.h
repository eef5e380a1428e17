// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/matchunit.h>

#include <QString>

/// Compare values of match units as people write them and as they are stored.
namespace VAK {

/// The characters that a value of `function` may hold.
QString valueCharacters(MatchFunction function);
/// What each of them means, in one line.
QString valueHint(MatchFunction function);
/// The character of a bit that nothing is said about: X (any), or 0 where only numbers can be compared.
QChar unsetBit(MatchFunction function);

/// The stored form of `text` for a port of `width` bits, or an empty text with `*error` saying what is wrong. Accepted
/// are one character for each bit; numbers that begin with `0b` or `0x` (in small letters; in capitals, a text of the
/// right length is bits), where X is a digit that is any; and decimal numbers of another length that do not begin with
/// 0. Numbers are padded with 0. Blanks around the text and `_` in it do not matter.
QString storedValue(const QString &text, int width, MatchFunction function, QString *error);
/// `value` for another width: drops from the most significant side, or pads there with unsetBit().
QString fittedValue(const QString &value, int width, MatchFunction function);
/// A stored value of 0 and 1 as decimal and hexadecimal number ("10 = 0xA"); empty for others and for more than 64
/// bits.
QString valueAsNumber(const QString &value);

} // namespace VAK
