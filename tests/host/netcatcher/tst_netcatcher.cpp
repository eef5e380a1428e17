// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/dialogdriver.h"
#include "support/fakelandlock.h"
#include "support/tempdir.h"

#include <netcatcher/netcatcher.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QtTest>

#include <memory>

using NETCATCHER::catchRtlModules;
using NETCATCHER::catchRtlNetsWithProgressDialog;

/// The calls that the editor makes, with their dialogs.
class TestNetcatcher : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void callsAreAnsweredByTheRealLibrary();
    void modulesAreAppended();
    void netlistIsBuiltFromTheSameEngineRun();
    void netlistCanBeBuiltAgain();
    void progressDialogIsShownByBothCalls();
    void progressTellsStageBytesAndTime();
    void progressDialogCannotBeClosed();
    void progressDialogMayLoseItsParent();
    void withoutModulesReadTheLibrarySaysSo();
    void severalTopsAreNamedInABox();
    void errorIsNamedInABox();

private:
    QMap<QString, QVariant> info(const QByteArray &source, const QString &top = {}) const;
    void installSlowEngine(const QByteArray &seconds = "0.4") const;

    std::unique_ptr<support::TempDir> dir;
    QByteArray path;
};

namespace {

/// Calls a function for every progress dialog that appears while this lives.
class ProgressWatcher : public QObject
{
public:
    explicit ProgressWatcher(std::function<void(QProgressDialog &)> function)
        : seen(std::move(function))
    {
        qApp->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            if (auto *dialog = qobject_cast<QProgressDialog *>(watched)) {
                ++count;
                if (seen)
                    seen(*dialog);
            }
        }
        return false;
    }

private:
    std::function<void(QProgressDialog &)> seen;
};

/// Notes what every progress dialog has shown while this lives, whenever its text is painted anew.
class ProgressRecorder : public QObject
{
public:
    ProgressRecorder() { qApp->installEventFilter(this); }

    QStringList texts;
    QStringList busyTexts; ///< those shown with a bar without a measure

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *label = event->type() == QEvent::Paint ? qobject_cast<QLabel *>(watched) : nullptr;
        auto *dialog = label ? qobject_cast<QProgressDialog *>(label->parent()) : nullptr;
        if (dialog && !texts.contains(label->text())) {
            texts.append(label->text());
            if (dialog->findChild<QProgressBar *>()->maximum() == 0)
                busyTexts.append(label->text());
        }
        return false;
    }
};

struct Lists
{
    QStringList tops;
    QStringList modules;
    QStringList messages;
};

} // namespace

static Lists catchModules(QMap<QString, QVariant> info, QWidget *parent = nullptr)
{
    Lists lists;
    catchRtlModules(lists.tops, lists.modules, lists.messages, info, parent);
    return lists;
}

static std::unique_ptr<NETCATCHER::RtlNetlist> catchNets(QWidget *parent = nullptr)
{
    NETCATCHER::RtlNetlist *netlist = nullptr;
    QStringList paths;
    catchRtlNetsWithProgressDialog(&netlist, paths, parent);
    return std::unique_ptr<NETCATCHER::RtlNetlist>(netlist);
}

void TestNetcatcher::init()
{
    dir = std::make_unique<support::TempDir>();
    path = qgetenv("PATH");
}

void TestNetcatcher::cleanup()
{
    qputenv("PATH", path);
}

QMap<QString, QVariant> TestNetcatcher::info(const QByteArray &source, const QString &top) const
{
    const QVariantMap file{{"Path", dir->write("design.v", source)}, {"Type", 2}, {"Library", ""}};
    return {{"Top", top}, {"Files", QVariantList{file}}};
}

