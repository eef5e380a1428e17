// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "scriptedview.h"

#include "fakes/fakedesign.h"
#include "fakes/fakeevents.h"
#include "fakes/fakenetcatcher.h"
#include "fakes/fakeviews.h"
#include "plugin/vakviewmanager.h"
#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "support/tempdir.h"
#include "support/widgethelpers.h"
#include "views/vakliteinserterview.h"
#include "views/vakstandardinserterview.h"

#include <Device/devicearg.h>
#include <ExtSys/iplugin.h>
#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/vakfile.h>

#include <QAction>
#include <QDir>
#include <QMetaMethod>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using RTLVAK::VakInserterView;
using RTLVAK::VakLiteInserterView;
using RTLVAK::VakStandardInserterView;
using RTLVAK::VakViewManager;
using support::DialogDriver;

extern "C" QObject *qt_plugin_instance();

class TestVakViewManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void saveActionIsRegisteredThenDisabled();
    void slotsInFixedOrderAndNothingElse();

    void openedViewIsRegisteredThenShown();
    void sameFileIsNotOpenedTwice_data();
    void sameFileIsNotOpenedTwice();
    void openingWithinAnOpeningMakesNoSecondView();
    void secondOpeningKeepsTheDevice();
    void pathsThatDifferInCaseAreDifferentFiles();
    void viewsAreListedInOrderOfOpening();
    void invalidFileIsRefused_data();
    void invalidFileIsRefused();
    void liteFileOpensInTheLiteView();
    void pathThatLooksLikeMarkupIsShownAsItIs();
    void boxesBelongToTheHostsDialogParent();
    void parentMayDieWhileItsBoxIsOpen();
    void failedOpenShowsTheViewsMessage();
    void failedOpenWithoutMessageShowsNothing();

    void closingAsksTheHostAndKeepsTheList();
    void closingComparesAbsolutePaths();
    void closingAnUnknownFileAnswersFalse();
    void closedViewLeavesTheList();

    void activeViewNamesTheSaveAction();
    void saveIsEnabledOnlyWhenModified();
    void modifiedFlagIsAskedAndNotBelieved();
    void otherKindOfViewDisablesSave();
    void noActiveViewDisablesSave();
    void modificationOfAnotherViewChangesNothing();
    void modificationWhileAnotherKindOfViewIsActiveKeepsSaveDisabled();
    void closingTheActiveViewDisablesSave();
    void closingAnotherViewKeepsSave();
    void closingAnotherKindOfViewDoesNothing();

    void saveSavesTheActiveView();
    void saveOfAnUnmodifiedViewDoesNothing();
    void failureToSaveIsIgnored();
    void saveTestsOnlyThatAViewIsKept();
    void saveWithoutAViewDoesNothing();

private:
    QString standardFile(const QString &name) const;
    VakStandardInserterView *opened(const QString &path) const;
    void forgetViews();

    std::unique_ptr<support::TempDir> dir;
};

static const char saveId[] = "Core.Action.Save";
static const char contextId[] = "RTLVAK.VakViewManager.Context";

static QAction &saveAction()
{
    return *fakes::registeredAction(saveId, contextId);
}

static QList<VakInserterView *> openViews()
{
    return VakViewManager::instance()->vakViews();
}

/// Opens `path` for `device`; every opening is logged.
static bool openView(const QString &path, const QString &device = {})
{
    QTest::ignoreMessage(QtDebugMsg, " This is open file to Ao");
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression("^create vakins inserter:  RTLVAK::VakStandardInserterView\\("));
    return VakViewManager::openInserterView(path, DEV::DeviceArg(device));
}

QString TestVakViewManager::standardFile(const QString &name) const
{
    VAK::AoCore core(0);
    const QString path = dir->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    if (!VAK::writeVAKConfigToXml({&core}, path))
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

VakStandardInserterView *TestVakViewManager::opened(const QString &path) const
{
    if (!openView(path))
        qFatal("cannot open %s", qPrintable(path));
    return static_cast<VakStandardInserterView *>(openViews().last());
}

/// What the host does with the views that are left.
void TestVakViewManager::forgetViews()
{
    for (VakInserterView *view : openViews()) {
        fakes::emitViewClosed(view);
        delete view;
    }
    fakes::emitViewActivated(nullptr);
}

void TestVakViewManager::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
    QVERIFY(qobject_cast<ExtSys::IPlugin *>(qt_plugin_instance())->initialize());
}

