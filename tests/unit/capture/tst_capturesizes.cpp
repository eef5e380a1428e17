// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capturepage.h"

#include "rules/sizechoices.h"

#include "tests/support/doubles.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QListView>
#include <QRadioButton>
#include <QtTest>

class tst_CaptureSizes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void formTexts();
    void offersFifteenStorageSizes();
    void newCoreShowsItsDefaults();
    void loadsWhatTheCoreHolds();
    void savesWhatIsShown();
    void unchangedPageWritesBackWhatItRead();
    void storage4GivesOneSegmentAndOneAmount();
    void storage1024With3SegmentsCountsAs4();
    void storage8With2SegmentsGivesOneAmount();
    void storageKeepsTheSegmentsOrJumpsToTheLargest_data();
    void storageKeepsTheSegmentsOrJumpsToTheLargest();
    void segmentsKeepTheAmountOrJumpToTheLargest();
    void amountLimitsTheTriggerPosition();
    void largestStorageOffers16384Segments();
    void segmentListScrolls();
    void storedValueThatIsNotOfferedLeavesTheBoxEmpty_data();
    void storedValueThatIsNotOfferedLeavesTheBoxEmpty();
    void emptyBoxesKeepTheCoresFields();
    void triggerPositionStaysUntilAmountOrPositionIsChosen();
    void choosingAnOfferedValueEndsTheToolTip();
    void clockFieldShowsTheWholeNameInItsToolTip();
};

static void select(QComboBox &combo, int number)
{
    const int row = combo.findData(number);
    QVERIFY2(row >= 0, qPrintable(QStringLiteral("%1 is not offered").arg(number)));
    combo.setCurrentIndex(row);
}

static QStringList texts(const QList<int> &numbers)
{
    QStringList list;
    for (int number : numbers)
        list.append(QString::number(number));
    return list;
}

void tst_CaptureSizes::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_CaptureSizes::formTexts()
{
    CaptureBench bench;
    QStringList labels;
    for (const QLabel *label : bench.page().findChildren<QLabel *>())
        labels.append(label->text());
    for (const char *text : {"Clock:", "Sample On:", "Storage Size:", "Capture Amount:", "Trigger Position:"})
        QVERIFY2(labels.contains(QLatin1String(text)), text);
    QCOMPARE(bench.child<QLabel>("labelWinNum").text(), QStringLiteral("Segments Number:"));
    QCOMPARE(bench.child<QLabel>("labelImpl").text(), QStringLiteral("VAK Implementation:"));
    QStringList titles;
    for (const QGroupBox *group : bench.page().findChildren<QGroupBox *>())
        titles.append(group->title());
    for (const char *title : {"Sample Clock", "Capture", "Capture Utilization", "Capture Signals"})
        QVERIFY2(titles.contains(QLatin1String(title)), title);
    const QList<QPair<const char *, QString>> buttons{
        {"btnSampleClock", QStringLiteral("...")},
        {"btnAdd", QStringLiteral("Add")},
        {"btnAddFromTp", QStringLiteral("Add From Trigger")},
        {"btnRemove", QStringLiteral("Remove")},
        {"radioButtonRising", QStringLiteral("Rising")},
        {"radioButtonFalling", QStringLiteral("Falling")},
        {"chkBoxCaptureInitial", QStringLiteral("Capture Initial Data")},
        {"chkBoxForceTrigFalling", QStringLiteral("Force Trigger by Falling Edge")},
    };
    for (const auto &button : buttons)
        QCOMPARE(bench.child<QAbstractButton>(button.first).text(), button.second);
}

void tst_CaptureSizes::offersFifteenStorageSizes()
{
    CaptureBench bench;
    QCOMPARE(entries(bench.storage()), texts(RTLVAK::storageSizeChoices()));
    QCOMPARE(bench.storage().itemData(14), QVariant(65536));
}

