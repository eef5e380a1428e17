// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/vaksignalselectdialog.h"

#include "fakes/fakenetlist.h"
#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "support/widgethelpers.h"
#include "unit/signals/records.h"

#include <netcatcher/rtlnetlist.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

using namespace RTLVAK;
using namespace records;
using support::child;

/// top: clk, rst, unusable vdd, data[3:0] with unusable data[3], unusable mem[1:0]; u1[alu]: cnt, sum[1:0];
/// u1/u_add[adder]: carry, cnt_en; u2[fifo]: nothing.
static fakes::Instance design()
{
    fakes::Instance top("top");
    top.net("clk").net("rst").net("vdd", fakes::Unusable);
    top.bus("data", 3, 0, fakes::Usable, {3}).bus("mem", 1, 0, fakes::Unusable);
    fakes::Instance &alu = top.child("u1", "alu");
    alu.net("cnt").bus("sum", 1, 0);
    alu.child("u_add", "adder").net("carry").net("cnt_en");
    top.child("u2", "fifo");
    return top;
}

/// The dialog with its widgets at hand.
struct Fixture
{
    explicit Fixture(bool withNetlist = true)
        : netlist(withNetlist ? fakes::makeNetlist(design()) : nullptr)
        , dialog(netlist.get())
    {
    }

    QStringList search(const QString &pattern)
    {
        name.setText(pattern);
        dialog.on_pushButtonSearch_clicked();
        return support::topTexts(results);
    }

    void advanced(bool includeSub, bool hierarchyView)
    {
        advancedFilter.setChecked(true);
        child<QCheckBox>(dialog, "checkBoxIncludeSubentries").setChecked(includeSub);
        child<QCheckBox>(dialog, "checkBoxHierarchyView").setChecked(hierarchyView);
    }

    /// Chooses a row of the drop-down with the mouse; the row is found by its text.
    void choose(const QString &row)
    {
        dialog.show();
        searchIn.showPopup();
        auto *view = qobject_cast<QTreeWidget *>(searchIn.view());
        QTreeWidgetItem *item = view->findItems(row, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        [&] { QVERIFY2(item, qPrintable(row)); }();
        QTest::mouseMove(view->viewport(), view->visualItemRect(item).center());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualItemRect(item).center());
        [&] { QTRY_VERIFY(!view->isVisible()); }();
    }

    void select(const QStringList &texts)
    {
        results.clearSelection();
        for (const QString &text : texts) {
            const auto found = results.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
            for (QTreeWidgetItem *item : found)
                item->setSelected(true);
        }
    }

    QStringList chosenTexts() const { return support::topTexts(chosen); }

    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;
    VakSignalSelectDialog dialog;
    QLineEdit &name = child<QLineEdit>(dialog, "lineEditName");
    QPushButton &searchButton = child<QPushButton>(dialog, "pushButtonSearch");
    QTreeWidget &results = child<QTreeWidget>(dialog, "treeWidget");
    QTreeWidget &chosen = child<QTreeWidget>(dialog, "treeWidgetAddSignal");
    QComboBox &searchIn = child<QComboBox>(dialog, "comboBoxSearchIn");
    QCheckBox &advancedFilter = child<QCheckBox>(dialog, "checkBoxAdvancedFilter");
    QLabel &resultLabel = child<QLabel>(dialog, "labelResults");
    QLabel &chosenLabel = child<QLabel>(dialog, "labelChosen");
};

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

    void emptyPatternListsEverything();
    void plainTextIsFoundAnywhereInTheFullName();
    void caseCountsOnlyWhenChecked();
    void wildcardMatchesTheWholeName();
    void wildcardIsThatOfAUnixShell();
    void regularExpressionMatchesTheWholeName();
    void invalidPatternIsShownAtTheLineEdit();
    void busyCursorAndButtonComeBack();
    void searchButtonSearchesOncePerClick();
    void searchButtonKeepsTheFocus();
    void countLineSaysHowMuchWasFound();
    void nullNetlistFindsNothing();
    void resultsCarryTheirRecords();

    void scopeIsTheRowChosen();
    void hoveringAndEscapeDoNotChangeTheScope();
    void withoutSubentriesOnlyTheScopeIsSearched();
    void scopeOfTheHiddenPanelIsIgnored();
    void searchInIsOpenAndCannotBeFolded();

    void hierarchyViewShowsEveryNode();
    void hierarchyViewWithoutSubentriesShowsTheScope();
    void hierarchyViewOfNothingStaysEmpty();
    void hierarchyRowsCannotBeSelected();
    void hierarchyIsOpenWhereSomethingWasFound();
    void hierarchyViewNeedsTheAdvancedFilter();
    void newResultsBeginAtTheTop();

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
    Fixture f;
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
    Fixture f;
    f.dialog.show();
    QVERIFY(!f.searchIn.isVisible());
    f.advancedFilter.click();
    QVERIFY(f.searchIn.isVisible());
    QVERIFY(child<QCheckBox>(f.dialog, "checkBoxIncludeSubentries").isVisible());
    QVERIFY(child<QCheckBox>(f.dialog, "checkBoxHierarchyView").isVisible());
    f.advancedFilter.click();
    QVERIFY(!f.searchIn.isVisible());
}

