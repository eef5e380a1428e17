// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capturepage.h"

#include "trigger/triggersingalselectdialog.h"

#include "tests/fakes/fakeevents.h"
#include "tests/support/doubles.h"
#include "tests/support/scriptedresources.h"

#include <VakUtils/triggerport.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QtTest>

/// How often one action makes the page say that it was modified. The counts follow from the connections: a list that is
/// rebuilt tells of being emptied, of its first entry and of the final selection, where that is another.
class tst_CaptureEmissions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void modifiedCount_data();
    void modifiedCount();
    void implementationListTells_data();
    void implementationListTells();
    void constructionIsSilentForListenersOfThePage();
    void listIsConsistentWithItselfWhenTheLastEmissionComes();
};

using Action = std::function<void(CaptureBench &)>;
Q_DECLARE_METATYPE(Action)

void tst_CaptureEmissions::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

static void select(QComboBox &combo, const char *text)
{
    QVERIFY2(combo.findText(QLatin1String(text)) >= 0, text);
    combo.setCurrentText(QLatin1String(text));
}

static void addNets(CaptureBench &bench, const char *pattern)
{
    support::DialogDriver driver;
    chooseNets(driver, QLatin1String(pattern));
    support::clickButton(bench.page(), "btnAdd");
}

static void addFromPort(CaptureBench &bench)
{
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("spare"))});
    support::DialogDriver driver;
    driver.answerDialogOf<RTLVAK::TriggerSingalSelectDialog>([](RTLVAK::TriggerSingalSelectDialog &dialog) {
        dialog.findChild<QCheckBox *>()->setChecked(true);
        dialog.accept();
    });
    support::clickButton(bench.page(), "btnAddFromTp");
}

static void selectRow(CaptureBench &bench, int row)
{
    bench.tree().clearSelection();
    bench.tree().setCurrentItem(bench.tree().topLevelItem(row));
    bench.tree().topLevelItem(row)->setSelected(true);
}

void tst_CaptureEmissions::modifiedCount_data()
{
    QTest::addColumn<Action>("act");
    QTest::addColumn<int>("count");
    const auto row = [](const char *name, int count, const Action &act) { QTest::newRow(name) << act << count; };

    row("clock typed", 1, [](CaptureBench &b) { b.child<QLineEdit>("editSampleClock").setText(QStringLiteral("x")); });
    row("edge", 1, [](CaptureBench &b) { b.child<QRadioButton>("radioButtonFalling").click(); });
    row("edge, the same", 0, [](CaptureBench &b) { b.child<QRadioButton>("radioButtonRising").click(); });
    row("initial data", 1, [](CaptureBench &b) { b.child<QCheckBox>("chkBoxCaptureInitial").click(); });
    row("falling edge", 1, [](CaptureBench &b) { b.child<QCheckBox>("chkBoxForceTrigFalling").click(); });
    row("position", 1, [](CaptureBench &b) { b.position().setValue(5); });
    row("amount", 1, [](CaptureBench &b) { select(b.amount(), "64"); });
    row("amount that cuts the position", 3, [](CaptureBench &b) {
        b.position().setValue(5); // the first of the three
        select(b.amount(), "4");
    });
    // The box of segments tells once; the amounts: emptied, 4, then the last.
    row("segments", 4, [](CaptureBench &b) { select(b.segments(), "2"); });
    // Both lists are rebuilt; 1 is the first segment again, so that one tells twice.
    row("storage, kept segments and amount", 5, [](CaptureBench &b) { select(b.storage(), "2048"); });
    row("storage 8", 5, [](CaptureBench &b) { select(b.storage(), "8"); });
    row("storage 4", 4, [](CaptureBench &b) { select(b.storage(), "4"); });
    row("storage, the same", 0, [](CaptureBench &b) { select(b.storage(), "1024"); });
    row("signals added", 1, [](CaptureBench &b) { addNets(b, "spare"); });
    row("signals found again", 1, [](CaptureBench &b) { addNets(b, "clk"); });
    row("signals from the trigger", 1, [](CaptureBench &b) { addFromPort(b); });
    row("signals removed", 1, [](CaptureBench &b) {
        selectRow(b, 0);
        support::clickButton(b.page(), "btnRemove");
    });
    row("signal disabled", 1, [](CaptureBench &b) {
        selectRow(b, 0);
        b.tree().onDisable();
    });
    row("bus reversed", 1, [](CaptureBench &b) {
        selectRow(b, 1);
        b.tree().onReverse();
    });
    row("bus ungrouped", 1, [](CaptureBench &b) {
        selectRow(b, 1);
        b.tree().onSplit();
    });
    row("rows sorted", 1, [](CaptureBench &b) { b.tree().sortItems(0, Qt::DescendingOrder); });
    row("selection", 0, [](CaptureBench &b) { selectRow(b, 1); });
    row("device event, same lists", 0, [](CaptureBench &) { fakes::publish(QStringLiteral("TE.Device.Change")); });
}

