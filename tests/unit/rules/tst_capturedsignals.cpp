// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/capturedsignals.h"

#include <QtTest>

using VAK::SignalItem;

class tst_CapturedSignals : public QObject
{
    Q_OBJECT

private slots:
    void capturedMeansUsableAndSwitchedOn();
    void widthCountsMembersOfCapturedSignals();
    void insertionRow_data();
    void insertionRow();
};

static SignalItem signal(const QString &name, bool enabled = true, int active = 1, int members = 0)
{
    SignalItem item;
    item.name = name;
    item.enabled = enabled;
    item.active = active;
    for (int i = 0; i < members; ++i)
        item.members.append(signal(QStringLiteral("%1[%2]").arg(name).arg(i)));
    return item;
}

void tst_CapturedSignals::capturedMeansUsableAndSwitchedOn()
{
    const QList<SignalItem> list{signal(QStringLiteral("a")), signal(QStringLiteral("b"), false),
                                 signal(QStringLiteral("c"), true, 0), signal(QStringLiteral("d"))};
    QCOMPARE(RTLVAK::capturedSignals(list), QList<SignalItem>({list.at(0), list.at(3)}));
}

void tst_CapturedSignals::widthCountsMembersOfCapturedSignals()
{
    QCOMPARE(RTLVAK::captureWidth({}), 0);
    QCOMPARE(RTLVAK::captureWidth({signal(QStringLiteral("a")), signal(QStringLiteral("b"), true, 1, 32),
                                   signal(QStringLiteral("c"), true, 0, 8), signal(QStringLiteral("d"), false, 1, 4)}),
             33);
}

void tst_CapturedSignals::insertionRow_data()
{
    QTest::addColumn<QList<bool>>("captured");
    QTest::addColumn<int>("row");
    QTest::newRow("empty list") << QList<bool>{} << 0;
    QTest::newRow("all captured: the end") << QList<bool>{true, true} << 2;
    QTest::newRow("first not captured") << QList<bool>{true, false, true, false} << 1;
    QTest::newRow("none captured") << QList<bool>{false, false} << 0;
}

void tst_CapturedSignals::insertionRow()
{
    QFETCH(QList<bool>, captured);
    QList<SignalItem> list;
    for (bool on : qAsConst(captured))
        list.append(signal(QStringLiteral("s"), true, on));
    QTEST(RTLVAK::captureInsertionRow(list), "row");
}

QTEST_APPLESS_MAIN(tst_CapturedSignals)
#include "tst_capturedsignals.moc"
