// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QStringList>

namespace support {

/// Notes the emissions of any number of signals in one list, so that their order can be compared.
///
///     SignalLog log;
///     log.watch(&page, &AoOptionWidget::modifed, "modifed");
///     ...
///     QCOMPARE(log.names(), QStringList({"modifed"}));
class SignalLog : public QObject
{
public:
    template <typename Sender, typename Signal>
    void watch(Sender *sender, Signal signal, const QString &name)
    {
        connect(sender, signal, this, [this, name] { emitted.append(name); });
    }

    /// Adds a line of the test's own, to see what happened between emissions.
    void note(const QString &text) { emitted.append(text); }
    const QStringList &names() const { return emitted; }
    int count(const QString &name) const { return emitted.count(name); }
    void clear() { emitted.clear(); }

private:
    QStringList emitted;
};

} // namespace support