void tst_CaptureEmissions::modifiedCount()
{
    QFETCH(Action, act);
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("clk")), bus(QStringLiteral("wide"), 512)});
    QCOMPARE(bench.implementation().count(), 1); // one entry is never rebuilt, whatever the storage
    QSignalSpy spy(&bench.page(), &RTLVAK::CaptureOptionWidget::modified);
    act(bench);
    QTEST(int(spy.count()), "count");
}

void tst_CaptureEmissions::implementationListTells_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<Action>("act");
    QTest::addColumn<int>("count");
    const auto row = [](const char *name, const char *current, int count, const Action &act) {
        QTest::newRow(name) << QString::fromLatin1(current) << act << count;
    };
    const Action event = [](CaptureBench &) { fakes::publish(QStringLiteral("TE.Device.Change")); };
    row("chosen", "BSRAM", 1, [](CaptureBench &b) { select(b.implementation(), "SSRAM"); });
    // Two entries count as the right list only while the second one is current.
    row("two entries, the second current", "SSRAM", 0, event);
    row("two entries, the first current", "BSRAM", 2, event);
    row("two entries become one", "SSRAM", 2, [event](CaptureBench &b) {
        support::setCapacity({10, 0, 1000});
        event(b);
    });
    row("signal disabled", "BSRAM", 3, [](CaptureBench &b) {
        selectRow(b, 0);
        b.tree().onDisable();
    });
    // The lists of segments and amounts tell four times; the list of three is emptied, filled and set back to SSRAM.
    row("storage 4, two entries become three", "SSRAM", 7, [](CaptureBench &b) { select(b.storage(), "4"); });
}

void tst_CaptureEmissions::implementationListTells()
{
    QFETCH(QString, current);
    QFETCH(Action, act);
    CaptureBench bench;
    support::setCapacity({10, 48, 1000});
    bench.core.setallCapSignal({single(QStringLiteral("clk")), bus(QStringLiteral("data"), 8)});
    bench.implementation().setCurrentText(current);
    QCOMPARE(entries(bench.implementation()), QStringList({QStringLiteral("BSRAM"), QStringLiteral("SSRAM")}));
    QSignalSpy spy(&bench.page(), &RTLVAK::CaptureOptionWidget::modified);
    act(bench);
    QTEST(int(spy.count()), "count");
}

void tst_CaptureEmissions::constructionIsSilentForListenersOfThePage()
{
    CaptureBench bench;
    QSignalSpy spy(&bench.page(), &RTLVAK::CaptureOptionWidget::modified);
    QCOMPARE(spy.count(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
}

void tst_CaptureEmissions::listIsConsistentWithItselfWhenTheLastEmissionComes()
{
    CaptureBench bench;
    QString last;
    connect(&bench.page(), &RTLVAK::CaptureOptionWidget::modified, &bench.page(),
            [&] { last = bench.segments().currentText() + QLatin1Char('/') + bench.amount().currentText(); });
    select(bench.storage(), "16");
    QCOMPARE(last, QStringLiteral("1/16"));
}

QTEST_MAIN(tst_CaptureEmissions)
#include "tst_captureemissions.moc"