void TestVakViewManager::init()
{
    dir = std::make_unique<support::TempDir>();
    fakes::resetDesign();
    fakes::resetEvents();
    fakes::resetNetcatcher();
    fakes::Instance top("soc_top");
    top.net("clk").bus("data", 7, 0);
    fakes::setDesign(top);
    fakes::addSource(dir->filePath("soc.v"));
}

void TestVakViewManager::cleanup()
{
    forgetViews();
    QCOMPARE(fakes::subscriptionCount(), 0);
    QCOMPARE(fakes::liveNetlists(), 0);
    fakes::resetViews();
}

void TestVakViewManager::cleanupTestCase()
{
    ScriptedView last;
    fakes::emitViewActivated(&last);
    qobject_cast<ExtSys::IPlugin *>(qt_plugin_instance())->shutdown();
    fakes::emitViewActivated(&last); // nobody listens any more
    fakes::emitViewClosed(&last);
    delete qt_plugin_instance();
}

void TestVakViewManager::saveActionIsRegisteredThenDisabled()
{
    // The calls of initTestCase().
    const QList<fakes::ViewCall> calls = fakes::viewCalls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.at(0).kind, fakes::ViewCall::RegisterAction);
    QCOMPARE(calls.at(0).id, QString(saveId));
    QCOMPARE(calls.at(0).context, QString(contextId));
    QVERIFY(calls.at(0).actionEnabled);
    QCOMPARE(calls.at(0).action->parent(), VakViewManager::instance());
    QVERIFY(!saveAction().isEnabled());
}

void TestVakViewManager::slotsInFixedOrderAndNothingElse()
{
    const QMetaObject &metaObject = VakViewManager::staticMetaObject;
    const QStringList expected({"onCurrentViewChanged(Core::IView*)", "onInserterViewClosed(Core::IView*)",
                                "onInserterViewModified(bool)", "onActSave()"});
    QCOMPARE(support::ownMethods(metaObject), expected);
    QCOMPARE(support::ownSlots(metaObject), expected);
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index)
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Private);
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
}

void TestVakViewManager::openedViewIsRegisteredThenShown()
{
    const QString path = standardFile("a.rvk");
    QString deviceWhenShown;
    QList<VakInserterView *> listWhenShown;
    fakes::resetViews();
    fakes::onShowView([&](Core::IView *view) {
        deviceWhenShown = qobject_cast<VakInserterView *>(view)->device();
        listWhenShown = openViews();
    });
    QVERIFY(openView(path, "KX-20"));
    QCOMPARE(openViews().size(), 1);
    VakInserterView *view = openViews().at(0);
    QVERIFY(qobject_cast<VakStandardInserterView *>(view));
    QCOMPARE(view->parentWidget(), nullptr);
    QCOMPARE(view->file(), path);
    QCOMPARE(deviceWhenShown, QString("KX-20"));
    QCOMPARE(listWhenShown, openViews());

    const QList<fakes::ViewCall> calls = fakes::viewCalls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).kind, fakes::ViewCall::RegisterContext);
    QCOMPARE(calls.at(0).widget, view);
    QCOMPARE(calls.at(0).context, QString(contextId));
    QVERIFY(calls.at(0).enable);
    QCOMPARE(calls.at(1).kind, fakes::ViewCall::ShowView);
    QCOMPARE(calls.at(1).widget, view);
}

void TestVakViewManager::sameFileIsNotOpenedTwice_data()
{
    QTest::addColumn<QString>("again");
    QTest::newRow("the same path") << "%1/sub/a.rvk";
    QTest::newRow("through a parent folder") << "%1/sub/../sub/a.rvk";
    QTest::newRow("doubled separators") << "%1//sub///a.rvk";
    QTest::newRow("a folder named by a dot") << "%1/./sub/a.rvk";
    QTest::newRow("relative") << "sub/a.rvk";
    QTest::newRow("relative with a dot") << "./sub/a.rvk";
}

