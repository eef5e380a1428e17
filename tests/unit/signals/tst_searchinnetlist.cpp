// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/doubles.h"
#include "unit/signals/dialogfixture.h"
#include "unit/signals/records.h"

#include <QRadioButton>

using namespace RTLVAK;
using namespace records;
using support::child;

static const QStringList everything{"data[3:0]", "mem[1:0]",       "u1/sum[1:0]",    "clk", "rst", "vdd",
                                    "u1/cnt",    "u1/u_add/carry", "u1/u_add/cnt_en"};

class TestSearchInNetlist : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
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
};

void TestSearchInNetlist::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestSearchInNetlist::emptyPatternListsEverything()
{
    DialogFixture f;
    QCOMPARE(f.search(""), everything);
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search(""), everything);
    child<QRadioButton>(f.dialog, "radioButtonRegularExpression").setChecked(true);
    QCOMPARE(f.search(""), everything);
}

void TestSearchInNetlist::plainTextIsFoundAnywhereInTheFullName()
{
    DialogFixture f;
    QCOMPARE(f.search("cnt"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
    QCOMPARE(f.search("u1/"), QStringList({"u1/sum[1:0]", "u1/cnt", "u1/u_add/carry", "u1/u_add/cnt_en"}));
    QCOMPARE(f.search("[1:"), QStringList({"mem[1:0]", "u1/sum[1:0]"}));
    QCOMPARE(f.search("data[3]"), QStringList());
    QCOMPARE(f.search("c*t"), QStringList());
}

void TestSearchInNetlist::caseCountsOnlyWhenChecked()
{
    DialogFixture f;
    QCOMPARE(f.search("CLK"), QStringList({"clk"}));
    child<QCheckBox>(f.dialog, "checkBoxCaseSensitive").setChecked(true);
    QCOMPARE(f.search("CLK"), QStringList());
    QCOMPARE(f.search("clk"), QStringList({"clk"}));
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search("C*"), QStringList());
    child<QCheckBox>(f.dialog, "checkBoxCaseSensitive").setChecked(false);
    QCOMPARE(f.search("C*"), QStringList({"clk"}));
}

void TestSearchInNetlist::wildcardMatchesTheWholeName()
{
    DialogFixture f;
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search("cnt*"), QStringList());
    QCOMPARE(f.search("*cnt"), QStringList({"u1/cnt"}));
    QCOMPARE(f.search("*cnt*"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
    QCOMPARE(f.search("?lk"), QStringList({"clk"}));
}

void TestSearchInNetlist::wildcardIsThatOfAUnixShell()
{
    DialogFixture f;
    child<QRadioButton>(f.dialog, "radioButtonWildcard").setChecked(true);
    QCOMPARE(f.search("data\\[3:0\\]"), QStringList({"data[3:0]"}));
    QCOMPARE(f.search("data[3:0]"), QStringList());
    QCOMPARE(f.search("[cr]*"), QStringList({"clk", "rst"}));
}

void TestSearchInNetlist::regularExpressionMatchesTheWholeName()
{
    DialogFixture f;
    child<QRadioButton>(f.dialog, "radioButtonRegularExpression").setChecked(true);
    QCOMPARE(f.search("cnt"), QStringList());
    QCOMPARE(f.search(".*/cnt(_en)?"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
}

void TestSearchInNetlist::invalidPatternIsShownAtTheLineEdit()
{
    DialogFixture f;
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

void TestSearchInNetlist::busyCursorAndButtonComeBack()
{
    DialogFixture f;
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

void TestSearchInNetlist::searchButtonSearchesOncePerClick()
{
    DialogFixture f;
    f.dialog.show();
    QSignalSpy inserted(f.results.model(), &QAbstractItemModel::rowsInserted);
    support::clickButton(f.dialog, "pushButtonSearch");
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(support::topTexts(f.results), everything);
}

void TestSearchInNetlist::searchButtonKeepsTheFocus()
{
    DialogFixture f;
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog));
    QVERIFY(f.name.hasFocus());
    f.searchButton.setFocus();
    QTest::keyClick(&f.searchButton, Qt::Key_Space);
    QVERIFY(f.searchButton.hasFocus());
}

void TestSearchInNetlist::countLineSaysHowMuchWasFound()
{
    DialogFixture f;
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

void TestSearchInNetlist::nullNetlistFindsNothing()
{
    DialogFixture f(false);
    QCOMPARE(f.searchIn.count(), 0);
    QCOMPARE(f.search(""), QStringList());
    QCOMPARE(f.resultLabel.text(), QString("0 buses, 0 nets"));
    f.advanced(true, true);
    QCOMPARE(f.search(""), QStringList());
    f.dialog.onAddAllSignal();
    QCOMPARE(f.chosenTexts(), QStringList());
}

void TestSearchInNetlist::resultsCarryTheirRecords()
{
    DialogFixture f;
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

void TestSearchInNetlist::scopeIsTheRowChosen()
{
    DialogFixture f;
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

void TestSearchInNetlist::hoveringAndEscapeDoNotChangeTheScope()
{
    DialogFixture f;
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

void TestSearchInNetlist::withoutSubentriesOnlyTheScopeIsSearched()
{
    DialogFixture f;
    f.advanced(false, false);
    QCOMPARE(f.search(""), QStringList({"data[3:0]", "mem[1:0]", "clk", "rst", "vdd"}));
    f.choose("u1[alu]");
    QCOMPARE(f.search(""), QStringList({"u1/sum[1:0]", "u1/cnt"}));
}

void TestSearchInNetlist::scopeOfTheHiddenPanelIsIgnored()
{
    DialogFixture f;
    f.advanced(false, true);
    f.choose("u_add[adder]");
    f.advancedFilter.setChecked(false);
    QCOMPARE(f.search(""), everything);
}

void TestSearchInNetlist::searchInIsOpenAndCannotBeFolded()
{
    DialogFixture f;
    auto *view = qobject_cast<QTreeWidget *>(f.searchIn.view());
    QVERIFY(view);
    QCOMPARE(f.searchIn.model(), view->model());
    QVERIFY(view->topLevelItem(0)->isExpanded());
    QVERIFY(view->topLevelItem(0)->child(0)->isExpanded());
    QVERIFY(!view->itemsExpandable());
    QCOMPARE(support::allTexts(*view), QStringList({"top", "  u1[alu]", "    u_add[adder]", "  u2[fifo]"}));
}

void TestSearchInNetlist::hierarchyViewShowsEveryNode()
{
    DialogFixture f;
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

void TestSearchInNetlist::hierarchyViewWithoutSubentriesShowsTheScope()
{
    DialogFixture f;
    f.advanced(false, true);
    f.choose("u1[alu]");
    f.search("cnt");
    QCOMPARE(support::allTexts(f.results), QStringList({"alu:u1", "  u1/cnt"}));
}

void TestSearchInNetlist::hierarchyViewOfNothingStaysEmpty()
{
    DialogFixture f;
    f.advanced(true, true);
    f.choose("u_add[adder]");
    QCOMPARE(f.search("nothing"), QStringList());
    f.choose("u1[alu]");
    f.search("nothing");
    QCOMPARE(support::allTexts(f.results), QStringList({"alu:u1", "  adder:u_add"}));
}

void TestSearchInNetlist::hierarchyRowsCannotBeSelected()
{
    DialogFixture f;
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

void TestSearchInNetlist::hierarchyIsOpenWhereSomethingWasFound()
{
    DialogFixture f;
    f.advanced(true, true);
    f.search("sum");
    const QTreeWidgetItem *top = f.results.topLevelItem(0);
    QVERIFY(top->isExpanded());
    QVERIFY(top->child(0)->isExpanded());
    QVERIFY(!top->child(0)->child(0)->isExpanded()); // the bus
    QVERIFY(!top->child(0)->child(1)->isExpanded()); // nothing found below
}

void TestSearchInNetlist::hierarchyViewNeedsTheAdvancedFilter()
{
    DialogFixture f;
    f.advanced(true, true);
    f.advancedFilter.setChecked(false);
    QCOMPARE(f.search("cnt"), QStringList({"u1/cnt", "u1/u_add/cnt_en"}));
}

void TestSearchInNetlist::newResultsBeginAtTheTop()
{
    DialogFixture f;
    f.results.setFixedHeight(80);
    f.dialog.show();
    f.search("");
    f.results.scrollToBottom();
    QVERIFY(f.results.itemAt(5, 5) != f.results.topLevelItem(0));
    f.search("");
    QCOMPARE(f.results.itemAt(5, 5), f.results.topLevelItem(0));
}

QTEST_MAIN(TestSearchInNetlist)
#include "tst_searchinnetlist.moc"
