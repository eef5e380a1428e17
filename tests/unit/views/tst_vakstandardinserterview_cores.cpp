// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include "signals/vaksignalselectdialog.h"

#include <QMenu>
#include <QSignalSpy>
#include <QtTest>

#include <utility>

using namespace RTLVAK;
using namespace support;

/// The list of cores of the Standard view.
class TestStandardViewCores : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void addAppendsACoreAndShowsIt();
    void addedCoresPageHasTheNetlist();
    void addedCoresEditsReachTheView();
    void addOnAnItemWorksToo();
    void theSeventeenthAddShowsTheLimitAndChangesNothing();
    void addMarksTheDocumentOnce();

    void menuOffersAddAndRemove();
    void rightClickOnEmptySpaceOffersRemoveDisabledAndAddStillWorks();
    void dismissedMenuChangesNothing();

    void removeAsksFirst();
    void refusedRemovalShowsTheFirstCore_data();
    void refusedRemovalShowsTheFirstCore();
    void removingTheMiddleCoreRenumbers();
    void removingTheShownCoreShowsTheFirst();
    void removalDeletesThePage();
    void withOneCoreRemoveRefusesBeforeAsking();
    void removedCoresAreGoneFromTheFile();
    void addAfterRemovalTakesTheNextNumber();
    void addAndRemovalLogTheNumbers();
    void menuOpensAtTheMouse();

    void clickShowsTheCore();
    void doubleClickDoesNothingOfItsOwn();
    void clickIsIgnoredWhenNoItemLiesAtRowAndColumn();
    void keysShowTheCore();
    void unknownNumberShowsNothingNew();

    void addAoOptionWidgetAnswersTheNumberOfPages();
    void removeAoOptionWidgetLeavesThePageAlive();

    void viewMayDieInTheMenu();
    void viewMayDieInTheConfirmation();
    void viewMayDieInTheLimitBox();
};

void TestStandardViewCores::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

void TestStandardViewCores::addAppendsACoreAndShowsIt()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    QCOMPARE(fixture.items(), QStringList({"Core 0", "Core 1", "Core 2"}));
    QCOMPARE(fixture.stack().count(), 3);
    QCOMPARE(fixture.coreNumber(2), 2);
    QCOMPARE(fixture.stack().currentIndex(), 2);
    QCOMPARE(fixture.currentItem(), QString("Core 2"));
    QCOMPARE(fixture.pageTitle(), QString("Core 2"));
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::addedCoresPageHasTheNetlist()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    // Its clock is looked up in the netlist that the page was given.
    fixture.driver.answerDialogOf<VakSignalSelectDialog>([](VakSignalSelectDialog &dialog) {
        dialog.on_pushButtonSearch_clicked();
        QCOMPARE(topTexts(child<QTreeWidget>(dialog, "treeWidget")).size(), 5);
        dialog.reject();
    });
    clickButton(fixture.page(1), "btnSampleClock");
    QCOMPARE(fixture.driver.dialogs(), QStringList{"RTLVAK::VakSignalSelectDialog"});
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::addedCoresEditsReachTheView()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    fixture.standardView().setModified(false);
    fixture.editClock(1, "clk2");
    QVERIFY(fixture.view().isModified());
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::addOnAnItemWorksToo()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(0);
    QCOMPARE(fixture.items(), QStringList({"Core 0", "Core 1", "Core 2"}));
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::theSeventeenthAddShowsTheLimitAndChangesNothing()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(15));
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    QCOMPARE(fixture.stack().count(), 16);
    QCOMPARE(fixture.pageTitle(), QString("Core 15"));
    fixture.standardView().setModified(false);
    fixture.standardView().changeAoWidget(3);

    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.driver.chooseFromMenu("Add");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(-1);
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Warning"));
    QCOMPARE(box.text, QString("Support 16 AOs at most."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &fixture.view());
    QCOMPARE(fixture.items().size(), 16);
    QCOMPARE(fixture.stack().count(), 16);
    QCOMPARE(fixture.stack().currentIndex(), 3);
    QCOMPARE(fixture.pageTitle(), QString("Core 3"));
    QVERIFY(!fixture.view().isModified());
    QCOMPARE(spy.size(), 0);
}

void TestStandardViewCores::addMarksTheDocumentOnce()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::menuOffersAddAndRemove()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.driver.dismissMenu();
    fixture.contextMenu(1);
    QCOMPARE(fixture.driver.menus().size(), 1);
    QCOMPARE(fixture.driver.menus().first().texts, QStringList({"Add", "Remove"}));
    QCOMPARE(fixture.driver.menus().first().enabledTexts, QStringList({"Add", "Remove"}));
}