void TestVakViewManager::sameFileIsNotOpenedTwice()
{
    QFETCH(QString, again);
    VakInserterView *first = opened(standardFile("sub/a.rvk"));
    VakInserterView *second = opened(standardFile("b.rvk"));
    fakes::resetViews();
    const QString workingFolder = QDir::currentPath();
    QDir::setCurrent(dir->path());
    const bool shown =
        VakViewManager::openInserterView(again.contains("%1") ? again.arg(dir->path()) : again, DEV::DeviceArg());
    QDir::setCurrent(workingFolder);
    QVERIFY(shown);
    QCOMPARE(openViews(), QList<VakInserterView *>({first, second}));
    QCOMPARE(fakes::viewCalls().size(), 1);
    QCOMPARE(fakes::shownViews(), QList<Core::IView *>({first}));
}

void TestVakViewManager::openingWithinAnOpeningMakesNoSecondView()
{
    const QString path = standardFile("a.rvk");
    fakes::whileCatchingNets([&path] {
        fakes::whileCatchingNets({});
        QVERIFY(openView(path, "KX-20"));
    });
    fakes::resetViews();
    QVERIFY(VakViewManager::openInserterView(path, DEV::DeviceArg("KX-50")));
    QCOMPARE(openViews().size(), 1);
    QCOMPARE(openViews().at(0)->device(), QString("KX-20"));
    QCOMPARE(fakes::shownViews(), QList<Core::IView *>({openViews().at(0), openViews().at(0)}));
}

void TestVakViewManager::secondOpeningKeepsTheDevice()
{
    const QString path = standardFile("a.rvk");
    QVERIFY(openView(path, "KX-20"));
    QVERIFY(VakViewManager::openInserterView(path, DEV::DeviceArg("KX-60")));
    QCOMPARE(openViews().at(0)->device(), QString("KX-20"));
}

void TestVakViewManager::pathsThatDifferInCaseAreDifferentFiles()
{
    VakInserterView *lower = opened(standardFile("a.rvk"));
    VakInserterView *upper = opened(standardFile("A.rvk"));
    QVERIFY(lower != upper);
    QCOMPARE(openViews(), QList<VakInserterView *>({lower, upper}));
}

void TestVakViewManager::viewsAreListedInOrderOfOpening()
{
    const QStringList names({"c.rvk", "a.rvk", "b.rvk"});
    QStringList files;
    for (const QString &name : names)
        opened(standardFile(name));
    for (const VakInserterView *view : openViews())
        files.append(QFileInfo(view->file()).fileName());
    QCOMPARE(files, names);
}

void TestVakViewManager::invalidFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("module top; endmodule\n");
    QTest::newRow("other root") << QByteArray("<?xml version=\"1.0\"?>\n<other/>\n");
    QTest::newRow("other mode") << QByteArray("<?xml version=\"1.0\"?>\n<vak version=\"1\" mode=\"deluxe\"/>\n");
    QTest::newRow("missing") << QByteArray();
}

void TestVakViewManager::invalidFileIsRefused()
{
    QFETCH(QByteArray, contents);
    const QString path = dir->filePath("bad.rvk");
    if (!contents.isNull())
        dir->write("bad.rvk", contents);
    fakes::resetViews();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!VakViewManager::openInserterView(path, DEV::DeviceArg()));
    QVERIFY(driver.finish());
    QCOMPARE(driver.boxes().size(), 1);
    const support::BoxRecord box = driver.boxes().at(0);
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, "Can not open " + QDir::toNativeSeparators(path) + ":\nInvalid VAK file.");
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(openViews().isEmpty());
    QVERIFY(fakes::viewCalls().isEmpty());
}