void tst_CaptureSizes::newCoreShowsItsDefaults()
{
    CaptureBench bench;
    QCOMPARE(bench.child<QLineEdit>("editSampleClock").text(), QString());
    QVERIFY(bench.child<QRadioButton>("radioButtonRising").isChecked());
    QCOMPARE(bench.storage().currentText(), QStringLiteral("1024"));
    QCOMPARE(bench.segments().currentText(), QStringLiteral("1"));
    QCOMPARE(bench.amount().currentText(), QStringLiteral("1024"));
    QCOMPARE(bench.position().value(), 0);
    QCOMPARE(bench.implementation().currentText(), QStringLiteral("BSRAM"));
    QVERIFY(!bench.child<QCheckBox>("chkBoxCaptureInitial").isChecked());
    QVERIFY(!bench.child<QCheckBox>("chkBoxForceTrigFalling").isChecked());
    QVERIFY(!bench.child<QPushButton>("btnRemove").isEnabled());
}

static void fill(VAK::AoCore &core)
{
    core.setSampleClock(QStringLiteral("clk"));
    core.setSampleEdge(VAK::FallingEdge);
    core.setStorageSize(4096);
    core.setSegmentNumber(7);
    core.setCaptureAmount(256);
    core.setTriggerPosition(33);
    core.setForceTriggerByFallingEdge(true);
    core.setCaptureInitialData(true);
    core.setallCapSignal(
        {bus(QStringLiteral("data"), 8), single(QStringLiteral("rst")), single(QStringLiteral("spare"), 0)});
    core.setDataSignal(core.getallCapSignal().mid(0, 2));
}

void tst_CaptureSizes::loadsWhatTheCoreHolds()
{
    CaptureBench bench;
    fill(bench.core);
    QCOMPARE(bench.child<QLineEdit>("editSampleClock").text(), QStringLiteral("clk"));
    QVERIFY(bench.child<QRadioButton>("radioButtonFalling").isChecked());
    QCOMPARE(bench.storage().currentText(), QStringLiteral("4096"));
    QCOMPARE(bench.segments().currentText(), QStringLiteral("7"));
    QCOMPARE(bench.amount().currentText(), QStringLiteral("256"));
    QCOMPARE(bench.position().value(), 33);
    QVERIFY(bench.child<QCheckBox>("chkBoxCaptureInitial").isChecked());
    QVERIFY(bench.child<QCheckBox>("chkBoxForceTrigFalling").isChecked());
    QCOMPARE(support::topTexts(bench.tree()),
             QStringList({QStringLiteral("data[7:0]"), QStringLiteral("rst"), QStringLiteral("spare")}));
}

void tst_CaptureSizes::savesWhatIsShown()
{
    CaptureBench bench;
    bench.child<QLineEdit>("editSampleClock").setText(QStringLiteral("u_core/halt"));
    bench.child<QRadioButton>("radioButtonFalling").setChecked(true);
    select(bench.storage(), 64);
    select(bench.segments(), 3);
    select(bench.amount(), 8);
    bench.position().setValue(4);
    bench.child<QCheckBox>("chkBoxCaptureInitial").setChecked(true);
    bench.child<QCheckBox>("chkBoxForceTrigFalling").setChecked(true);
    bench.implementation().setCurrentText(QStringLiteral("REG"));
    QCOMPARE(bench.core.storageSize(), 1024); // nothing reaches the core before it is applied
    bench.page().applyToCore();
    QCOMPARE(bench.core.sampleClock(), QStringLiteral("u_core/halt"));
    QCOMPARE(bench.core.sampleEdge(), 1);
    QCOMPARE(bench.core.storageSize(), 64);
    QCOMPARE(bench.core.segmentNumber(), 3);
    QCOMPARE(bench.core.captureAmount(), 8);
    QCOMPARE(bench.core.triggerPosition(), 4);
    QCOMPARE(bench.core.captureImplementation(), 1);
    QVERIFY(bench.core.captureInitialData());
    QVERIFY(bench.core.forceTriggerByFallingEdge());
    QCOMPARE(bench.core.triggerImplementation(), 0); // the trigger's storage is another field
}

void tst_CaptureSizes::unchangedPageWritesBackWhatItRead()
{
    CaptureBench bench;
    fill(bench.core);
    const auto all = bench.core.getallCapSignal();
    const auto data = bench.core.getDataSignal();
    bench.page().applyToCore();
    QCOMPARE(bench.core.sampleClock(), QStringLiteral("clk"));
    QCOMPARE(bench.core.sampleEdge(), 1);
    QCOMPARE(bench.core.storageSize(), 4096);
    QCOMPARE(bench.core.segmentNumber(), 7);
    QCOMPARE(bench.core.captureAmount(), 256);
    QCOMPARE(bench.core.triggerPosition(), 33);
    QCOMPARE(bench.core.getallCapSignal(), all);
    QCOMPARE(bench.core.getDataSignal(), data);
}