void TestStandardViewCores::rightClickOnEmptySpaceOffersRemoveDisabledAndAddStillWorks()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    QCOMPARE(fixture.driver.menus().first().texts, QStringList({"Add", "Remove"}));
    QCOMPARE(fixture.driver.menus().first().enabledTexts, QStringList({"Add"}));
    QCOMPARE(fixture.items().size(), 2);
    // The action is enabled again where there is an item.
    fixture.driver.dismissMenu();
    fixture.contextMenu(0);
    QCOMPARE(fixture.driver.menus().last().enabledTexts, QStringList({"Add", "Remove"}));
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::dismissedMenuChangesNothing()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.standardView().changeAoWidget(2);
    fixture.driver.dismissMenu();
    fixture.contextMenu(1);
    QCOMPARE(fixture.items().size(), 3);
    QCOMPARE(fixture.stack().currentIndex(), 2);
    QVERIFY(!fixture.view().isModified());
}

void TestStandardViewCores::removeAsksFirst()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Cancel);
    fixture.contextMenu(2);
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Confirm"));
    QCOMPARE(box.text, QString("Do you want to remove AO 2 ?"));
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok | QMessageBox::Cancel));
    QCOMPARE(box.defaultButton, QMessageBox::Ok);
    QCOMPARE(box.escapeButton, QMessageBox::Cancel);
    QCOMPARE(box.parent, &fixture.view());
}

void TestStandardViewCores::refusedRemovalShowsTheFirstCore_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("cancel") << false;
    QTest::newRow("escape") << true;
}

void TestStandardViewCores::refusedRemovalShowsTheFirstCore()
{
    QFETCH(bool, escape);
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.standardView().changeAoWidget(2);
    fixture.driver.chooseFromMenu("Remove");
    if (escape)
        fixture.driver.escapeBox();
    else
        fixture.driver.answerBox(QMessageBox::Cancel);
    fixture.contextMenu(1);
    QCOMPARE(fixture.items().size(), 3);
    QVERIFY(!fixture.view().isModified());
    QCOMPARE(fixture.stack().currentIndex(), 0);
    QCOMPARE(fixture.currentItem(), QString("Core 0"));
    QCOMPARE(fixture.pageTitle(), QString("Core 0"));
}

void TestStandardViewCores::removingTheMiddleCoreRenumbers()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    QPointer<QWidget> last = &fixture.page(2);
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(1);
    QCOMPARE(fixture.items(), QStringList({"Core 0", "Core 1"}));
    QCOMPARE(fixture.stack().count(), 2);
    QCOMPARE(fixture.coreNumber(0), 0);
    QCOMPARE(fixture.coreNumber(1), 1);
    QCOMPARE(&fixture.page(1), last.data());
    QVERIFY(fixture.view().isModified());
    fixture.standardView().changeAoWidget(1);
    QCOMPARE(fixture.stack().currentWidget(), last.data());
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::removingTheShownCoreShowsTheFirst()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.standardView().changeAoWidget(2);
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(2);
    QCOMPARE(fixture.stack().currentIndex(), 0);
    QCOMPARE(fixture.currentItem(), QString("Core 0"));
    QCOMPARE(fixture.pageTitle(), QString("Core 0"));
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::removalDeletesThePage()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    const QPointer<QWidget> page = &fixture.page(0);
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(0);
    QVERIFY(!page);
    QCOMPARE(fixture.items(), QStringList{"Core 0"});
    fixture.standardView().setModified(false);
}

void TestStandardViewCores::withOneCoreRemoveRefusesBeforeAsking()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(0);
    QCOMPARE(fixture.driver.boxes().size(), 1);
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Warning"));
    QCOMPARE(box.text, QString("The only Ao can not be removed."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &fixture.view());
    QCOMPARE(fixture.items(), QStringList{"Core 0"});
    QVERIFY(!fixture.view().isModified());
}

void TestStandardViewCores::removedCoresAreGoneFromTheFile()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.editClock(2, "clk2");
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(0);
    QVERIFY(fixture.view().save());
    QCOMPARE(clocksInFile(fixture.path), QStringList({"clk", "clk2"}));
}

void TestStandardViewCores::addAfterRemovalTakesTheNextNumber()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(0);
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    QCOMPARE(fixture.items(), QStringList({"Core 0", "Core 1", "Core 2"}));
    QCOMPARE(fixture.coreNumber(2), 2);
    QCOMPARE(fixture.clockShown(2), QString());
    fixture.standardView().setModified(false);
}

static QStringList loggedLines;

static void keepDebugLine(QtMsgType type, const QMessageLogContext &, const QString &line)
{
    if (type == QtDebugMsg)
        loggedLines += line;
}

void TestStandardViewCores::addAndRemovalLogTheNumbers()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    loggedLines.clear();
    const QtMessageHandler usual = qInstallMessageHandler(keepDebugLine);
    fixture.driver.chooseFromMenu("Add");
    fixture.contextMenu(-1);
    const QStringList added = std::exchange(loggedLines, {});
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.contextMenu(0);
    qInstallMessageHandler(usual);
    QCOMPARE(added, QStringList({"0", "1", "2"}));
    QCOMPARE(loggedLines, QStringList({"before changed", "0", "1", "after changed", "0", "1"}));
    fixture.setModified(false);
}