void TestVakViewManager::liteFileOpensInTheLiteView()
{
    VAK::AOCore_Lite core(0);
    const QString path = dir->filePath("lite.rvk");
    QVERIFY(VAK::writeVAKConfigToXml_Lite({&core}, path));
    QVERIFY(VakViewManager::openInserterView(path, DEV::DeviceArg()));
    QCOMPARE(openViews().size(), 1);
    QVERIFY(qobject_cast<VakLiteInserterView *>(openViews().first()));
    QCOMPARE(openViews().first()->file(), path);
}

void TestVakViewManager::pathThatLooksLikeMarkupIsShownAsItIs()
{
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!VakViewManager::openInserterView("/nowhere/<b>x<b>.rvk", DEV::DeviceArg()));
    QCOMPARE(driver.boxes().at(0).text, QString("Can not open /nowhere/<b>x<b>.rvk:\nInvalid VAK file."));
    QCOMPARE(driver.boxes().at(0).textFormat, Qt::PlainText);
}

void TestVakViewManager::boxesBelongToTheHostsDialogParent()
{
    QWidget window;
    fakes::setDialogParent(&window);
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!VakViewManager::openInserterView("/nowhere/a.rvk", DEV::DeviceArg()));
    QCOMPARE(driver.boxes().at(0).parent, &window);
    QVERIFY(window.findChildren<QMessageBox *>().isEmpty());
}

void TestVakViewManager::parentMayDieWhileItsBoxIsOpen()
{
    auto *window = new QWidget;
    fakes::setDialogParent(window);
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok, [window](QMessageBox &) { delete window; });
    QVERIFY(!VakViewManager::openInserterView("/nowhere/a.rvk", DEV::DeviceArg()));
    QCOMPARE(driver.boxes().size(), 1);
}

void TestVakViewManager::failedOpenShowsTheViewsMessage()
{
    const QString path =
        dir->write("broken.rvk", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<vak version=\"1\" mode=\"standard\">\n");
    fakes::resetViews();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QTest::ignoreMessage(QtDebugMsg, " This is open file to Ao");
    QVERIFY(!VakViewManager::openInserterView(path, DEV::DeviceArg()));
    QVERIFY(driver.finish());
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.boxes().at(0).icon, QMessageBox::Critical);
    QCOMPARE(driver.boxes().at(0).title, QString("Error"));
    QCOMPARE(driver.boxes().at(0).text, path + " open file failed.");
    QCOMPARE(driver.boxes().at(0).textFormat, Qt::PlainText);
    QCOMPARE(driver.boxes().at(0).buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(openViews().isEmpty());
    QVERIFY(fakes::viewCalls().isEmpty());
    QCOMPARE(fakes::busCalls().size(), 12); // the view subscribed, and unsubscribed when it was deleted
    QCOMPARE(fakes::subscriptionCount(), 0);
}

void TestVakViewManager::failedOpenWithoutMessageShowsNothing()
{
    const QString path = standardFile("a.rvk");
    fakes::deliverNull(); // the library has told the user
    fakes::resetViews();
    DialogDriver driver;
    QTest::ignoreMessage(QtDebugMsg, " This is open file to Ao");
    QVERIFY(!VakViewManager::openInserterView(path, DEV::DeviceArg()));
    QVERIFY(driver.finish());
    QCOMPARE(driver.shownCount(), 0);
    QCOMPARE(fakes::netsCalls().size(), 1);
    QVERIFY(openViews().isEmpty());
    QVERIFY(fakes::viewCalls().isEmpty());
    QCOMPARE(fakes::subscriptionCount(), 0);
}

void TestVakViewManager::closingAsksTheHostAndKeepsTheList()
{
    const QString path = standardFile("a.rvk");
    VakInserterView *view = opened(path);
    for (const bool answer : {true, false}) {
        fakes::resetViews();
        fakes::setCloseAnswer(answer);
        QVERIFY(VakViewManager::closeInserterView(path));
        QCOMPARE(fakes::closedViews(), QList<Core::IView *>({view}));
        QCOMPARE(openViews(), QList<VakInserterView *>({view}));
    }
}

