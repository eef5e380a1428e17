// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "unit/signals/dialogfixture.h"
#include "unit/signals/records.h"

#include <QDialogButtonBox>
#include <QRadioButton>

using namespace RTLVAK;
using namespace records;
using support::child;

static const QStringList everything{"data[3:0]", "mem[1:0]",       "u1/sum[1:0]",    "clk", "rst", "vdd",
                                    "u1/cnt",    "u1/u_add/carry", "u1/u_add/cnt_en"};

class TestVakSignalSelectDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void textsAndStateAtTheStart();
    void slotsAreTheFixedOnes();
    void advancedFilterShowsItsPanel();
    void addTakesSelectedRowsInTreeOrder();
    void addAllTakesEveryRow();
    void unusableBitsAreDropped();
    void busWithoutUsableBitsIsNotAdded();
    void chosenRowsAreNotAddedAgain();
    void unusableNetIsListedGrey();
    void memberOfAResultIsNotAddedAlone();
    void addFromAHierarchy();
    void removeDeletesWholeRowsOnly();
    void removeAllClears();
    void chosenCountIsShown();
    void returnSearchesFromEveryWidget();
    void escapeAndEnterAreSwallowed();
    void noButtonIsDefault();
    void getSignalsGivesTheChosenOnes();
    void getSignalsGivesNothingAfterCancel();
    void getSignalsSurvivesItsParent();
    void getSignalName_data();
    void getSignalName();
};

void TestVakSignalSelectDialog::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestVakSignalSelectDialog::textsAndStateAtTheStart()
{
    DialogFixture f;
    QCOMPARE(f.dialog.windowTitle(), QString("Search Nets"));
    QCOMPARE(f.dialog.size(), QSize(517, 500));
    QCOMPARE(f.searchButton.text(), QString("Search"));
    QVERIFY(!f.searchButton.icon().pixmap(16).isNull());
    const auto text = [&f](const char *name) { return child<QAbstractButton>(f.dialog, name).text(); };
    QCOMPARE(text("radioButtonNormal"), QString("Normal"));
    QCOMPARE(text("radioButtonWildcard"), QString("Wildcard"));
    QCOMPARE(text("radioButtonRegularExpression"), QString("Regular Expression"));
    QCOMPARE(text("checkBoxCaseSensitive"), QString("Case Sensitive"));
    QCOMPARE(text("checkBoxAdvancedFilter"), QString("Advanced Filter"));
    QCOMPARE(text("checkBoxIncludeSubentries"), QString("Include Subentries"));
    QCOMPARE(text("checkBoxHierarchyView"), QString("Hierarchy View"));
    QStringList labels;
    for (const QLabel *label : f.dialog.findChildren<QLabel *>())
        labels.append(label->text());
    QVERIFY(labels.contains("Name:"));
    QVERIFY(labels.contains("Search In"));
    QVERIFY(child<QRadioButton>(f.dialog, "radioButtonNormal").isChecked());
    QVERIFY(!f.advancedFilter.isChecked());
    QStringList tips;
    for (const char *name : {"btnAdd", "btnAddAll", "btnDel", "btnDelAll"}) {
        tips.append(child<QPushButton>(f.dialog, name).toolTip());
        QVERIFY(!child<QPushButton>(f.dialog, name).icon().pixmap(16).isNull());
    }
    QCOMPARE(tips, QStringList({"Add", "Add all", "Remove", "Remove all"}));
    for (const QTreeWidget *tree : {&f.results, &f.chosen}) {
        QVERIFY(tree->isHeaderHidden());
        QCOMPARE(tree->textElideMode(), Qt::ElideMiddle);
        QCOMPARE(tree->selectionMode(), QAbstractItemView::ExtendedSelection);
        QVERIFY(tree->uniformRowHeights());
        QCOMPARE(tree->topLevelItemCount(), 0);
    }
}

