// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capturepage.h"

#include "tests/fakes/fakenetlist.h"
#include "tests/support/doubles.h"
#include "tests/support/scriptedresources.h"
#include "tests/support/signallog.h"

#include <VakUtils/triggerport.h>

#include <QtTest>

class tst_CaptureRefresh : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void signalsThatAreGoneTurnRedAndComeBack();
    void unsavedEditsOfTheListSurvive();
    void changedCoreIsShownWhenTheListWasNotEdited();
    void triggerPortsAreResolvedToo();
    void capturedListFollows();
    void emitsNothingOfItsOwn();
    void changedWidthUpdatesImplementationsAndUsage();
    void nullNetlistChangesNothing();
};

static std::unique_ptr<NETCATCHER::RtlNetlist> designWithout(const QString &missing)
{
    fakes::Instance top(QStringLiteral("top"));
    for (const char *name : {"clk", "rst", "spare"}) {
        if (missing != QLatin1String(name))
            top.net(QLatin1String(name));
    }
    top.bus(QStringLiteral("data"), missing == QLatin1String("data[7]") ? 6 : 7, 0);
    return std::unique_ptr<NETCATCHER::RtlNetlist>(fakes::makeNetlist(top));
}

void tst_CaptureRefresh::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_CaptureRefresh::signalsThatAreGoneTurnRedAndComeBack()
{
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("clk")), bus(QStringLiteral("data"), 8)});
    bench.page();
    const auto without = designWithout(QStringLiteral("data[7]"));
    bench.page().setRtlNetlist(without.get());
    bench.page().refreshFromNetlist();
    QTreeWidgetItem *data = bench.tree().topLevelItem(1);
    QCOMPARE(data->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(data->child(0)->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(data->child(1)->foreground(0).color(), QColor(Qt::black));
    QCOMPARE(data->childCount(), 8);
    bench.page().setRtlNetlist(bench.netlist.get());
    bench.page().refreshFromNetlist();
    QCOMPARE(bench.tree().topLevelItem(1)->foreground(0).color(), QColor(Qt::black));
}

void tst_CaptureRefresh::unsavedEditsOfTheListSurvive()
{
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("clk")), single(QStringLiteral("rst"))});
    bench.page();
    bench.tree().appendSignal(single(QStringLiteral("spare")));
    delete bench.tree().topLevelItem(0);
    const auto without = designWithout(QStringLiteral("rst"));
    bench.page().setRtlNetlist(without.get());
    bench.page().refreshFromNetlist();
    QCOMPARE(names(bench.core.getallCapSignal()), QStringList({QStringLiteral("rst"), QStringLiteral("spare")}));
    QCOMPARE(support::topTexts(bench.tree()), names(bench.core.getallCapSignal()));
    QVERIFY(!bench.core.getallCapSignal().at(0).present);
}

void tst_CaptureRefresh::changedCoreIsShownWhenTheListWasNotEdited()
{
    CaptureBench bench;
    bench.page();
    bench.core.setallCapSignal({single(QStringLiteral("clk"))});
    bench.page().refreshFromNetlist();
    QCOMPARE(support::topTexts(bench.tree()), QStringList{QStringLiteral("clk")});
}

void tst_CaptureRefresh::triggerPortsAreResolvedToo()
{
    CaptureBench bench;
    bench.core.getTrigger(5)->setSignalNet({single(QStringLiteral("rst")), single(QStringLiteral("clk"))});
    bench.page();
    const auto without = designWithout(QStringLiteral("rst"));
    bench.page().setRtlNetlist(without.get());
    bench.page().refreshFromNetlist();
    const QList<VAK::SignalItem> net = bench.core.getTrigger(5)->getSignalNet();
    QCOMPARE(names(net), QStringList({QStringLiteral("rst"), QStringLiteral("clk")}));
    QVERIFY(!net.at(0).present);
    QVERIFY(net.at(1).present);
}

void tst_CaptureRefresh::capturedListFollows()
{
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("rst")), single(QStringLiteral("clk"), 0)});
    bench.page();
    const auto without = designWithout(QStringLiteral("rst"));
    bench.page().setRtlNetlist(without.get());
    bench.page().refreshFromNetlist();
    QCOMPARE(names(bench.core.getDataSignal()), QStringList{QStringLiteral("rst")});
    QVERIFY(!bench.core.getDataSignal().at(0).present);
}

void tst_CaptureRefresh::emitsNothingOfItsOwn()
{
    CaptureBench bench;
    bench.core.setStorageSize(4);
    bench.core.setCaptureAmount(4);
    bench.core.setallCapSignal({bus(QStringLiteral("data"), 8)});
    QCOMPARE(entries(bench.implementation()).size(), 2); // a list that any update would rebuild
    support::SignalLog log;
    log.watch(&bench.page(), &RTLVAK::CaptureOptionWidget::modified, QStringLiteral("modified"));
    const auto without = designWithout(QStringLiteral("data[7]"));
    bench.page().setRtlNetlist(without.get());
    bench.page().refreshFromNetlist();
    QCOMPARE(log.names(), QStringList());
}

void tst_CaptureRefresh::changedWidthUpdatesImplementationsAndUsage()
{
    CaptureBench bench;
    bench.core.setStorageSize(4);
    bench.core.setCaptureAmount(4);
    bench.page();
    QCOMPARE(entries(bench.implementation()), QStringList({QStringLiteral("BSRAM"), QStringLiteral("REG")}));
    support::resetResources();
    support::setCapacity({10, 0, 1000});
    support::setNeed(7);
    bench.core.setallCapSignal({bus(QStringLiteral("wide"), 512)});
    bench.page().refreshFromNetlist();
    QCOMPARE(entries(bench.implementation()), QStringList{QStringLiteral("BSRAM")});
    QVERIFY(support::resourceCalls().contains(QStringLiteral("bsramNumberRequiredWithAdjust(512,4)")));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 7/10"));
}

void tst_CaptureRefresh::nullNetlistChangesNothing()
{
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("gone"))});
    bench.page();
    bench.tree().appendSignal(single(QStringLiteral("clk")));
    bench.page().setRtlNetlist(nullptr);
    bench.page().refreshFromNetlist();
    QCOMPARE(names(bench.core.getallCapSignal()), QStringList{QStringLiteral("gone")});
    QCOMPARE(bench.tree().topLevelItemCount(), 2);
    QVERIFY(bench.tree().signalItems().at(0).present);
}

QTEST_MAIN(tst_CaptureRefresh)
#include "tst_capturerefresh.moc"