void TestVakViewManager::closingComparesAbsolutePaths()
{
    VakInserterView *view = opened(standardFile("sub/a.rvk"));
    QVERIFY(VakViewManager::closeInserterView(dir->path() + "/sub/../sub/a.rvk"));
    QCOMPARE(fakes::closedViews(), QList<Core::IView *>({view}));
    QVERIFY(!VakViewManager::closeInserterView(dir->path() + "/sub/A.rvk"));
}

void TestVakViewManager::closingAnUnknownFileAnswersFalse()
{
    opened(standardFile("a.rvk"));
    fakes::resetViews();
    QVERIFY(!VakViewManager::closeInserterView(dir->filePath("b.rvk")));
    QVERIFY(fakes::viewCalls().isEmpty());
}

void TestVakViewManager::closedViewLeavesTheList()
{
    const QString path = standardFile("a.rvk");
    const std::unique_ptr<VakInserterView> first(opened(path));
    VakInserterView *second = opened(standardFile("b.rvk"));
    fakes::emitViewClosed(first.get());
    QCOMPARE(openViews(), QList<VakInserterView *>({second}));
    QVERIFY(!VakViewManager::closeInserterView(path));
}

void TestVakViewManager::activeViewNamesTheSaveAction()
{
    VakStandardInserterView *view = opened(standardFile("a.rvk"));
    fakes::emitViewActivated(view);
    QCOMPARE(saveAction().text(), QString("&Save \"a.rvk\""));
    QCOMPARE(saveAction().toolTip(), QString("Save \"a.rvk\""));
    view->setWindowTitle("R&D %1.rvk *");
    fakes::emitViewActivated(view);
    QCOMPARE(saveAction().text(), QString("&Save \"R&D %1.rvk *\""));
    QCOMPARE(saveAction().toolTip(), QString("Save \"R&D %1.rvk *\""));
}

void TestVakViewManager::saveIsEnabledOnlyWhenModified()
{
    VakStandardInserterView *view = opened(standardFile("a.rvk"));
    fakes::emitViewActivated(view);
    QVERIFY(!saveAction().isEnabled());
    view->setModified(true);
    QVERIFY(saveAction().isEnabled());
    view->setModified(false);
    QVERIFY(!saveAction().isEnabled());
}

void TestVakViewManager::modifiedFlagIsAskedAndNotBelieved()
{
    VakStandardInserterView *view = opened(standardFile("a.rvk"));
    fakes::emitViewActivated(view);
    emit view->modificationStatusChanged(true);
    QVERIFY(!saveAction().isEnabled());
    view->setModified(true);
    emit view->modificationStatusChanged(false);
    QVERIFY(saveAction().isEnabled());
}

void TestVakViewManager::otherKindOfViewDisablesSave()
{
    VakStandardInserterView *view = opened(standardFile("a.rvk"));
    view->setModified(true);
    fakes::emitViewActivated(view);
    QVERIFY(saveAction().isEnabled());
    Core::IView other;
    fakes::emitViewActivated(&other);
    QVERIFY(!saveAction().isEnabled());
    fakes::emitViewActivated(view);
    QVERIFY(saveAction().isEnabled());
    fakes::emitViewActivated(&other);
    view->setModified(false);
    fakes::emitViewActivated(view);
    QVERIFY(!saveAction().isEnabled());
}

void TestVakViewManager::noActiveViewDisablesSave()
{
    VakStandardInserterView *view = opened(standardFile("a.rvk"));
    view->setModified(true);
    fakes::emitViewActivated(view);
    fakes::emitViewActivated(nullptr);
    QVERIFY(!saveAction().isEnabled());
}

void TestVakViewManager::modificationOfAnotherViewChangesNothing()
{
    VakStandardInserterView *active = opened(standardFile("a.rvk"));
    VakStandardInserterView *other = opened(standardFile("b.rvk"));
    fakes::emitViewActivated(active);
    active->setWindowTitle("renamed");
    other->setModified(true);
    QVERIFY(!saveAction().isEnabled());
    QCOMPARE(saveAction().text(), QString("&Save \"a.rvk\"")); // not even refreshed
    active->setModified(true);
    QCOMPARE(saveAction().text(), QString("&Save \"renamed\""));
    other->setModified(false);
    QVERIFY(saveAction().isEnabled());
}