void TestVakSignalSelectDialog::emptyPatternListsEverything()
{
    Fixture f;
    QCOMPARE(f.search(""), everything);
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search(""), everything);
    child<QRadioButton>(f.dialog, "radioButtonRegularExpression").setChecked(true);
    QCOMPARE(f.search(""), everything);
}

void TestVakSignalSelectDialog::plainTextIsFoundAnywhereInTheFullName()
{
    Fixture f;
    QCOMPARE(f.search("cnt"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
    QCOMPARE(f.search("u1/"), QStringList({"u1/sum[1:0]", "u1/cnt", "u1/u_add/carry", "u1/u_add/cnt_en"}));
    QCOMPARE(f.search("[1:"), QStringList({"mem[1:0]", "u1/sum[1:0]"}));
    QCOMPARE(f.search("data[3]"), QStringList());
    QCOMPARE(f.search("c*t"), QStringList());
}

void TestVakSignalSelectDialog::caseCountsOnlyWhenChecked()
{
    Fixture f;
    QCOMPARE(f.search("CLK"), QStringList({"clk"}));
    child<QCheckBox>(f.dialog, "checkBoxCaseSensitive").setChecked(true);
    QCOMPARE(f.search("CLK"), QStringList());
    QCOMPARE(f.search("clk"), QStringList({"clk"}));
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search("C*"), QStringList());
    child<QCheckBox>(f.dialog, "checkBoxCaseSensitive").setChecked(false);
    QCOMPARE(f.search("C*"), QStringList({"clk"}));
}

void TestVakSignalSelectDialog::wildcardMatchesTheWholeName()
{
    Fixture f;
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search("cnt*"), QStringList());
    QCOMPARE(f.search("*cnt"), QStringList({"u1/cnt"}));
    QCOMPARE(f.search("*cnt*"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
    QCOMPARE(f.search("?lk"), QStringList({"clk"}));
}

void TestVakSignalSelectDialog::wildcardIsThatOfAUnixShell()
{
    Fixture f;
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search("data\\[3:0\\]"), QStringList({"data[3:0]"}));
    QCOMPARE(f.search("data[3:0]"), QStringList());
    QCOMPARE(f.search("[cr]*"), QStringList({"clk", "rst"}));
}

void TestVakSignalSelectDialog::regularExpressionMatchesTheWholeName()
{
    Fixture f;
    child<QRadioButton>(f.dialog, "radioButtonRegularExpression").setChecked(true);
    QCOMPARE(f.search("cnt"), QStringList());
    QCOMPARE(f.search(".*/cnt(_en)?"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
}

void TestVakSignalSelectDialog::invalidPatternIsShownAtTheLineEdit()
{
    Fixture f;
    f.search("");
    child<QRadioButton>(f.dialog, "radioButtonRegularExpression").setChecked(true);
    QCOMPARE(f.search("a("), QStringList());
    QCOMPARE(f.name.palette().color(QPalette::Text), QColor(Qt::red));
    QVERIFY(f.name.toolTip().startsWith("Invalid pattern: "));
    QCOMPARE(f.resultLabel.text(), QString("Invalid pattern"));
    QVERIFY(f.searchButton.isEnabled());
    QVERIFY(!QApplication::overrideCursor());

    f.name.setText("a");
    QVERIFY(f.name.palette().color(QPalette::Text) != QColor(Qt::red));
    QCOMPARE(f.name.toolTip(), QString());

    f.search("a(");
    child<QRadioButton>(f.dialog, "radioButtonNormal").setChecked(true);
    QVERIFY(f.name.palette().color(QPalette::Text) != QColor(Qt::red));
    f.advanced(true, true);
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search("a["), QStringList());
    QCOMPARE(f.name.palette().color(QPalette::Text), QColor(Qt::red));
}

void TestVakSignalSelectDialog::busyCursorAndButtonComeBack()
{
    Fixture f;
    QList<bool> states;
    const auto note = [&] {
        const QCursor *cursor = QApplication::overrideCursor();
        states.append(cursor && cursor->shape() == Qt::WaitCursor && !f.searchButton.isEnabled());
    };
    connect(f.results.model(), &QAbstractItemModel::rowsInserted, &f.dialog, note);
    f.search("clk");
    QCOMPARE(states, QList<bool>({true}));
    QVERIFY(f.searchButton.isEnabled());
    QVERIFY(!QApplication::overrideCursor());
}

void TestVakSignalSelectDialog::searchButtonSearchesOncePerClick()
{
    Fixture f;
    f.dialog.show();
    QSignalSpy inserted(f.results.model(), &QAbstractItemModel::rowsInserted);
    support::clickButton(f.dialog, "pushButtonSearch");
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(support::topTexts(f.results), everything);
}

void TestVakSignalSelectDialog::searchButtonKeepsTheFocus()
{
    Fixture f;
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog));
    QVERIFY(f.name.hasFocus());
    f.searchButton.setFocus();
    QTest::keyClick(&f.searchButton, Qt::Key_Space);
    QVERIFY(f.searchButton.hasFocus());
}

