// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>

namespace NETCATCHER {

class ByteReader;
class ByteWriter;

/// Every place that was looked at while a design was read, and what was there: also where a file was looked for and
/// not found, since the design becomes another one when it appears.
class ReadManifest
{
public:
    /// `idle` is called often while long contents are read.
    explicit ReadManifest(const std::function<void()> &idle = {});

    /// Notes what is at `path`, unless that was noted before. To be called before anything else looks there.
    void look(const QString &path);
    /// Says that something else was looked at, too, so that nobody knows whether it stays as it was.
    void giveUp() { m_isComplete = false; }
    bool isComplete() const { return m_isComplete; }
    /// Whether everything is as it was noted. Contents decide, not times.
    bool holds() const;

    void write(ByteWriter &out) const;
    void read(ByteReader &in);

private:
    QByteArray stateOf(const QString &path) const;

    std::function<void()> m_idle;
    QMap<QString, QByteArray> m_states; ///< by absolute path; see stateOf()
    bool m_isComplete = true;
};

} // namespace NETCATCHER