void TestStandardViewCores::menuOpensAtTheMouse()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    QCursor::setPos(123, 45);
    fixture.driver.actOnMenu([](QMenu &menu) {
        QCOMPARE(menu.pos(), QPoint(123, 45));
        menu.close();
    });
    fixture.contextMenu(0);
    QCOMPARE(fixture.driver.menus().size(), 1);
}

void TestStandardViewCores::clickShowsTheCore()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(16));
    for (const int number : {15, 1, 0, 7}) {
        clickItem(fixture.tree(), fixture.tree().topLevelItem(number));
        QCOMPARE(fixture.stack().currentIndex(), number);
        QCOMPARE(fixture.pageTitle(), QString("Core %1").arg(number));
        QCOMPARE(fixture.currentItem(), QString("Core %1").arg(number));
    }
    QVERIFY(!fixture.view().isModified());
}

void TestStandardViewCores::doubleClickDoesNothingOfItsOwn()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.standardView().on_treeWidget_doubleClicked(fixture.tree().model()->index(2, 0));
    QCOMPARE(fixture.stack().currentIndex(), 0);
}

void TestStandardViewCores::clickIsIgnoredWhenNoItemLiesAtRowAndColumn()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    const QModelIndex second = fixture.tree().model()->index(1, 0);
    fixture.tree().topLevelItem(0)->setHidden(true);
    fixture.standardView().on_treeWidget_clicked(second);
    QCOMPARE(fixture.stack().currentIndex(), 1); // another item has moved up into the corner

    fixture.standardView().changeAoWidget(0);
    for (int row = 0; row < 3; ++row)
        fixture.tree().topLevelItem(row)->setHidden(true);
    fixture.standardView().on_treeWidget_clicked(second);
    QCOMPARE(fixture.stack().currentIndex(), 0);
}

void TestStandardViewCores::keysShowTheCore()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.container().activateWindow();
    fixture.tree().setFocus();
    QTRY_VERIFY(fixture.tree().hasFocus());
    QTest::keyClick(&fixture.tree(), Qt::Key_Down);
    QCOMPARE(fixture.stack().currentIndex(), 1);
    QCOMPARE(fixture.pageTitle(), QString("Core 1"));
    QTest::keyClick(&fixture.tree(), Qt::Key_End);
    QCOMPARE(fixture.stack().currentIndex(), 2);
    QTest::keyClick(&fixture.tree(), Qt::Key_Home);
    QCOMPARE(fixture.stack().currentIndex(), 0);
}

void TestStandardViewCores::unknownNumberShowsNothingNew()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.standardView().changeAoWidget(1);
    for (const int number : {-1, 2, 16}) {
        fixture.standardView().changeAoWidget(number);
        QCOMPARE(fixture.stack().currentIndex(), 1);
        QCOMPARE(fixture.currentItem(), QString("Core 1"));
        QCOMPARE(fixture.pageTitle(), QString("Core 1"));
    }
}

void TestStandardViewCores::addAoOptionWidgetAnswersTheNumberOfPages()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    const auto core = completeCore(5);
    auto *page = new AoOptionWidget(core.get(), nullptr, &fixture.view());
    QCOMPARE(fixture.standardView().addAoOptionWidget(page), 3);
    QCOMPARE(fixture.items(), QStringList({"Core 0", "Core 1", "Core 5"}));
    emit page->modifed();
    QVERIFY(fixture.view().isModified());
    fixture.standardView().setModified(false);
    delete page;
}

void TestStandardViewCores::removeAoOptionWidgetLeavesThePageAlive()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    const QPointer<AoOptionWidget> page = &fixture.standardPage(1);
    fixture.standardView().removeAoOptionWidget(page);
    QVERIFY(page);
    QCOMPARE(fixture.stack().count(), 2);
    QCOMPARE(fixture.stack().indexOf(page), -1);
    QCOMPARE(fixture.items(), QStringList({"Core 0", "Core 1"}));
    emit page->modifed();
    QVERIFY(!fixture.view().isModified());
    // It still is a page of the document: what it shows is saved.
    QVERIFY(fixture.view().save());
    QCOMPARE(clocksInFile(fixture.path).size(), 3);
}

void TestStandardViewCores::viewMayDieInTheMenu()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.driver.actOnMenu([&fixture](QMenu &) { fixture.kill(); });
    fixture.standardView().on_treeWidget_customContextMenuRequested(QPoint(5, 5));
    QVERIFY(!fixture.viewLives());
}

void TestStandardViewCores::viewMayDieInTheConfirmation()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.standardView().on_treeWidget_customContextMenuRequested(QPoint(5, 5));
    QVERIFY(!fixture.viewLives());
}

void TestStandardViewCores::viewMayDieInTheLimitBox()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(16));
    fixture.driver.chooseFromMenu("Add");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.standardView().on_treeWidget_customContextMenuRequested(QPoint(5, 5));
    QVERIFY(!fixture.viewLives());
}

QTEST_MAIN(TestStandardViewCores)
#include "tst_vakstandardinserterview_cores.moc"