void TestVakSignalSelectDialog::countLineSaysHowMuchWasFound()
{
    Fixture f;
    QCOMPARE(f.resultLabel.text(), QString());
    f.search("");
    QCOMPARE(f.resultLabel.text(), QString("3 buses, 6 nets"));
    f.search("sum");
    QCOMPARE(f.resultLabel.text(), QString("1 bus, 0 nets"));
    f.search("clk");
    QCOMPARE(f.resultLabel.text(), QString("0 buses, 1 net"));
    f.search("nothing like this");
    QCOMPARE(f.resultLabel.text(), QString("0 buses, 0 nets"));
    f.advanced(true, true);
    f.search("");
    QCOMPARE(f.resultLabel.text(), QString("3 buses, 6 nets"));
}

void TestVakSignalSelectDialog::nullNetlistFindsNothing()
{
    Fixture f(false);
    QCOMPARE(f.searchIn.count(), 0);
    QCOMPARE(f.search(""), QStringList());
    QCOMPARE(f.resultLabel.text(), QString("0 buses, 0 nets"));
    f.advanced(true, true);
    QCOMPARE(f.search(""), QStringList());
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenTexts(), QStringList());
}

void TestVakSignalSelectDialog::resultsCarryTheirRecords()
{
    Fixture f;
    f.search("");
    const auto record = [&f](int row) {
        return f.results.topLevelItem(row)->data(0, Qt::UserRole).value<VAK::SignalItem>();
    };
    VAK::SignalItem data = bus("data", 3, 0);
    data.members[0].enabled = false;
    QCOMPARE(record(0), data);
    VAK::SignalItem mem = bus("mem", 1, 0);
    mem.enabled = mem.members[0].enabled = mem.members[1].enabled = false;
    QCOMPARE(record(1), mem);
    QCOMPARE(record(3), net("clk"));
    QCOMPARE(f.results.topLevelItem(0)->childCount(), 4);
    QCOMPARE(f.results.topLevelItem(0)->child(3)->text(0), QString("data[0]"));
    QVERIFY(!f.results.topLevelItem(0)->isExpanded());
}

void TestVakSignalSelectDialog::scopeIsTheRowChosen()
{
    Fixture f;
    f.advanced(true, false);
    QCOMPARE(f.searchIn.currentText(), QString("top"));
    f.choose("u1[alu]");
    QCOMPARE(f.searchIn.currentText(), QString("u1[alu]"));
    QCOMPARE(f.search(""), QStringList({"u1/sum[1:0]", "u1/cnt", "u1/u_add/carry", "u1/u_add/cnt_en"}));
    f.choose("u_add[adder]");
    QCOMPARE(f.search(""), QStringList({"u1/u_add/carry", "u1/u_add/cnt_en"}));
    f.choose("top");
    QCOMPARE(f.search(""), everything);
}

