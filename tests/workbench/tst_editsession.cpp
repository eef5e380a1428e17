// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbenchtest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "signals/signaltreewidget.h"
#include "workbench/mainwindow.h"

#include <IdeCore/iview.h>
#include <VakUtils/aocore.h>
#include <VakUtils/vakfile.h>

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

using support::child;
using support::DialogDriver;

/// A person's work with the example, from opening its project to finding everything again: real window, real plug-in,
/// real netlist.
class TestEditSession : public WorkbenchTest
{
    Q_OBJECT

private slots:
    void editedConfigurationIsFoundAgain();
    void incompleteCoreIsNotSaved();

private:
    void openExample();
    void addCore();
    void removeCore(int row);
    void chooseClock(const QString &name);
    void addSignals(const QString &wildcard, const QStringList &expected);
    void group(const QStringList &names);
    void dragToTop(const QString &name);
    void showCapturePage();

    QString file() const { return path("soc/standard.rvk"); }
    QTreeWidget &coreTree() const { return child<QTreeWidget>(*activeView(), "treeWidget"); }
    /// The page of the core that is shown.
    QWidget &page() const { return *child<QStackedWidget>(*activeView(), "stackedWidget").currentWidget(); }
    RTLVAK::signalTreeWidget &signalTree() const
    {
        return child<RTLVAK::signalTreeWidget>(page(), "treeWidgetCapSigs");
    }
    QTreeWidgetItem *signalRow(const QString &name) const;
    QString clock() const { return child<QLineEdit>(page(), "editSampleClock").text(); }
};

static void copyFolder(const QString &from, const QString &to)
{
    QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(QFileInfo(target).absolutePath());
        QVERIFY2(QFile::copy(source, target), qPrintable(target));
        QFile::setPermissions(target, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
}

/// The text from the first `from` to the next `to` behind it.
static QByteArray part(const QByteArray &text, const QByteArray &from, const QByteArray &to)
{
    const int begin = text.indexOf(from);
    return text.mid(begin, text.indexOf(to, begin) - begin);
}

static QStringList rowNames(const RTLVAK::signalTreeWidget &tree)
{
    QStringList names;
    for (const VAK::SignalItem &item : tree.signalItems())
        names.append(item.name);
    return names;
}

void TestEditSession::openExample()
{
    copyFolder(EXAMPLE_FOLDER, path("soc"));
    QVERIFY(window->open(path("soc/soc.vakproj")));
    QVERIFY(window->open(file()));
    QCOMPARE(tabs(), QStringList{"standard.rvk"});
    QCOMPARE(support::topTexts(coreTree()), QStringList({"Core 0", "Core 1"}));
    QVERIFY(!action("actionSave").isEnabled());
}

void TestEditSession::addCore()
{
    DialogDriver driver;
    driver.chooseFromMenu("Add");
    support::contextMenuOn(coreTree(), nullptr);
}

void TestEditSession::removeCore(int row)
{
    DialogDriver driver;
    driver.chooseFromMenu("Remove");
    driver.answerBox(QMessageBox::Ok);
    support::contextMenuOn(coreTree(), coreTree().topLevelItem(row));
    QCOMPARE(driver.boxes().at(0).text, QString("Do you want to remove AO %1 ?").arg(row));
}

void TestEditSession::showCapturePage()
{
    auto *pages = qobject_cast<QTabWidget *>(&page());
    QVERIFY(pages != nullptr);
    pages->setCurrentIndex(1);
    QVERIFY(signalTree().isVisible());
}

/// Searches in the dialog as a person does: mode, name, Return.
static void search(const QDialog &dialog, const QString &wildcard)
{
    child<QRadioButton>(dialog, "radioButtonWildcard").click();
    auto &name = child<QLineEdit>(dialog, "lineEditName");
    QTest::keyClicks(&name, wildcard);
    QTest::keyClick(&name, Qt::Key_Return);
}

static void confirm(const QDialog &dialog)
{
    child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
}

void TestEditSession::chooseClock(const QString &name)
{
    DialogDriver driver;
    driver.answerDialog([&name](QDialog &dialog) {
        search(dialog, name);
        auto &results = child<QTreeWidget>(dialog, "treeWidget");
        QCOMPARE(support::topTexts(results), QStringList{name});
        support::clickItem(results, results.topLevelItem(0));
        support::clickButton(dialog, "btnAdd");
        confirm(dialog);
    });
    support::clickButton(page(), "btnSampleClock");
    QCOMPARE(clock(), name);
}

void TestEditSession::addSignals(const QString &wildcard, const QStringList &expected)
{
    DialogDriver driver;
    driver.answerDialog([&](QDialog &dialog) {
        search(dialog, wildcard);
        QCOMPARE(support::topTexts(child<QTreeWidget>(dialog, "treeWidget")), expected);
        support::clickButton(dialog, "btnAddAll");
        confirm(dialog);
    });
    support::clickButton(page(), "btnAdd");
    for (const QString &name : expected)
        QVERIFY2(rowNames(signalTree()).contains(name), qPrintable(name));
}

QTreeWidgetItem *TestEditSession::signalRow(const QString &name) const
{
    const int row = rowNames(signalTree()).indexOf(name);
    if (row < 0)
        qFatal("no row %s", qPrintable(name));
    return signalTree().topLevelItem(row);
}

void TestEditSession::group(const QStringList &names)
{
    RTLVAK::signalTreeWidget &tree = signalTree();
    support::clickItem(tree, signalRow(names.first()));
    for (const QString &name : names.mid(1))
        support::clickItem(tree, signalRow(name), 0, Qt::ControlModifier);
    DialogDriver driver;
    driver.chooseFromMenu("Group");
    const QPoint place = tree.visualItemRect(signalRow(names.first())).center();
    QTest::mouseClick(tree.viewport(), Qt::RightButton, Qt::NoModifier, place);
    // This menu opens by itself, once the click is done with.
    QTRY_VERIFY(!driver.menus().isEmpty());
}

/// A real drag. It runs an event loop of its own inside one of the moves, so each step is a timer shot of its own.
void TestEditSession::dragToTop(const QString &name)
{
    RTLVAK::signalTreeWidget &tree = signalTree();
    tree.scrollToItem(signalRow(name));
    QWindow *handle = window->windowHandle();
    const auto inWindow = [&](const QPoint &point) { return tree.viewport()->mapTo(window.get(), point); };
    const QPoint from = tree.visualItemRect(signalRow(name)).center();
    const QPoint to = tree.visualItemRect(tree.topLevelItem(0)).topLeft() + QPoint(30, 2);
    constexpr int steps = 8;
    constexpr int stepMs = 30;
    bool done = false;
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, inWindow(from));
    for (int step = 1; step <= steps; ++step) {
        const QPoint place = inWindow(from + (to - from) * step / steps + QPoint(step < steps ? 12 : 0, 0));
        QTimer::singleShot(step * stepMs, &tree, [handle, place] { QTest::mouseMove(handle, place); });
    }
    QTimer::singleShot((steps + 2) * stepMs, &tree, [&done, handle, place = inWindow(to)] {
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, place);
        done = true;
    });
    QTRY_VERIFY(done);
    QTRY_COMPARE(rowNames(tree).first(), name);
}