void TestVakSignalSelectDialog::slotsAreTheFixedOnes()
{
    QCOMPARE(support::ownSlots(VakSignalSelectDialog::staticMetaObject),
             QStringList({"on_pushButtonSearch_clicked()", "on_checkBoxAdvancedFilter_toggled(bool)", "onAddSignal()",
                          "onAddAllSignal()", "onDelSignal()", "onDelAllSignal()"}));
}

void TestVakSignalSelectDialog::advancedFilterShowsItsPanel()
{
    DialogFixture f;
    f.dialog.show();
    QVERIFY(!f.searchIn.isVisible());
    f.advancedFilter.click();
    QVERIFY(f.searchIn.isVisible());
    QVERIFY(child<QCheckBox>(f.dialog, "checkBoxIncludeSubentries").isVisible());
    QVERIFY(child<QCheckBox>(f.dialog, "checkBoxHierarchyView").isVisible());
    f.advancedFilter.click();
    QVERIFY(!f.searchIn.isVisible());
}

void TestVakSignalSelectDialog::addTakesSelectedRowsInTreeOrder()
{
    DialogFixture f;
    f.search("");
    f.select({"u1/cnt", "clk", "u1/sum[1:0]"});
    f.dialog.show();
    support::clickButton(f.dialog, "btnAdd");
    QCOMPARE(f.chosenTexts(), QStringList({"u1/sum[1:0]", "clk", "u1/cnt"}));
    QCOMPARE(f.dialog.chosenSignals(), QList<VAK::SignalItem>({bus("u1/sum", 1, 0), net("clk"), net("u1/cnt")}));
    f.select({"rst"});
    support::clickButton(f.dialog, "btnAdd");
    QCOMPARE(f.chosenTexts(), QStringList({"u1/sum[1:0]", "clk", "u1/cnt", "rst"}));
}

void TestVakSignalSelectDialog::addAllTakesEveryRow()
{
    DialogFixture f;
    f.search("cnt");
    f.dialog.show();
    support::clickButton(f.dialog, "btnAddAll");
    QCOMPARE(f.chosenTexts(), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
}

void TestVakSignalSelectDialog::unusableBitsAreDropped()
{
    DialogFixture f;
    f.search("data");
    f.dialog.onAddAllSignal();
    QCOMPARE(names(f.dialog.chosenSignals().value(0).members), QStringList({"data[2]", "data[1]", "data[0]"}));
    QCOMPARE(f.dialog.chosenSignals().value(0).name, QString("data[3:0]"));
    QCOMPARE(f.chosen.topLevelItem(0)->childCount(), 3);
}

void TestVakSignalSelectDialog::busWithoutUsableBitsIsNotAdded()
{
    DialogFixture f;
    f.search("mem");
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenTexts(), QStringList());
    QCOMPARE(f.chosenLabel.text(), QString("No usable bits"));
}

void TestVakSignalSelectDialog::chosenRowsAreNotAddedAgain()
{
    DialogFixture f;
    f.search("");
    f.select({"clk", "u1/sum[1:0]"});
    f.dialog.onAddSignal();
    f.dialog.onAddSignal();
    QCOMPARE(f.chosenTexts(), QStringList({"u1/sum[1:0]", "clk"}));
    QCOMPARE(f.chosenLabel.text(), QString("Already chosen"));
    f.dialog.onAddAllSignal();
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenTexts(), QStringList({"u1/sum[1:0]", "clk", "data[3:0]", "rst", "vdd", "u1/cnt", "u1/u_add/carry",
                                           "u1/u_add/cnt_en"}));
}

void TestVakSignalSelectDialog::unusableNetIsListedGrey()
{
    DialogFixture f;
    f.search("vdd");
    QTreeWidgetItem *row = f.results.topLevelItem(0);
    QCOMPARE(row->foreground(0), QBrush(Qt::gray));
    QVERIFY(!(row->flags() & (Qt::ItemIsSelectable | Qt::ItemIsEnabled)));
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosen.topLevelItem(0)->foreground(0), QBrush(Qt::gray));
    QVERIFY(!(f.chosen.topLevelItem(0)->flags() & Qt::ItemIsSelectable));
    f.dialog.onAddAllSignal(); // asking again makes it no more usable
    QCOMPARE(f.chosen.topLevelItem(0)->foreground(0), QBrush(Qt::gray));
    QVERIFY(!f.dialog.chosenSignals().at(0).enabled);
}