void TestVakSignalSelectDialog::hoveringAndEscapeDoNotChangeTheScope()
{
    Fixture f;
    f.advanced(true, false);
    f.choose("u1[alu]");
    const QStringList inAlu = f.search("");
    f.searchIn.showPopup();
    auto *view = qobject_cast<QTreeWidget *>(f.searchIn.view());
    QTreeWidgetItem *other = view->findItems("u2[fifo]", Qt::MatchExactly | Qt::MatchRecursive).value(0);
    QTest::mouseMove(view->viewport(), view->visualItemRect(other).center());
    view->setCurrentItem(other);
    QTest::keyClick(view, Qt::Key_Escape);
    QTRY_VERIFY(!view->isVisible());
    QVERIFY(f.dialog.isVisible());
    QCOMPARE(f.searchIn.currentText(), QString("u1[alu]"));
    QCOMPARE(f.search(""), inAlu);
}

void TestVakSignalSelectDialog::withoutSubentriesOnlyTheScopeIsSearched()
{
    Fixture f;
    f.advanced(false, false);
    QCOMPARE(f.search(""), QStringList({"data[3:0]", "mem[1:0]", "clk", "rst", "vdd"}));
    f.choose("u1[alu]");
    QCOMPARE(f.search(""), QStringList({"u1/sum[1:0]", "u1/cnt"}));
}

void TestVakSignalSelectDialog::scopeOfTheHiddenPanelIsIgnored()
{
    Fixture f;
    f.advanced(false, true);
    f.choose("u_add[adder]");
    f.advancedFilter.setChecked(false);
    QCOMPARE(f.search(""), everything);
}

void TestVakSignalSelectDialog::searchInIsOpenAndCannotBeFolded()
{
    Fixture f;
    auto *view = qobject_cast<QTreeWidget *>(f.searchIn.view());
    QVERIFY(view);
    QCOMPARE(f.searchIn.model(), view->model());
    QVERIFY(view->topLevelItem(0)->isExpanded());
    QVERIFY(view->topLevelItem(0)->child(0)->isExpanded());
    QVERIFY(!view->itemsExpandable());
    QCOMPARE(support::allTexts(*view), QStringList({"top", "  u1[alu]", "    u_add[adder]", "  u2[fifo]"}));
}

void TestVakSignalSelectDialog::hierarchyViewShowsEveryNode()
{
    Fixture f;
    f.advanced(true, true);
    f.search("cnt");
    QCOMPARE(support::allTexts(f.results),
             QStringList({"top", "  alu:u1", "    u1/cnt", "    adder:u_add", "      u1/u_add/cnt_en", "  fifo:u2"}));
    QVERIFY(!f.results.topLevelItem(0)->icon(0).pixmap(16).isNull());
    f.search("");
    QCOMPARE(support::allTexts(f.results), QStringList({"top",
                                                        "  data[3:0]",
                                                        "    data[3]",
                                                        "    data[2]",
                                                        "    data[1]",
                                                        "    data[0]",
                                                        "  mem[1:0]",
                                                        "    mem[1]",
                                                        "    mem[0]",
                                                        "  clk",
                                                        "  rst",
                                                        "  vdd",
                                                        "  alu:u1",
                                                        "    u1/sum[1:0]",
                                                        "      u1/sum[1]",
                                                        "      u1/sum[0]",
                                                        "    u1/cnt",
                                                        "    adder:u_add",
                                                        "      u1/u_add/carry",
                                                        "      u1/u_add/cnt_en",
                                                        "  fifo:u2"}));
}

void TestVakSignalSelectDialog::hierarchyViewWithoutSubentriesShowsTheScope()
{
    Fixture f;
    f.advanced(false, true);
    f.choose("u1[alu]");
    f.search("cnt");
    QCOMPARE(support::allTexts(f.results), QStringList({"alu:u1", "  u1/cnt"}));
}

