// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/netcounts.h"

#include <QtTest>

class TestNetCounts : public QObject
{
    Q_OBJECT

private slots:
    void lineForPeople_data();
    void lineForPeople();
};

void TestNetCounts::lineForPeople_data()
{
    QTest::addColumn<QString>("top");
    QTest::addColumn<quint64>("singleNets");
    QTest::addColumn<quint64>("buses");
    QTest::addColumn<quint64>("bits");
    QTest::addColumn<QString>("line");
    QTest::newRow("many") << "soc" << quint64(300) << quint64(112) << quint64(3120)
                          << "soc: 412 nets to choose from (300 single, 112 buses), 3,120 bits";
    QTest::newRow("one of each") << "a" << quint64(1) << quint64(1) << quint64(5)
                                 << "a: 2 nets to choose from (1 single, 1 bus), 5 bits";
    QTest::newRow("one") << "a" << quint64(1) << quint64(0) << quint64(1)
                         << "a: 1 net to choose from (1 single, 0 buses), 1 bit";
    QTest::newRow("none") << "a%1" << quint64(0) << quint64(0) << quint64(0)
                          << "a%1: 0 nets to choose from (0 single, 0 buses), 0 bits";
}

void TestNetCounts::lineForPeople()
{
    QFETCH(QString, top);
    QFETCH(quint64, singleNets);
    QFETCH(quint64, buses);
    QFETCH(quint64, bits);
    const NETCATCHER::NetCounts counts{singleNets, buses, bits, 7};
    QTEST(RTLVAK::countsLine(top, counts), "line");
}

QTEST_GUILESS_MAIN(TestNetCounts)
#include "tst_netcounts.moc"