void tst_CaptureSizes::storage4GivesOneSegmentAndOneAmount()
{
    CaptureBench bench;
    select(bench.storage(), 4);
    QCOMPARE(entries(bench.segments()), QStringList{QStringLiteral("1")});
    QCOMPARE(entries(bench.amount()), QStringList{QStringLiteral("4")});
    QCOMPARE(bench.position().minimum(), 0);
    QCOMPARE(bench.position().maximum(), 0);
}

void tst_CaptureSizes::storage1024With3SegmentsCountsAs4()
{
    CaptureBench bench;
    select(bench.segments(), 3);
    QCOMPARE(entries(bench.amount()), texts({4, 8, 16, 32, 64, 128, 256}));
    QCOMPARE(bench.segments().currentText(), QStringLiteral("3"));
}

void tst_CaptureSizes::storage8With2SegmentsGivesOneAmount()
{
    CaptureBench bench;
    select(bench.storage(), 8);
    QCOMPARE(entries(bench.segments()), texts({1, 2}));
    select(bench.segments(), 2);
    QCOMPARE(entries(bench.amount()), texts({4}));
    QCOMPARE(bench.position().maximum(), 0);
}

void tst_CaptureSizes::storageKeepsTheSegmentsOrJumpsToTheLargest_data()
{
    QTest::addColumn<int>("segments");
    QTest::addColumn<int>("storage");
    QTest::addColumn<int>("segmentsAfter");
    QTest::addColumn<int>("amountAfter");
    QTest::newRow("still offered") << 3 << 512 << 3 << 128;
    QTest::newRow("just still offered") << 16 << 64 << 16 << 4;
    QTest::newRow("no longer offered") << 17 << 64 << 16 << 4;
    QTest::newRow("larger storage keeps both") << 4 << 4096 << 4 << 256;
}

void tst_CaptureSizes::storageKeepsTheSegmentsOrJumpsToTheLargest()
{
    QFETCH(int, segments);
    QFETCH(int, storage);
    CaptureBench bench;
    select(bench.segments(), segments);
    select(bench.storage(), storage);
    QTEST(bench.segments().currentData().toInt(), "segmentsAfter");
    QTEST(bench.amount().currentData().toInt(), "amountAfter");
}

void tst_CaptureSizes::segmentsKeepTheAmountOrJumpToTheLargest()
{
    CaptureBench bench;
    select(bench.amount(), 64);
    select(bench.segments(), 16);
    QCOMPARE(bench.amount().currentText(), QStringLiteral("64"));
    select(bench.segments(), 17);
    QCOMPARE(bench.amount().currentText(), QStringLiteral("32"));
    select(bench.segments(), 1);
    QCOMPARE(bench.amount().currentText(), QStringLiteral("32"));
}

void tst_CaptureSizes::amountLimitsTheTriggerPosition()
{
    CaptureBench bench;
    QCOMPARE(bench.position().maximum(), 1020);
    bench.position().setValue(1000);
    select(bench.amount(), 16);
    QCOMPARE(bench.position().maximum(), 12);
    QCOMPARE(bench.position().value(), 12);
}

void tst_CaptureSizes::largestStorageOffers16384Segments()
{
    CaptureBench bench;
    select(bench.storage(), 65536);
    QCOMPARE(bench.segments().count(), 16384);
    QCOMPARE(bench.segments().itemText(16383), QStringLiteral("16384"));
    QCOMPARE(bench.segments().itemData(16383), QVariant(16384));
    select(bench.segments(), 16384);
    QCOMPARE(entries(bench.amount()), texts({4}));
}