void TestVakSignalSelectDialog::memberOfAResultIsNotAddedAlone()
{
    DialogFixture f;
    f.search("sum");
    f.results.topLevelItem(0)->setExpanded(true);
    f.results.topLevelItem(0)->child(0)->setSelected(true);
    f.dialog.onAddSignal();
    QCOMPARE(f.chosenTexts(), QStringList());
    QCOMPARE(f.chosenLabel.text(), QString("Nothing selected"));
}

void TestVakSignalSelectDialog::addFromAHierarchy()
{
    DialogFixture f;
    f.advanced(true, true);
    f.search("");
    f.select({"u1/u_add/carry", "rst"});
    f.dialog.onAddSignal();
    QCOMPARE(f.chosenTexts(), QStringList({"rst", "u1/u_add/carry"}));
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenTexts(), QStringList({"rst", "u1/u_add/carry", "data[3:0]", "clk", "vdd", "u1/sum[1:0]", "u1/cnt",
                                           "u1/u_add/cnt_en"}));
}

void TestVakSignalSelectDialog::removeDeletesWholeRowsOnly()
{
    DialogFixture f;
    f.search("");
    f.dialog.onAddAllSignal();
    const QStringList before = f.chosenTexts();
    QTreeWidgetItem *data = f.chosen.topLevelItem(0);
    data->setExpanded(true);
    data->child(1)->setSelected(true);
    f.dialog.show();
    support::clickButton(f.dialog, "btnDel");
    QCOMPARE(f.chosenTexts(), before);
    QCOMPARE(data->childCount(), 3);
    f.chosen.topLevelItem(1)->setSelected(true);
    f.chosen.topLevelItem(3)->setSelected(true);
    support::clickButton(f.dialog, "btnDel");
    QStringList expected = before;
    expected.removeAt(3);
    expected.removeAt(1);
    QCOMPARE(f.chosenTexts(), expected);
}

void TestVakSignalSelectDialog::removeAllClears()
{
    DialogFixture f;
    f.search("");
    f.dialog.onAddAllSignal();
    f.dialog.show();
    support::clickButton(f.dialog, "btnDelAll");
    QCOMPARE(f.chosenTexts(), QStringList());
    QVERIFY(f.dialog.chosenSignals().isEmpty());
    QCOMPARE(support::topTexts(f.results), everything);
}

void TestVakSignalSelectDialog::chosenCountIsShown()
{
    DialogFixture f;
    f.search("clk");
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenLabel.text(), QString("1 signal, 1 bit"));
    f.search("data");
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenLabel.text(), QString("2 signals, 4 bits"));
    f.dialog.onDelAllSignal();
    QCOMPARE(f.chosenLabel.text(), QString("0 signals, 0 bits"));
}

void TestVakSignalSelectDialog::returnSearchesFromEveryWidget()
{
    DialogFixture f;
    f.advanced(true, false);
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog));
    int tried = 0;
    for (QWidget *widget : f.dialog.findChildren<QWidget *>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible())
            continue;
        f.results.clear();
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Return);
        QVERIFY2(f.results.topLevelItemCount() == everything.size(), qPrintable(widget->objectName()));
        QVERIFY2(f.dialog.isVisible(), qPrintable(widget->objectName()));
        QCOMPARE(f.chosenTexts(), QStringList());
        ++tried;
    }
    QCOMPARE(tried, 16);
}

