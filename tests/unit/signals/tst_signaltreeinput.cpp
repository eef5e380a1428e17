// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "unit/signals/treefixture.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace RTLVAK;
using namespace records;

static const QStringList dragged{"itemDragged"};

/// What the menu offers for what is selected now.
static QStringList offered(TreeFixture &tree)
{
    support::DialogDriver driver;
    driver.dismissMenu();
    tree.setMenuEnabled(true);
    QTest::mouseClick(tree.viewport(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    [&] { QTRY_COMPARE(driver.menus().size(), 1); }();
    return driver.menus().value(0).enabledTexts;
}

static QLineEdit *editorOf(const TreeFixture &tree)
{
    return tree.viewport()->findChild<QLineEdit *>();
}

/// Begins to rename a row, as the menu entry does.
static QLineEdit *beginRename(TreeFixture &tree, QTreeWidgetItem *row)
{
    tree.setCurrentItem(row);
    tree.onChangeName();
    return editorOf(tree);
}

class TestSignalTreeInput : public QObject
{
    Q_OBJECT

private slots:
    void menuIsOffAtFirst();
    void menuListsTheActionsInOrder();
    void menuEntriesFollowTheSelection_data();
    void menuEntriesFollowTheSelection();
    void rightPressDoesNotChangeTheSelection();
    void rightPressOpensNoMenuAroundTheTree();
    void otherButtonsAreIgnored();
    void leftPressSelects();
    void menuEntryRunsItsAction();
    void renameFromTheMenuMeansTheSelectedRow();
    void treeMayGoWhileItsMenuIsOpen();

    void editorShowsTheTextSelectedAndHasTheFocus();
    void returnAndEnterCommit();
    void escapeDiscards();
    void surroundingDialogSeesNoneOfTheKeys();
    void losingTheFocusCommitsOnce();
    void emptyOrSameTextChangesNothing();
    void ownNetlistNameClearsDisplayNameAndItalics();
    void memberIsRenamedInItsParentsRecord();
    void rowMayVanishWhileItIsRenamed();
    void rowMayMoveWhileItIsRenamed();
    void renameWhileRenamingCommitsTheFirst();
    void finishWithoutAnEditorDoesNothing();
    void longNamesAreElidedInTheMiddle();
};

void TestSignalTreeInput::menuIsOffAtFirst()
{
    support::DialogDriver driver;
    TreeFixture tree({net("a")});
    tree.select({0});
    QTest::mouseClick(tree.viewport(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    QCoreApplication::processEvents();
    QCOMPARE(driver.shownCount(), 0);
    QVERIFY(!tree.findChild<QMenu *>());
}

void TestSignalTreeInput::menuListsTheActionsInOrder()
{
    support::DialogDriver driver;
    driver.dismissMenu();
    TreeFixture tree({net("a")});
    tree.setMenuEnabled(true);
    QTest::mouseClick(tree.viewport(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    QTRY_COMPARE(driver.menus().size(), 1);
    QCOMPARE(driver.menus().at(0).texts,
             QStringList({"Ungroup", "Group", "Rename", "Restore Original Name", "Reverse", "Enable", "Disable"}));
    QCOMPARE(driver.menus().at(0).enabledTexts, QStringList());
    QTRY_VERIFY(!tree.findChild<QMenu *>());
}

void TestSignalTreeInput::menuEntriesFollowTheSelection_data()
{
    // Rows: a, inactive b, bus d (active), inactive bus e, c. 20 + n is member n of d.
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QStringList>("enabled");

    using Rows = QList<int>;
    using Texts = QStringList;
    QTest::newRow("nothing") << Rows{} << Texts{};
    QTest::newRow("net") << Rows{0} << Texts{"Rename", "Restore Original Name", "Disable"};
    QTest::newRow("inactive net") << Rows{1} << Texts{"Rename", "Restore Original Name", "Enable"};
    QTest::newRow("bus") << Rows{2} << Texts{"Ungroup", "Rename", "Restore Original Name", "Reverse", "Disable"};
    QTest::newRow("inactive bus") << Rows{3}
                                  << Texts{"Ungroup", "Rename", "Restore Original Name", "Reverse", "Enable"};
    QTest::newRow("two nets") << Rows{0, 4} << Texts{"Group", "Restore Original Name", "Disable"};
    QTest::newRow("net and bus") << Rows{0, 2} << Texts{"Ungroup", "Group", "Restore Original Name", "Disable"};
    QTest::newRow("two inactive") << Rows{1, 3} << Texts{"Ungroup", "Group", "Restore Original Name", "Enable"};
    QTest::newRow("mixed") << Rows{0, 1} << Texts{"Restore Original Name", "Enable", "Disable"};
    QTest::newRow("member") << Rows{20} << Texts{"Rename", "Restore Original Name", "Disable"};
    QTest::newRow("net and member") << Rows{0, 20} << Texts{"Restore Original Name", "Disable"};
    QTest::newRow("two members") << Rows{20, 21} << Texts{"Restore Original Name", "Disable"};
}

void TestSignalTreeInput::menuEntriesFollowTheSelection()
{
    QFETCH(const QList<int>, rows);
    TreeFixture tree({net("a"), inactive(net("b")), bus("d", 1, 0), inactive(bus("e", 1, 0)), net("c")});
    tree.expandAll();
    for (int row : rows)
        (row >= 20 ? tree.row(2)->child(row - 20) : tree.row(row))->setSelected(true);
    QTEST(offered(tree), "enabled");
}

void TestSignalTreeInput::rightPressDoesNotChangeTheSelection()
{
    support::DialogDriver driver;
    driver.dismissMenu();
    TreeFixture tree({net("a"), net("b"), net("c")});
    tree.setMenuEnabled(true);
    tree.select({0, 1});
    const QPoint onThird = tree.visualItemRect(tree.row(2)).center();
    QTest::mouseClick(tree.viewport(), Qt::RightButton, Qt::NoModifier, onThird);
    QTRY_COMPARE(driver.menus().size(), 1);
    QCOMPARE(tree.selectedNames(), QStringList({"a", "b"}));
    QCOMPARE(tree.currentItem(), tree.row(1));
}

void TestSignalTreeInput::rightPressOpensNoMenuAroundTheTree()
{
    struct Surroundings : QWidget
    {
        void contextMenuEvent(QContextMenuEvent *) override { ++asked; }
        int asked = 0;
    };
    Surroundings surroundings;
    auto *layout = new QVBoxLayout(&surroundings);
    auto *tree = new TreeFixture({net("a")});
    auto *plain = new QTreeWidget;
    layout->addWidget(plain);
    layout->addWidget(tree);
    surroundings.show();
    for (QTreeWidget *widget : {plain, static_cast<QTreeWidget *>(tree)}) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), widget->viewport()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(widget->viewport(), &event);
    }
    QCOMPARE(surroundings.asked, 1); // the plain tree's
}

void TestSignalTreeInput::otherButtonsAreIgnored()
{
    support::DialogDriver driver;
    TreeFixture tree({net("a"), net("b")});
    tree.setMenuEnabled(true);
    tree.select({0});
    QTest::mouseClick(tree.viewport(), Qt::MiddleButton, Qt::NoModifier, tree.visualItemRect(tree.row(1)).center());
    QCoreApplication::processEvents();
    QCOMPARE(driver.shownCount(), 0);
    QCOMPARE(tree.selectedNames(), QStringList({"a"}));
}

void TestSignalTreeInput::leftPressSelects()
{
    TreeFixture tree({net("a"), net("b")});
    support::clickItem(tree, tree.row(1));
    QCOMPARE(tree.selectedNames(), QStringList({"b"}));
}

void TestSignalTreeInput::menuEntryRunsItsAction()
{
    support::DialogDriver driver;
    driver.chooseFromMenu("Group");
    TreeFixture tree({net("d[1]"), net("d[0]")});
    tree.setMenuEnabled(true);
    tree.select({0, 1});
    QTest::mouseClick(tree.viewport(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    QTRY_COMPARE(tree.names(), QStringList({"d[1:0]"}));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeInput::renameFromTheMenuMeansTheSelectedRow()
{
    support::DialogDriver driver;
    driver.chooseFromMenu("Rename");
    TreeFixture tree({net("a"), net("b")});
    tree.setMenuEnabled(true);
    support::clickItem(tree, tree.row(0));
    support::clickItem(tree, tree.row(1), 0, Qt::ControlModifier);
    support::clickItem(tree, tree.row(1), 0, Qt::ControlModifier);
    QCOMPARE(tree.selectedNames(), QStringList({"a"}));
    QCOMPARE(tree.currentItem(), tree.row(1));
    QTest::mouseClick(tree.viewport(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    QTRY_VERIFY(editorOf(tree));
    QCOMPARE(editorOf(tree)->text(), QString("a"));
    QCOMPARE(tree.selectedNames(), QStringList({"a"}));
}

void TestSignalTreeInput::treeMayGoWhileItsMenuIsOpen()
{
    support::DialogDriver driver;
    auto tree = std::make_unique<TreeFixture>(QList<VAK::SignalItem>{net("a")});
    tree->setMenuEnabled(true);
    driver.dismissMenu();
    QTest::mouseClick(tree->viewport(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    QTRY_COMPARE(driver.menus().size(), 1);
    tree.reset();
    QVERIFY(!QApplication::activePopupWidget());
}

void TestSignalTreeInput::editorShowsTheTextSelectedAndHasTheFocus()
{
    TreeFixture tree({net("a"), shownAs(net("b"), "shown")});
    QVERIFY(QTest::qWaitForWindowActive(&tree));
    const QLineEdit *editor = beginRename(tree, tree.row(1));
    QVERIFY(editor);
    QCOMPARE(editor->text(), QString("shown"));
    QCOMPARE(editor->selectedText(), QString("shown"));
    QCOMPARE(tree.itemWidget(tree.row(1), 0), editor);
    QTRY_VERIFY(editor->hasFocus());
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeInput::returnAndEnterCommit()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        TreeFixture tree({net("a"), net("b")});
        QVERIFY(QTest::qWaitForWindowActive(&tree));
        QLineEdit *editor = beginRename(tree, tree.row(1));
        QTest::keyClicks(editor, "clock");
        QTest::keyClick(editor, key);
        QCOMPARE(tree.record(1), shownAs(net("b"), "clock"));
        QCOMPARE(tree.row(1)->text(0), QString("clock"));
        QCOMPARE(tree.row(1)->toolTip(0), QString("clock"));
        QVERIFY(tree.row(1)->font(0).italic());
        QVERIFY(!tree.itemWidget(tree.row(1), 0));
        support::runDeferredDeletes();
        QVERIFY(!editorOf(tree));
        QCOMPARE(tree.log.names(), dragged);
        QVERIFY(tree.hasFocus());
    }
}

void TestSignalTreeInput::escapeDiscards()
{
    TreeFixture tree({net("a")});
    QVERIFY(QTest::qWaitForWindowActive(&tree));
    QLineEdit *editor = beginRename(tree, tree.row(0));
    QTest::keyClicks(editor, "clock");
    QTest::keyClick(editor, Qt::Key_Escape);
    QCOMPARE(tree.record(0), net("a"));
    support::runDeferredDeletes();
    QVERIFY(!editorOf(tree));
    QVERIFY(tree.log.names().isEmpty());
    QVERIFY(tree.hasFocus());
}

void TestSignalTreeInput::surroundingDialogSeesNoneOfTheKeys()
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *tree = new TreeFixture({net("a")});
    auto *button = new QPushButton("OK");
    layout->addWidget(tree);
    layout->addWidget(button);
    button->setDefault(true);
    int clicks = 0;
    connect(button, &QPushButton::clicked, &dialog, [&clicks] { ++clicks; });
    QAction shortcut;
    shortcut.setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter), QKeySequence(Qt::Key_Escape)});
    connect(&shortcut, &QAction::triggered, &dialog, [&clicks] { ++clicks; });
    dialog.addAction(&shortcut);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        QLineEdit *editor = beginRename(*tree, tree->row(0));
        QTest::keyClick(editor, key);
        QVERIFY(dialog.isVisible());
        QCOMPARE(clicks, 0);
        support::runDeferredDeletes();
    }
    dialog.removeAction(&shortcut);
    QTest::keyClick(tree, Qt::Key_Return);
    QCOMPARE(clicks, 1);
}

void TestSignalTreeInput::losingTheFocusCommitsOnce()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *tree = new TreeFixture({net("a")});
    auto *other = new QLineEdit;
    layout->addWidget(tree);
    layout->addWidget(other);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QLineEdit *editor = beginRename(*tree, tree->row(0));
    QTRY_VERIFY(editor->hasFocus());
    QTest::keyClicks(editor, "clock");
    other->setFocus();
    QCOMPARE(tree->record(0), shownAs(net("a"), "clock"));
    support::runDeferredDeletes();
    QCOMPARE(tree->log.names(), dragged);
    QVERIFY(other->hasFocus());
}

void TestSignalTreeInput::emptyOrSameTextChangesNothing()
{
    TreeFixture tree({shownAs(net("a"), "shown")});
    for (const char *text : {"", "shown"}) {
        QLineEdit *editor = beginRename(tree, tree.row(0));
        editor->setText(text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(tree.record(0), shownAs(net("a"), "shown"));
        support::runDeferredDeletes();
        QVERIFY(!editorOf(tree));
    }
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeInput::ownNetlistNameClearsDisplayNameAndItalics()
{
    TreeFixture tree({shownAs(net("u1/clk"), "shown")});
    QLineEdit *editor = beginRename(tree, tree.row(0));
    editor->setText("u1/clk");
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(tree.record(0), net("u1/clk"));
    QCOMPARE(tree.row(0)->text(0), QString("u1/clk"));
    QVERIFY(!tree.row(0)->font(0).italic());
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeInput::memberIsRenamedInItsParentsRecord()
{
    TreeFixture tree({net("a"), bus("d", 2, 0)});
    tree.row(1)->setExpanded(true);
    QLineEdit *editor = beginRename(tree, tree.row(1)->child(1));
    QCOMPARE(editor->text(), QString("d[1]"));
    editor->setText("middle");
    QTest::keyClick(editor, Qt::Key_Return);
    VAK::SignalItem expected = bus("d", 2, 0);
    expected.members[1].displayName = "middle";
    QCOMPARE(tree.record(1), expected);
    QCOMPARE(tree.row(1)->child(1)->text(0), QString("middle"));
    QVERIFY(tree.row(1)->child(1)->font(0).italic());
    QVERIFY(!tree.row(1)->font(0).italic());
    QVERIFY(tree.row(1)->isExpanded());
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeInput::rowMayVanishWhileItIsRenamed()
{
    TreeFixture tree({net("a"), net("b")});
    QVERIFY(QTest::qWaitForWindowActive(&tree));
    QLineEdit *editor = beginRename(tree, tree.row(1));
    QTest::keyClicks(editor, "clock");
    delete tree.row(1);
    support::runDeferredDeletes();
    tree.finishEdit();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({net("a")}));
    QVERIFY(tree.log.names().isEmpty());

    beginRename(tree, tree.row(0));
    tree.clear();
    support::runDeferredDeletes();
    QVERIFY(!editorOf(tree));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeInput::rowMayMoveWhileItIsRenamed()
{
    TreeFixture tree({net("a"), net("b")});
    QLineEdit *editor = beginRename(tree, tree.row(1));
    editor->setText("clock");
    tree.insertSignal(0, net("x"));
    tree.finishEdit();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({net("x"), net("a"), shownAs(net("b"), "clock")}));
}

void TestSignalTreeInput::renameWhileRenamingCommitsTheFirst()
{
    TreeFixture tree({net("a"), net("b")});
    beginRename(tree, tree.row(0))->setText("first");
    tree.setCurrentItem(tree.row(1));
    tree.onChangeName();
    QCOMPARE(tree.record(0), shownAs(net("a"), "first"));
    QCOMPARE(tree.log.names(), dragged);
    auto *editor = qobject_cast<QLineEdit *>(tree.itemWidget(tree.row(1), 0));
    QVERIFY(editor);
    editor->setText("second");
    tree.finishEdit();
    QCOMPARE(tree.record(1), shownAs(net("b"), "second"));
}

void TestSignalTreeInput::finishWithoutAnEditorDoesNothing()
{
    TreeFixture tree({});
    tree.finishEdit();
    tree.onChangeName();
    tree.finishEdit();
    QVERIFY(!editorOf(tree));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeInput::longNamesAreElidedInTheMiddle()
{
    TreeFixture tree({net(QString(1000, 'n'))});
    QCOMPARE(tree.textElideMode(), Qt::ElideMiddle);
    QCOMPARE(tree.visualItemRect(tree.row(0)).right(), tree.viewport()->rect().right());
}

QTEST_MAIN(TestSignalTreeInput)
#include "tst_signaltreeinput.moc"