void TestEditSession::editedConfigurationIsFoundAgain()
{
    openExample();
    const QByteArray before = dir->read("soc/standard.rvk");

    addCore();
    QCOMPARE(support::topTexts(coreTree()), QStringList({"Core 0", "Core 1", "Core 2"}));
    QCOMPARE(tabs(), QStringList{"standard.rvk *"});
    removeCore(2);
    QCOMPARE(support::topTexts(coreTree()), QStringList({"Core 0", "Core 1"}));

    showCapturePage();
    chooseClock("clk_in");
    addSignals("u_uart/rx_[fe]*", {"u_uart/rx_full", "u_uart/rx_empty", "u_uart/rx_error"});
    group({"u_uart/rx_full", "u_uart/rx_empty"});
    QVERIFY(rowNames(signalTree()).contains("group_0[1:0]"));
    dragToTop("u_uart/rx_error");
    const QList<VAK::SignalItem> edited = signalTree().signalItems();

    // The view tells that it is modified before it changes its title, so the text is that of before.
    QCOMPARE(action("actionSave").text(), QString("&Save \"standard.rvk\""));
    trigger("actionSave");
    QCOMPARE(tabs(), QStringList{"standard.rvk"});
    QVERIFY(!action("actionSave").isEnabled());
    const QByteArray after = dir->read("soc/standard.rvk");
    QCOMPARE(part(after, "<trigger", "</trigger>"), part(before, "<trigger", "</trigger>"));
    QCOMPARE(part(after, "<core index=\"1\"", "</vak>"), part(before, "<core index=\"1\"", "</vak>"));
    QVERIFY(after.contains("<clock net=\"clk_in\" edge=\"rising\"/>"));

    trigger("actionClose");
    QVERIFY(tabs().isEmpty());
    QVERIFY(window->open(file()));
    QVERIFY(!action("actionSave").isEnabled());
    showCapturePage();
    QCOMPARE(clock(), QString("clk_in"));
    QCOMPARE(signalTree().signalItems(), edited);
    QCOMPARE(rowNames(signalTree()).first(), QString("u_uart/rx_error"));
    QCOMPARE(dir->read("soc/standard.rvk"), after);

    QProcess rtlvak;
    rtlvak.start(RTLVAK_BINARY, {"show", file()});
    QVERIFY(rtlvak.waitForFinished());
    const QByteArray shown = rtlvak.readAllStandardOutput();
    QCOMPARE(rtlvak.exitCode(), 0);
    QVERIFY2(shown.contains("Sample clock     clk_in, rising edge"), shown.constData());
    QVERIFY2(shown.contains("group_0[1:0]"), shown.constData());
}

void TestEditSession::incompleteCoreIsNotSaved()
{
    openExample();
    const QByteArray before = dir->read("soc/standard.rvk");
    addCore();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    trigger("actionSave");
    const support::BoxRecord box = driver.boxes().at(0);
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, QString("Your settings contain some errors.             "));
    QCOMPARE(box.detailedText, QString("Core 2: No available trigger ports\n"
                                       "Core 2: No available match units\n"
                                       "Core 2: No expressions specified\n"
                                       "Core 2: No sample clock specified\n"
                                       "Core 2: No capture signals specified"));
    QCOMPARE(dir->read("soc/standard.rvk"), before);
    QVERIFY(action("actionSave").isEnabled());
    QCOMPARE(tabs(), QStringList{"standard.rvk *"});
    driver.answerBox(QMessageBox::Discard);
    trigger("actionClose");
    QVERIFY(tabs().isEmpty());
    QCOMPARE(dir->read("soc/standard.rvk"), before);
}

QTEST_MAIN(TestEditSession)
#include "tst_editsession.moc"