void TestVakSignalSelectDialog::escapeAndEnterAreSwallowed()
{
    DialogFixture f;
    f.advanced(true, false);
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog));
    QSignalSpy finished(&f.dialog, &QDialog::finished);
    for (QWidget *widget : f.dialog.findChildren<QWidget *>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible())
            continue;
        widget->setFocus();
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Enter, Qt::Key_F5}) {
            QTest::keyClick(widget, key);
            QVERIFY2(f.dialog.isVisible(), qPrintable(widget->objectName()));
            QCOMPARE(f.results.topLevelItemCount(), 0);
        }
    }
    QCOMPARE(finished.size(), 0);
}

void TestVakSignalSelectDialog::noButtonIsDefault()
{
    DialogFixture f;
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog));
    const QList<QPushButton *> buttons = f.dialog.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 7);
    for (QPushButton *button : buttons) {
        button->setFocus();
        QVERIFY(!button->autoDefault());
        QVERIFY(!button->isDefault());
    }
    f.dialog.hide();
    f.dialog.show();
    for (const QPushButton *button : buttons)
        QVERIFY(!button->isDefault());
}

void TestVakSignalSelectDialog::getSignalsGivesTheChosenOnes()
{
    support::DialogDriver driver;
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(design()));
    QWidget parent;
    driver.answerDialogOf<VakSignalSelectDialog>([&](VakSignalSelectDialog &dialog) {
        QCOMPARE(dialog.parentWidget(), &parent);
        QVERIFY(dialog.isModal());
        child<QLineEdit>(dialog, "lineEditName").setText("cnt");
        dialog.on_pushButtonSearch_clicked();
        dialog.onAddAllSignal();
        child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(names(VakSignalSelectDialog::getSignals(netlist.get(), &parent)),
             QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
    QVERIFY(!parent.findChild<QDialog *>());
}

void TestVakSignalSelectDialog::getSignalsGivesNothingAfterCancel()
{
    support::DialogDriver driver;
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(design()));
    driver.answerDialogOf<VakSignalSelectDialog>([](VakSignalSelectDialog &dialog) {
        dialog.on_pushButtonSearch_clicked();
        dialog.onAddAllSignal();
        child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Cancel)->click();
    });
    QVERIFY(VakSignalSelectDialog::getSignals(netlist.get(), nullptr).isEmpty());
}

void TestVakSignalSelectDialog::getSignalsSurvivesItsParent()
{
    support::DialogDriver driver;
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(design()));
    auto *parent = new QWidget;
    driver.answerDialogOf<VakSignalSelectDialog>([parent](VakSignalSelectDialog &) { delete parent; });
    QVERIFY(VakSignalSelectDialog::getSignals(netlist.get(), parent).isEmpty());
}

void TestVakSignalSelectDialog::getSignalName_data()
{
    QTest::addColumn<QStringList>("patterns"); // added one after the other
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("name");

    QTest::newRow("net") << QStringList{"clk"} << true << "clk";
    QTest::newRow("first of several") << QStringList{"rst", "clk"} << true << "rst";
    QTest::newRow("bus gives its first usable bit") << QStringList{"data", "clk"} << true << "data[2]";
    QTest::newRow("nothing chosen") << QStringList{} << true << "";
    QTest::newRow("cancelled") << QStringList{"clk"} << false << "";
}

void TestVakSignalSelectDialog::getSignalName()
{
    QFETCH(const QStringList, patterns);
    QFETCH(const bool, accepted);
    support::DialogDriver driver;
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(design()));
    driver.answerDialogOf<VakSignalSelectDialog>([&](VakSignalSelectDialog &dialog) {
        for (const QString &pattern : patterns) {
            child<QLineEdit>(dialog, "lineEditName").setText(pattern);
            dialog.on_pushButtonSearch_clicked();
            dialog.onAddAllSignal();
        }
        dialog.done(accepted ? QDialog::Accepted : QDialog::Rejected);
    });
    QTEST(VakSignalSelectDialog::getSignalName(netlist.get(), nullptr), "name");
}

QTEST_MAIN(TestVakSignalSelectDialog)
#include "tst_vaksignalselectdialog.moc"