void tst_CaptureSizes::segmentListScrolls()
{
    CaptureBench bench;
    QCOMPARE(bench.segments().maxVisibleItems(), 15);
    QCOMPARE(bench.segments().styleSheet(), QStringLiteral("QComboBox{combobox-popup:0;}"));
    // Without these two the toolkit looks at every entry when the page is shown.
    QVERIFY(qobject_cast<QListView *>(bench.segments().view())->uniformItemSizes());
    QCOMPARE(bench.segments().sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void tst_CaptureSizes::storedValueThatIsNotOfferedLeavesTheBoxEmpty_data()
{
    QTest::addColumn<int>("storage");
    QTest::addColumn<int>("segments");
    QTest::addColumn<int>("amount");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("storage 3") << 3 << 1 << 4 << QStringList{"", "", ""};
    QTest::newRow("storage 0") << 0 << 1 << 4 << QStringList{"", "", ""};
    QTest::newRow("segments 0") << 1024 << 0 << 4 << QStringList{"1024", "", ""};
    QTest::newRow("segments 257") << 1024 << 257 << 4 << QStringList{"1024", "", ""};
    QTest::newRow("amount 100") << 1024 << 2 << 100 << QStringList{"1024", "2", ""};
    QTest::newRow("amount above the segment") << 1024 << 2 << 1024 << QStringList{"1024", "2", ""};
}

void tst_CaptureSizes::storedValueThatIsNotOfferedLeavesTheBoxEmpty()
{
    QFETCH(int, storage);
    QFETCH(int, segments);
    QFETCH(int, amount);
    QFETCH(QStringList, shown);
    CaptureBench bench;
    bench.core.setStorageSize(storage);
    bench.core.setSegmentNumber(segments);
    bench.core.setCaptureAmount(amount);
    const QList<int> stored{storage, segments, amount};
    const QList<QComboBox *> boxes{&bench.storage(), &bench.segments(), &bench.amount()};
    for (int i = 0; i < boxes.size(); ++i) {
        QCOMPARE(boxes.at(i)->currentText(), shown.at(i));
        QCOMPARE(boxes.at(i)->placeholderText(), QString());
        QCOMPARE(boxes.at(i)->toolTip().contains(QString::number(stored.at(i))), shown.at(i).isEmpty());
    }
}

void tst_CaptureSizes::emptyBoxesKeepTheCoresFields()
{
    CaptureBench bench;
    bench.core.setStorageSize(3);
    bench.core.setSegmentNumber(5);
    bench.core.setCaptureAmount(7);
    bench.core.setTriggerPosition(2);
    bench.page().applyToCore();
    QCOMPARE(bench.core.storageSize(), 3);
    QCOMPARE(bench.core.segmentNumber(), 5);
    QCOMPARE(bench.core.captureAmount(), 7);
    QCOMPARE(bench.core.triggerPosition(), 2);
}

void tst_CaptureSizes::triggerPositionStaysUntilAmountOrPositionIsChosen()
{
    CaptureBench bench;
    bench.core.setCaptureAmount(100);
    bench.core.setTriggerPosition(50);
    QCOMPARE(bench.position().value(), 50);
    bench.position().setValue(60);
    bench.page().applyToCore();
    QCOMPARE(bench.core.captureAmount(), 100);
    QCOMPARE(bench.core.triggerPosition(), 60);
    select(bench.amount(), 32);
    bench.page().applyToCore();
    QCOMPARE(bench.core.captureAmount(), 32);
    QCOMPARE(bench.core.triggerPosition(), 28);
}

void tst_CaptureSizes::choosingAnOfferedValueEndsTheToolTip()
{
    CaptureBench bench;
    bench.core.setStorageSize(3);
    QVERIFY(!bench.storage().toolTip().isEmpty());
    select(bench.storage(), 16);
    for (QComboBox *box : {&bench.storage(), &bench.segments(), &bench.amount()})
        QCOMPARE(box->toolTip(), QString());
    QCOMPARE(bench.segments().currentText(), QStringLiteral("4"));
    QCOMPARE(bench.amount().currentText(), QStringLiteral("4"));
}

void tst_CaptureSizes::clockFieldShowsTheWholeNameInItsToolTip()
{
    CaptureBench bench;
    bench.core.setSampleClock(QStringLiteral("u_core/halt"));
    QCOMPARE(bench.child<QLineEdit>("editSampleClock").toolTip(), QStringLiteral("u_core/halt"));
}

QTEST_MAIN(tst_CaptureSizes)
#include "tst_capturesizes.moc"