/// Lets the real engine wait a little.
void TestNetcatcher::installSlowEngine(const QByteArray &seconds) const
{
    const QString program =
        dir->write("bin/verilator_bin", "#!/bin/sh\nsleep " + seconds + "\nexec /usr/bin/verilator_bin \"$@\"\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    qputenv("PATH", QFile::encodeName(dir->filePath("bin")) + ':' + path);
}

static const char simple[] = "module top(input clk, output q); leaf u(.clk(clk), .q(q)); endmodule\n"
                             "module leaf(input clk, output reg q); always @(posedge clk) q <= ~q; endmodule\n";
static const char twoTops[] = "module a(input x); endmodule\nmodule b(input x); endmodule\n";

void TestNetcatcher::callsAreAnsweredByTheRealLibrary()
{
    const Lists lists = catchModules(info(simple));
    QCOMPARE(lists.tops, QStringList("top"));
    const auto netlist = catchNets();
    QVERIFY(netlist);
    QCOMPARE(netlist->topHierarchy()->name(), QString("top"));
    QVERIFY(netlist->findNet("u/q"));
    QVERIFY(!netlist->jtagUsed());
}

void TestNetcatcher::modulesAreAppended()
{
    QStringList tops{"before"}, modules{"before"}, messages{"before"};
    QMap<QString, QVariant> sources = info(simple);
    catchRtlModules(tops, modules, messages, sources, nullptr);
    if (support::landlockVersion() == 0)
        QCOMPARE(messages.takeLast(), QString(QLatin1String(support::noLandlockWarning)));
    QCOMPARE(tops, QStringList({"before", "top"}));
    QCOMPARE(modules, QStringList({"before", "top", "leaf"}));
    QCOMPARE(messages, QStringList("before"));
}

void TestNetcatcher::netlistIsBuiltFromTheSameEngineRun()
{
    catchModules(info(simple));
    // What happens to sources and engine in between is the next read's business.
    dir->write("design.v", "module broken(");
    qputenv("PATH", QFile::encodeName(dir->path()));
    QVERIFY(catchNets());
}

void TestNetcatcher::netlistCanBeBuiltAgain()
{
    catchModules(info(simple));
    const auto first = catchNets();
    const auto second = catchNets();
    QVERIFY(first && second);
    QVERIFY(first.get() != second.get());
    QCOMPARE(second->findNet("u/q")->fullPathName(), QString("u/q"));
    QCOMPARE(first->findNet("u/clk")->fullPathName(), QString("u/clk"));
}

void TestNetcatcher::progressDialogIsShownByBothCalls()
{
    installSlowEngine();
    QStringList texts;
    bool isModal = true;
    bool hasBar = true;
    ProgressWatcher watcher([&](QProgressDialog &dialog) {
        texts.append(dialog.labelText());
        isModal = isModal && dialog.windowModality() == Qt::ApplicationModal;
        hasBar = hasBar && dialog.findChild<QProgressBar *>();
    });
    catchModules(info(simple));
    QCOMPARE(watcher.count, 1);
    catchNets();
    QCOMPARE(watcher.count, 2);
    QVERIFY2(texts.first().startsWith("Reading the source files"), qPrintable(texts.first()));
    QVERIFY2(texts.last().startsWith("Building the netlist"), qPrintable(texts.last()));
    for (const QString &text : texts)
        QVERIFY(text.contains("\nElapsed: "));
    QVERIFY(isModal && hasBar);
    for (const QWidget *window : QApplication::topLevelWidgets())
        QVERIFY(!qobject_cast<const QProgressDialog *>(window) || !window->isVisible());
}

void TestNetcatcher::progressTellsStageBytesAndTime()
{
    installSlowEngine("1.2");
    QByteArray source = "module a(input x);\n";
    for (int i = 0; i < 5000; ++i)
        source += "wire w" + QByteArray::number(i) + " = x;\n";
    const ProgressRecorder recorder;
    catchModules(info(source + "endmodule\n"));
    const auto shown = [&recorder](const QString &pattern) {
        return recorder.texts.filter(QRegularExpression("\\A" + pattern + "\\z")).size();
    };
    const QString size = "[0-9.,]+ (bytes|[KM]iB)";
    QVERIFY(shown("Reading the source files, 0 bytes of " + size + "\nElapsed: 0 s") == 1);
    QVERIFY(shown("Elaborating the design\nElapsed: 0 s") == 1);
    QVERIFY(shown("Elaborating the design\nElapsed: 1 s") == 1);
    QVERIFY(shown("Reading the elaborated design, " + size + " of " + size + "\nElapsed: [0-9]+ s") >= 1);
    QVERIFY(shown("Building the netlist\nElapsed: [0-9]+ s") >= 1);
    QCOMPARE(recorder.busyTexts,
             recorder.texts.filter(QRegularExpression("^(Elaborating the design|Building the netlist)\n")));
}

void TestNetcatcher::progressDialogCannotBeClosed()
{
    installSlowEngine();
    bool stays = false;
    ProgressWatcher watcher([&](QProgressDialog &dialog) {
        stays = true;
        dialog.close();
        stays = stays && dialog.isVisible();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        stays = stays && dialog.isVisible() && dialog.findChildren<QAbstractButton *>().isEmpty();
    });
    const Lists lists = catchModules(info(simple));
    QCOMPARE(watcher.count, 1);
    QVERIFY(stays);
    QCOMPARE(lists.tops, QStringList("top"));
}

void TestNetcatcher::progressDialogMayLoseItsParent()
{
    installSlowEngine();
    auto *parent = new QWidget;
    ProgressWatcher watcher([parent](QProgressDialog &) { parent->deleteLater(); });
    QPointer<QWidget> guard(parent);
    QTimer::singleShot(50, parent, [parent] { delete parent; });
    const Lists lists = catchModules(info(simple), parent);
    QVERIFY(!guard);
    QCOMPARE(lists.tops, QStringList("top"));
}

void TestNetcatcher::withoutModulesReadTheLibrarySaysSo()
{
    catchModules(info("// nothing\n"));
    support::DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!catchNets());
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.boxes().first().title, QString("Error"));
    QCOMPARE(driver.boxes().first().icon, QMessageBox::Critical);
    QCOMPARE(driver.boxes().first().text, QString("The design has no top module."));
}

void TestNetcatcher::severalTopsAreNamedInABox()
{
    const Lists lists = catchModules(info(twoTops));
    QCOMPARE(lists.tops, QStringList({"a", "b"}));
    support::DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!catchNets());
    QCOMPARE(driver.boxes().first().text, QString("The design has several top modules: a, b."));
}

void TestNetcatcher::errorIsNamedInABox()
{
    const Lists lists = catchModules(info("module a(input x);\nwire = ;\nendmodule\n"));
    QCOMPARE(lists.messages.filter(QRegExp("^ERROR")).size(), 1);
    support::DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!catchNets());
    QCOMPARE(driver.boxes().first().text, lists.messages.filter(QRegExp("^ERROR")).first());
}

QTEST_MAIN(TestNetcatcher)
#include "tst_netcatcher.moc"