void TestVakViewManager::modificationWhileAnotherKindOfViewIsActiveKeepsSaveDisabled()
{
    VakStandardInserterView *view = opened(standardFile("a.rvk"));
    fakes::emitViewActivated(view);
    Core::IView other;
    fakes::emitViewActivated(&other);
    view->setModified(true);
    QVERIFY(!saveAction().isEnabled());
}

void TestVakViewManager::closingTheActiveViewDisablesSave()
{
    const std::unique_ptr<VakStandardInserterView> view(opened(standardFile("a.rvk")));
    view->setModified(true);
    fakes::emitViewActivated(view.get());
    QVERIFY(saveAction().isEnabled());
    fakes::emitViewClosed(view.get());
    QVERIFY(!saveAction().isEnabled());
    view->setModified(true);
    QVERIFY(!saveAction().isEnabled());
}

void TestVakViewManager::closingAnotherViewKeepsSave()
{
    VakStandardInserterView *active = opened(standardFile("a.rvk"));
    const std::unique_ptr<VakStandardInserterView> other(opened(standardFile("b.rvk")));
    active->setModified(true);
    fakes::emitViewActivated(active);
    active->setWindowTitle("renamed");
    fakes::emitViewClosed(other.get());
    QVERIFY(saveAction().isEnabled());
    QCOMPARE(saveAction().text(), QString("&Save \"renamed\"")); // refreshed
}

void TestVakViewManager::closingAnotherKindOfViewDoesNothing()
{
    VakStandardInserterView *active = opened(standardFile("a.rvk"));
    fakes::emitViewActivated(active);
    active->setWindowTitle("renamed");
    Core::IView other;
    fakes::emitViewClosed(&other);
    QCOMPARE(saveAction().text(), QString("&Save \"a.rvk\""));
    QCOMPARE(openViews(), QList<VakInserterView *>({active}));
}

void TestVakViewManager::saveSavesTheActiveView()
{
    ScriptedView first;
    ScriptedView second;
    first.modified = second.modified = true;
    fakes::emitViewActivated(&first);
    fakes::emitViewActivated(&second);
    saveAction().trigger();
    QCOMPARE(first.saves, 0);
    QCOMPARE(second.saves, 1);
    fakes::emitViewClosed(&second);
}

void TestVakViewManager::saveOfAnUnmodifiedViewDoesNothing()
{
    ScriptedView view;
    fakes::emitViewActivated(&view);
    saveAction().setEnabled(true);
    saveAction().trigger();
    QCOMPARE(view.saves, 0);
    fakes::emitViewClosed(&view);
}

void TestVakViewManager::failureToSaveIsIgnored()
{
    ScriptedView view;
    view.modified = true;
    view.saveResult = false;
    fakes::emitViewActivated(&view);
    DialogDriver driver;
    saveAction().trigger();
    QCOMPARE(view.saves, 1);
    QCOMPARE(driver.shownCount(), 0);
    QVERIFY(saveAction().isEnabled());
    fakes::emitViewClosed(&view);
}

void TestVakViewManager::saveTestsOnlyThatAViewIsKept()
{
    ScriptedView view;
    view.modified = true;
    fakes::emitViewActivated(&view);
    Core::IView other;
    fakes::emitViewActivated(&other);
    saveAction().setEnabled(true);
    saveAction().trigger();
    QCOMPARE(view.saves, 1);
    fakes::emitViewClosed(&view);
}

void TestVakViewManager::saveWithoutAViewDoesNothing()
{
    ScriptedView view;
    view.modified = true;
    fakes::emitViewActivated(&view);
    fakes::emitViewClosed(&view);
    saveAction().setEnabled(true);
    saveAction().trigger();
    QCOMPARE(view.saves, 0);
}

QTEST_MAIN(TestVakViewManager)

#include "tst_vakviewmanager.moc"