void TestVakSignalSelectDialog::hierarchyViewOfNothingStaysEmpty()
{
    Fixture f;
    f.advanced(true, true);
    f.choose("u_add[adder]");
    QCOMPARE(f.search("nothing"), QStringList());
    f.choose("u1[alu]");
    f.search("nothing");
    QCOMPARE(support::allTexts(f.results), QStringList({"alu:u1", "  adder:u_add"}));
}

void TestVakSignalSelectDialog::hierarchyRowsCannotBeSelected()
{
    Fixture f;
    f.advanced(true, true);
    f.search("cnt");
    QVERIFY(!(f.results.topLevelItem(0)->flags() & Qt::ItemIsSelectable));
    f.results.selectAll();
    QStringList selected;
    for (const QTreeWidgetItem *item : f.results.selectedItems())
        selected.append(item->text(0));
    selected.sort();
    QCOMPARE(selected, QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
}

void TestVakSignalSelectDialog::hierarchyIsOpenWhereSomethingWasFound()
{
    Fixture f;
    f.advanced(true, true);
    f.search("sum");
    const QTreeWidgetItem *top = f.results.topLevelItem(0);
    QVERIFY(top->isExpanded());
    QVERIFY(top->child(0)->isExpanded());
    QVERIFY(!top->child(0)->child(0)->isExpanded()); // the bus
    QVERIFY(!top->child(0)->child(1)->isExpanded()); // nothing found below
}

void TestVakSignalSelectDialog::hierarchyViewNeedsTheAdvancedFilter()
{
    Fixture f;
    f.advanced(true, true);
    f.advancedFilter.setChecked(false);
    QCOMPARE(f.search("cnt"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
}

void TestVakSignalSelectDialog::newResultsBeginAtTheTop()
{
    Fixture f;
    f.results.setFixedHeight(80);
    f.dialog.show();
    f.search("");
    f.results.scrollToBottom();
    QVERIFY(f.results.itemAt(5, 5) != f.results.topLevelItem(0));
    f.search("");
    QCOMPARE(f.results.itemAt(5, 5), f.results.topLevelItem(0));
}

void TestVakSignalSelectDialog::addTakesSelectedRowsInTreeOrder()
{
    Fixture f;
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
    Fixture f;
    f.search("cnt");
    f.dialog.show();
    support::clickButton(f.dialog, "btnAddAll");
    QCOMPARE(f.chosenTexts(), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
}

void TestVakSignalSelectDialog::unusableBitsAreDropped()
{
    Fixture f;
    f.search("data");
    f.dialog.onAddAllSignal();
    QCOMPARE(names(f.dialog.chosenSignals().value(0).members), QStringList({"data[2]", "data[1]", "data[0]"}));
    QCOMPARE(f.dialog.chosenSignals().value(0).name, QString("data[3:0]"));
    QCOMPARE(f.chosen.topLevelItem(0)->childCount(), 3);
}

void TestVakSignalSelectDialog::busWithoutUsableBitsIsNotAdded()
{
    Fixture f;
    f.search("mem");
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenTexts(), QStringList());
    QCOMPARE(f.chosenLabel.text(), QString("No usable bits"));
}

void TestVakSignalSelectDialog::chosenRowsAreNotAddedAgain()
{
    Fixture f;
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
    Fixture f;
    f.search("vdd");
    QTreeWidgetItem *row = f.results.topLevelItem(0);
    QCOMPARE(row->foreground(0), QBrush(Qt::gray));
    QVERIFY(!(row->flags() & (Qt::ItemIsSelectable | Qt::ItemIsEnabled)));
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosen.topLevelItem(0)->foreground(0), QBrush(Qt::gray));
    QVERIFY(!(f.chosen.topLevelItem(0)->flags() & Qt::ItemIsSelectable));
}

void TestVakSignalSelectDialog::memberOfAResultIsNotAddedAlone()
{
    Fixture f;
    f.search("sum");
    f.results.topLevelItem(0)->setExpanded(true);
    f.results.topLevelItem(0)->child(0)->setSelected(true);
    f.dialog.onAddSignal();
    QCOMPARE(f.chosenTexts(), QStringList());
    QCOMPARE(f.chosenLabel.text(), QString("Nothing selected"));
}

void TestVakSignalSelectDialog::addFromAHierarchy()
{
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
