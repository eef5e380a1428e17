// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbenchtest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "hostlibs/idecore/viewarea.h"
#include "hostlibs/ovte/projectengine.h"
#include "workbench/codeeditor.h"
#include "workbench/mainwindow.h"
#include "workbench/textview.h"

#include <IdeCore/viewmanager.h>
#include <OVTE/designmanager.h>
#include <VakUtils/aocore.h>
#include <VakUtils/vakfile.h>

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

using support::child;
using support::DialogDriver;

class TestMainWindow : public WorkbenchTest
{
    Q_OBJECT

private slots:
    void emptyWindowTellsWhatToDo();
    void openedProjectIsShown();
    void wrongProjectIsReported();
    void recentFilesAreOffered();
    void textIsShownAndSaved();
    void saveFollowsTheActiveView();
    void saveFollowsAnalyzerAndTextInTurn();
    void closeActionClosesTheActiveView();
    void quitAsksEveryModifiedView();
    void oneCancelStopsQuitting();
    void unmodifiedWindowQuitsWithoutAQuestion();
    void anotherProjectAsksForModifiedViewsFirst();
    void fileListBecomesAProject();
    void fileListIsAddedToTheOpenProject();
    void fileListWithErrorsIsReported();
    void filesAreAdded();
    void checkBoxDisablesAFile();
    void typeIsChangedByTheMenu();
    void filesAreRemoved();
    void missingFileIsRed();
    void configurationChangesOptions();
    void configurationFindsModules();
    void configurationRefusesAWrongDefine();
    void cancelledConfigurationChangesNothing();
    void deviceIsChosen();
    void newProjectIsMadeAndOpened();
    void otherProgramsProjectIsNotOverwrittenUnasked();
    void changedFileListIsOfferedAsAProject();
    void projectIsSavedElsewhere();
    void newAnalyzerFileHasNoCores();
    void firstSizeShowsAllColumnsOfTheMatchUnits();
    void newLiteFileOpens();
    void analyzerFindsItsProject();
    void analyzerWithoutProjectAsksForIt();
    void sameAnalyzerOpensOnce();
    void closingTheParentClosesThatViewOnly();
    void messageLeadsToItsPlace();
    void pluginsAreListed();
    void menusHaveNoShortcutTwice();

private:
    Workbench::TextView *openText(const QString &name);
    QStringList projectFiles() const;
};

Workbench::TextView *TestMainWindow::openText(const QString &name)
{
    if (!window->open(path(name)))
        qFatal("%s did not open", qPrintable(name));
    return qobject_cast<Workbench::TextView *>(activeView());
}

QStringList TestMainWindow::projectFiles() const
{
    QStringList names;
    for (const TE::DesignFile &file : TE::ProjectEngine::instance()->project().files)
        names.append(QDir(dir->path()).relativeFilePath(file.path));
    return names;
}

void TestMainWindow::emptyWindowTellsWhatToDo()
{
    const auto &page = child<QWidget>(*window, "welcomePage");
    QVERIFY(page.isVisible());
    QStringList enabled;
    for (const QToolButton *button : page.findChildren<QToolButton *>()) {
        if (button->isEnabled())
            enabled.append(button->defaultAction()->objectName());
    }
    QCOMPARE(enabled, QStringList({"actionOpenProject", "actionNewProject", "actionImportList", "actionOpen"}));
    QVERIFY(!action("actionSave").isEnabled());
    QVERIFY(!action("actionClose").isEnabled());
    QVERIFY(tabs().isEmpty());
    QCOMPARE(window->windowTitle(), QString("RtlVakIns Workbench"));
}

void TestMainWindow::openedProjectIsShown()
{
    QVERIFY(window->open(path("blink.vakproj")));
    QCOMPARE(support::allTexts(projectTree()), QStringList({"Design", "  blink.v", "  divider.v"}));
    QCOMPARE(projectItem("blink.v")->text(1), QString("Verilog"));
    QCOMPARE(projectItem("blink.v")->checkState(0), Qt::Checked);
    QCOMPARE(child<QToolButton>(*window, "topModuleButton").text(), QString("Top: blink"));
    QVERIFY(child<QToolButton>(*window, "deviceButton").text().startsWith("KXB-M8: "));
    QCOMPARE(window->windowTitle(), QString("blink – RtlVakIns Workbench"));
    QVERIFY(action("actionNewStandard").isEnabled());
    QCOMPARE(messages(), QStringList{"Opened project " + path("blink.vakproj")});
    trigger("actionCloseProject");
    QVERIFY(support::allTexts(projectTree()).isEmpty());
    QVERIFY(!child<QToolButton>(*window, "topModuleButton").isVisible());
}

void TestMainWindow::wrongProjectIsReported()
{
    dir->write("bad.vakproj", "{\n\"vakproj\": 1,\n\"top\": 3}");
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!window->open(path("bad.vakproj")));
    QCOMPARE(driver.boxes().at(0).title, QString("Error"));
    QCOMPARE(driver.boxes().at(0).text, path("bad.vakproj") + ":3: \"top\" must be a text in quotes.");
    QCOMPARE(driver.boxes().at(0).textFormat, Qt::PlainText);
    QCOMPARE(messages(), QStringList{driver.boxes().at(0).text});
}

void TestMainWindow::recentFilesAreOffered()
{
    dir->write("other.vakproj", "{\"vakproj\": 1}");
    QVERIFY(window->open(path("blink.vakproj")));
    QVERIFY(window->open(path("other.vakproj")));
    auto &menu = child<QMenu>(*window, "recentMenu");
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().at(0)->text(), QString("other.vakproj"));
    QCOMPARE(menu.actions().at(1)->text(), QString("blink.vakproj"));
    menu.actions().at(1)->trigger();
    QCOMPARE(TE::ProjectEngine::instance()->projectFile(), path("blink.vakproj"));
    dir->remove("other.vakproj");
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().at(0)->text(), QString("blink.vakproj"));
    QVERIFY(!menu.actions().at(1)->isEnabled());
    QVERIFY(child<QLabel>(*window, "recentLinks").text().contains("blink.vakproj"));
    menu.actions().last()->trigger();
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().size(), 1);
    QVERIFY(!menu.actions().at(0)->isEnabled());
}

void TestMainWindow::textIsShownAndSaved()
{
    QVERIFY(window->open(path("blink.vakproj")));
    Workbench::TextView *view = openText("divider.v");
    QCOMPARE(tabs(), QStringList{"divider.v"});
    QVERIFY(!action("actionSave").isEnabled());
    view->editor()->insertPlainText("// new\n");
    QCOMPARE(tabs(), QStringList{"divider.v *"});
    trigger("actionSave");
    QVERIFY(dir->read("divider.v").startsWith("// new\nmodule divider"));
    QCOMPARE(tabs(), QStringList{"divider.v"});
    QVERIFY(!action("actionSave").isEnabled());
}

void TestMainWindow::saveFollowsTheActiveView()
{
    Workbench::TextView *first = openText("blink.v");
    first->editor()->insertPlainText("x");
    openText("divider.v");
    QCOMPARE(action("actionSave").text(), QString("&Save \"divider.v\""));
    QCOMPARE(action("actionSave").toolTip(), QString("Save \"divider.v\""));
    QVERIFY(!action("actionSave").isEnabled());
    trigger("actionPreviousTab");
    QCOMPARE(activeView(), first);
    QCOMPARE(action("actionSave").text(), QString("&Save \"blink.v *\""));
    QVERIFY(action("actionSave").isEnabled());
    trigger("actionNextTab");
    QVERIFY(!action("actionSave").isEnabled());
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    trigger("actionCloseAll");
    QCOMPARE(action("actionSave").text(), QString("&Save"));
}

void TestMainWindow::saveFollowsAnalyzerAndTextInTurn()
{
    QVERIFY(window->open(path("blink.vakproj")));
    QVERIFY(VAK::writeVAKConfigToXml({}, path("a.rvk")));
    QVERIFY(window->open(path("a.rvk")));
    QCOMPARE(tabs(), QStringList{"a.rvk *"});
    QCOMPARE(action("actionSave").text(), QString("&Save \"a.rvk *\""));
    QVERIFY(action("actionSave").isEnabled());
    QVERIFY(!action("actionFind").isEnabled());
    openText("blink.v");
    QCOMPARE(action("actionSave").text(), QString("&Save \"blink.v\""));
    QVERIFY(!action("actionSave").isEnabled());
    QVERIFY(action("actionFind").isEnabled());
    trigger("actionPreviousTab");
    QVERIFY(action("actionSave").isEnabled());
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    trigger("actionCloseAll");
    QVERIFY(tabs().isEmpty());
}

void TestMainWindow::closeActionClosesTheActiveView()
{
    openText("blink.v");
    openText("divider.v");
    trigger("actionClose");
    QCOMPARE(tabs(), QStringList{"blink.v"});
    trigger("actionClose");
    QVERIFY(tabs().isEmpty());
    QVERIFY(child<QWidget>(*window, "welcomePage").isVisible());
}

void TestMainWindow::quitAsksEveryModifiedView()
{
    const QByteArray before = dir->read("blink.v");
    openText("blink.v")->editor()->insertPlainText("x");
    openText("divider.v")->editor()->insertPlainText("y");
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    driver.answerBox(QMessageBox::Save);
    QVERIFY(window->close());
    QCOMPARE(driver.boxes().at(0).title, QString("Save"));
    QCOMPARE(driver.boxes().at(0).text, QString("Save changes to \"%1\" ?").arg(path("blink.v")));
    QCOMPARE(driver.boxes().at(1).text, QString("Save changes to \"%1\" ?").arg(path("divider.v")));
    QVERIFY(!window->isVisible());
    QCOMPARE(dir->read("blink.v"), before);
    QVERIFY(dir->read("divider.v").startsWith("ymodule"));
}

void TestMainWindow::oneCancelStopsQuitting()
{
    openText("blink.v")->editor()->insertPlainText("x");
    Workbench::TextView *second = openText("divider.v");
    second->editor()->insertPlainText("y");
    {
        DialogDriver driver;
        driver.answerBox(QMessageBox::Discard);
        driver.answerBox(QMessageBox::Cancel);
        trigger("actionQuit");
    }
    QVERIFY(window->isVisible());
    QCOMPARE(tabs(), QStringList({"blink.v *", "divider.v *"}));
    QCOMPARE(activeView(), second);
    QVERIFY(second->isVisible());
    trigger("actionPreviousTab");
    QVERIFY(activeView()->isVisible());
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    driver.answerBox(QMessageBox::Discard);
    trigger("actionQuit");
    QVERIFY(!window->isVisible());
}

void TestMainWindow::unmodifiedWindowQuitsWithoutAQuestion()
{
    openText("blink.v");
    DialogDriver driver;
    QVERIFY(window->close());
    QCOMPARE(driver.shownCount(), 0);
}

void TestMainWindow::anotherProjectAsksForModifiedViewsFirst()
{
    dir->write("other.vakproj", "{\"vakproj\": 1}");
    QVERIFY(window->open(path("blink.vakproj")));
    openText("blink.v")->editor()->insertPlainText("x");
    DialogDriver driver;
    driver.answerBox(QMessageBox::Cancel);
    QVERIFY(!window->open(path("other.vakproj")));
    QCOMPARE(TE::ProjectEngine::instance()->projectFile(), path("blink.vakproj"));
    driver.answerBox(QMessageBox::Discard);
    QVERIFY(window->open(path("other.vakproj")));
    QVERIFY(tabs().isEmpty());
}

void TestMainWindow::fileListBecomesAProject()
{
    dir->write("files.f", "blink.v divider.v // two\n--top blink\nnone.v");
    DialogDriver driver;
    driver.chooseFile(path("files.f"));
    driver.chooseFile(path("made.vakproj"));
    trigger("actionImportList");
    QCOMPARE(TE::ProjectEngine::instance()->projectFile(), path("made.vakproj"));
    QCOMPARE(projectFiles(), QStringList({"blink.v", "divider.v"}));
    QCoreApplication::processEvents();
    QVERIFY(dir->read("made.vakproj").contains("\"top\": \"blink\""));
    QVERIFY(messages().contains(
        path("files.f") + ":3: there is no file \"none.v\"; check the path, which starts at \"" + dir->path() + "\"."));
    QCOMPARE(messages().last(), "Added 2 file(s) from " + path("files.f"));
}

void TestMainWindow::fileListIsAddedToTheOpenProject()
{
    QVERIFY(window->open(path("blink.vakproj")));
    dir->write("more.sv", "module more; endmodule");
    dir->write("files.f", "divider.v more.sv");
    DialogDriver driver;
    driver.chooseFile(path("files.f"));
    trigger("actionImportList");
    QCOMPARE(projectFiles(), QStringList({"blink.v", "divider.v", "more.sv"}));
    QVERIFY(savedProject().contains("more.sv"));
}

void TestMainWindow::fileListWithErrorsIsReported()
{
    QVERIFY(window->open(path("blink.vakproj")));
    dir->write("files.f", "more.sv\n-f nothing.f");
    DialogDriver driver;
    driver.chooseFile(path("files.f"));
    driver.answerBox(QMessageBox::Ok);
    trigger("actionImportList");
    QVERIFY(driver.boxes().at(0).text.startsWith(path("files.f") + ":2: there is no file list \"nothing.f\""));
    QCOMPARE(projectFiles().size(), 2);
}

void TestMainWindow::filesAreAdded()
{
    QVERIFY(window->open(path("blink.vakproj")));
    dir->write("pins.pcf", "");
    DialogDriver driver;
    driver.chooseFile(path("pins.pcf"));
    trigger("actionAddFiles");
    driver.chooseFile(path("pins.pcf"));
    trigger("actionAddFiles");
    QCOMPARE(projectFiles(), QStringList({"blink.v", "divider.v", "pins.pcf"}));
    QCOMPARE(support::allTexts(projectTree()),
             QStringList({"Design", "  blink.v", "  divider.v", "Constraints", "  pins.pcf"}));
    QCOMPARE(messages().last(), path("pins.pcf") + " is in the project already");
    QVERIFY(savedProject().contains("{ \"path\": \"pins.pcf\", \"type\": \"physical\", \"enabled\": true"));
}

void TestMainWindow::checkBoxDisablesAFile()
{
    QVERIFY(window->open(path("blink.vakproj")));
    projectItem("divider.v")->setCheckState(0, Qt::Unchecked);
    QVERIFY(!TE::ProjectEngine::instance()->file(path("divider.v")).enabled);
    QVERIFY(savedProject().contains("{ \"path\": \"divider.v\", \"type\": \"verilog\", \"enabled\": false"));
    QCOMPARE(projectItem("divider.v")->foreground(0).color(), QColor(Qt::gray));
    projectItem("divider.v")->setCheckState(0, Qt::Checked);
    QVERIFY(TE::ProjectEngine::instance()->file(path("divider.v")).enabled);
}

void TestMainWindow::typeIsChangedByTheMenu()
{
    QVERIFY(window->open(path("blink.vakproj")));
    QTreeWidgetItem *item = projectItem("divider.v");
    item->setSelected(true);
    DialogDriver driver;
    driver.chooseFromMenu("Type");
    driver.chooseFromMenu("SystemVerilog");
    support::contextMenuOn(projectTree(), item);
    QCOMPARE(driver.menus().at(0).texts,
             QStringList({"Open", "Disable", "Type", "Remove from Project", "Add Files..."}));
    QCOMPARE(driver.menus().at(1).checkedTexts, QStringList{"Verilog"});
    QCOMPARE(TE::ProjectEngine::instance()->file(path("divider.v")).type, int(TE::SystemVerilogFile));
    QCOMPARE(projectItem("divider.v")->text(1), QString("SystemVerilog"));
}

void TestMainWindow::filesAreRemoved()
{
    QVERIFY(window->open(path("blink.vakproj")));
    QTreeWidgetItem *item = projectItem("divider.v");
    item->setSelected(true);
    DialogDriver driver;
    driver.chooseFromMenu("Remove from Project");
    support::contextMenuOn(projectTree(), item);
    QCOMPARE(projectFiles(), QStringList{"blink.v"});
    QVERIFY(!savedProject().contains("divider.v"));
    QVERIFY(!dir->read("divider.v").isEmpty());
}

void TestMainWindow::missingFileIsRed()
{
    dir->remove("divider.v");
    QVERIFY(window->open(path("blink.vakproj")));
    QCOMPARE(projectItem("divider.v")->foreground(0).color(), QColor(Qt::red));
    QVERIFY(projectItem("divider.v")->toolTip(0).endsWith("This file does not exist."));
    dir->write("divider.v", "module divider; endmodule");
    QTRY_VERIFY(projectItem("divider.v")->foreground(0).color() != QColor(Qt::red));
}

void TestMainWindow::configurationChangesOptions()
{
    QVERIFY(window->open(path("blink.vakproj")));
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        QCOMPARE(child<QComboBox>(dialog, "topModule").currentText(), QString("blink"));
        child<QComboBox>(dialog, "topModule").setEditText("divider");
        child<QPlainTextEdit>(dialog, "includePaths").setPlainText("inc\n\n rtl/inc ");
        child<QPlainTextEdit>(dialog, "defines").setPlainText("A=1\nB");
        auto &standard = child<QComboBox>(dialog, "verilogStandard");
        QCOMPARE(standard.currentText(), QString("SystemVerilog 2017 (IEEE 1800-2017)"));
        standard.setCurrentText("Verilog 2001 (IEEE 1364-2001)");
        QVERIFY(child<QLabel>(dialog, "problem").text().isEmpty());
        child<QComboBox>(dialog, "synthesisTool").setCurrentText("Synplify");
        QVERIFY(child<QLabel>(dialog, "problem").text().contains("can not be saved"));
        dialog.accept();
    });
    trigger("actionConfiguration");
    const TE::Project &project = TE::ProjectEngine::instance()->project();
    QCOMPARE(project.topModule, QString("divider"));
    QCOMPARE(project.includePaths, QStringList({"inc", "rtl/inc"}));
    QCOMPARE(project.defines, QStringList({"A=1", "B"}));
    QCOMPARE(project.verilogStandard, QString("1364-2001"));
    QCOMPARE(project.synthesisTool, QString("Synplify"));
    QCOMPARE(child<QToolButton>(*window, "topModuleButton").text(), QString("Top: divider"));
    QVERIFY(savedProject().contains("\"top\": \"divider\""));
}

void TestMainWindow::configurationFindsModules()
{
    QVERIFY(window->open(path("blink.vakproj")));
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        auto &top = child<QComboBox>(dialog, "topModule");
        top.setEditText("typo");
        support::clickButton(dialog, "findModules");
        QCOMPARE(support::modelTexts(*top.model()), QStringList({"blink", "divider"}));
        QCOMPARE(top.currentText(), QString("typo"));
        QCOMPARE(child<QLabel>(dialog, "foundModules").text(),
                 QString("2 module(s) found, those that can be the top first."));
        dialog.reject();
    });
    trigger("actionConfiguration");
}

void TestMainWindow::configurationRefusesAWrongDefine()
{
    QVERIFY(window->open(path("blink.vakproj")));
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        child<QPlainTextEdit>(dialog, "defines").setPlainText("GOOD=1\n2BAD");
        QCOMPARE(child<QLabel>(dialog, "problem").text(),
                 QString("The define \"2BAD\" is neither NAME nor NAME=VALUE."));
        QVERIFY(!dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
        child<QPlainTextEdit>(dialog, "defines").setPlainText("GOOD=1");
        QVERIFY(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
        dialog.reject();
    });
    trigger("actionConfiguration");
}

void TestMainWindow::cancelledConfigurationChangesNothing()
{
    QVERIFY(window->open(path("blink.vakproj")));
    const QByteArray before = savedProject();
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        child<QComboBox>(dialog, "topModule").setEditText("divider");
        dialog.reject();
    });
    trigger("actionConfiguration");
    QCOMPARE(TE::ProjectEngine::instance()->project().topModule, QString("blink"));
    QCOMPARE(savedProject(), before);
}

void TestMainWindow::deviceIsChosen()
{
    QVERIFY(window->open(path("blink.vakproj")));
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        auto &tree = child<QTreeWidget>(dialog, "deviceTree");
        QCOMPARE(tree.currentItem()->text(0), QString("KXB-M8"));
        child<QLineEdit>(dialog, "deviceFilter").setText("ice40");
        QTreeWidgetItem *wanted = nullptr;
        for (int i = 0; i < tree.topLevelItemCount(); ++i) {
            QTreeWidgetItem *item = tree.topLevelItem(i);
            const QString texts = item->text(0) + item->text(1);
            QCOMPARE(item->isHidden(), !texts.contains("ice40", Qt::CaseInsensitive));
            wanted = item->isHidden() ? wanted : item;
        }
        QVERIFY(wanted != nullptr);
        tree.setCurrentItem(wanted);
        dialog.accept();
    });
    trigger("actionDevice");
    const QString device = TE::ProjectEngine::instance()->project().device.name;
    QVERIFY(device != "KXB-M8");
    QVERIFY(child<QToolButton>(*window, "deviceButton").text().startsWith(device + ": "));
    QVERIFY(savedProject().contains(("\"device\": \"" + device + '"').toUtf8()));
}

void TestMainWindow::newProjectIsMadeAndOpened()
{
    DialogDriver driver;
    driver.chooseFile(path("sub/fresh.vakproj"));
    QDir().mkpath(path("sub"));
    trigger("actionNewProject");
    QCOMPARE(TE::ProjectEngine::instance()->projectFile(), path("sub/fresh.vakproj"));
    QVERIFY(projectFiles().isEmpty());
    QVERIFY(QFile::exists(path("sub/fresh.vakproj")));
}

void TestMainWindow::otherProgramsProjectIsNotOverwrittenUnasked()
{
    QVERIFY(window->open(path("blink.vakproj")));
    const QByteArray theirs = "{\"vakproj\": 1, \"top\": \"theirs\"}";
    dir->write("blink.vakproj", theirs);
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    TE::ProjectEngine::instance()->setFileEnabled("blink.v", false);
    QCOMPARE(savedProject(), theirs);
    QCOMPARE(driver.boxes().at(0).text,
             QString("Another program has changed \"%1\" since it was opened here.").arg(path("blink.vakproj")));
    QCOMPARE(TE::ProjectEngine::instance()->project().topModule, QString("theirs"));
    dir->write("blink.vakproj", "{\"vakproj\": 1}");
    driver.answerBox(QMessageBox::Save);
    TE::ProjectEngine::instance()->setOption(TE::OptionName::TopModule, "ours");
    QVERIFY(savedProject().contains("\"top\": \"ours\""));
}

void TestMainWindow::changedFileListIsOfferedAsAProject()
{
    dir->write("files.f", "blink.v divider.v");
    QVERIFY(window->open(path("files.f")));
    TE::ProjectEngine::instance()->setOption(TE::OptionName::TopModule, "blink");
    DialogDriver driver;
    driver.answerBox(QMessageBox::Cancel);
    QVERIFY(!window->close());
    driver.answerBox(QMessageBox::Save);
    driver.chooseFile(path("kept"));
    QVERIFY(window->close());
    QVERIFY(dir->read("kept.vakproj").contains("\"path\": \"divider.v\""));
}

void TestMainWindow::projectIsSavedElsewhere()
{
    QVERIFY(window->open(path("blink.vakproj")));
    QDir().mkpath(path("copy"));
    DialogDriver driver;
    driver.chooseFile(path("copy/second.vakproj"));
    trigger("actionSaveProjectAs");
    QCOMPARE(TE::ProjectEngine::instance()->projectFile(), path("copy/second.vakproj"));
    QVERIFY(window->windowTitle().startsWith("second "));
    QCOMPARE(support::allTexts(projectTree()), QStringList({"Design", "  ../blink.v", "  ../divider.v"}));
}

void TestMainWindow::newAnalyzerFileHasNoCores()
{
    QVERIFY(window->open(path("blink.vakproj")));
    DialogDriver driver;
    driver.chooseFile(path("watch"));
    trigger("actionNewStandard");
    QCOMPARE(tabs(), QStringList{"watch.rvk *"});
    bool ok = false;
    QVERIFY(VAK::readVAKConfigFromXml(path("watch.rvk"), &ok).isEmpty());
    QVERIFY(ok);
    QCOMPARE(TE::ProjectEngine::instance()->file("watch.rvk").type, int(TE::AnalyzerConfigFile));
    driver.answerBox(QMessageBox::Discard);
    trigger("actionClose");
}

void TestMainWindow::firstSizeShowsAllColumnsOfTheMatchUnits()
{
    QVERIFY(window->open(path("blink.vakproj")));
    VAK::AoCore core(0);
    QVERIFY(VAK::writeVAKConfigToXml({&core}, path("a.rvk")));
    QVERIFY(window->open(path("a.rvk")));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QCOMPARE(child<QTableView>(*activeView(), "tableMu").horizontalScrollBar()->maximum(), 0);
}

void TestMainWindow::newLiteFileOpens()
{
    QVERIFY(window->open(path("blink.vakproj")));
    DialogDriver driver;
    driver.chooseFile(path("watch.rvk"));
    trigger("actionNewLite");
    QCOMPARE(VAK::vakModeFromVakConfigFile(path("watch.rvk")), VAK::VakMode::Lite);
    QCOMPARE(tabs(), QStringList{"watch.rvk *"});
    driver.answerBox(QMessageBox::Discard);
    trigger("actionClose");
}

void TestMainWindow::analyzerFindsItsProject()
{
    QDir().mkpath(path("debug"));
    QVERIFY(VAK::writeVAKConfigToXml({}, path("debug/a.rvk")));
    QVERIFY(window->open(path("debug/a.rvk")));
    QCOMPARE(TE::ProjectEngine::instance()->projectFile(), path("blink.vakproj"));
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    trigger("actionClose");
}

void TestMainWindow::analyzerWithoutProjectAsksForIt()
{
    dir->write("second.vakproj", "{\"vakproj\": 1}");
    QVERIFY(VAK::writeVAKConfigToXml({}, path("a.rvk")));
    DialogDriver driver;
    driver.answerBox(QMessageBox::Cancel);
    QVERIFY(!window->open(path("a.rvk")));
    QCOMPARE(driver.boxes().at(0).text,
             QString("\"%1\" configures an analyzer for a design.\nOpen the project of that design first.")
                 .arg(path("a.rvk")));
    driver.answerBox(QMessageBox::Open);
    driver.chooseFile(path("blink.vakproj"));
    QVERIFY(window->open(path("a.rvk")));
    driver.answerBox(QMessageBox::Discard);
    trigger("actionClose");
}

void TestMainWindow::sameAnalyzerOpensOnce()
{
    QVERIFY(window->open(path("blink.vakproj")));
    QVERIFY(VAK::writeVAKConfigToXml({}, path("a.rvk")));
    QVERIFY(window->open(path("a.rvk")));
    openText("blink.v");
    QVERIFY(window->open(path("./debug/../a.rvk")));
    QCOMPARE(tabs(), QStringList({"a.rvk *", "blink.v"}));
    QCOMPARE(activeView()->windowTitle(), QString("a.rvk *"));
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    trigger("actionCloseAll");
}

void TestMainWindow::closingTheParentClosesThatViewOnly()
{
    openText("blink.v");
    QPointer<Core::IView> second = openText("divider.v");
    second->parentWidget()->setAttribute(Qt::WA_DeleteOnClose);
    second->parentWidget()->close();
    QCOMPARE(tabs(), QStringList{"blink.v"});
    QTRY_VERIFY(second.isNull());
    QVERIFY(activeView()->isVisible());
}

void TestMainWindow::messageLeadsToItsPlace()
{
    QVERIFY(window->open(path("blink.vakproj")));
    window->messages()->clear();
    window->messages()->addLines(
        {"ERROR: " + path("divider.v") + ":3: something", "WARNING: blink.v:2:7: other", "no place here"});
    auto &list = child<QListWidget>(*window, "messagesList");
    emit list.itemActivated(list.item(0));
    auto *view = qobject_cast<Workbench::TextView *>(activeView());
    QVERIFY(view != nullptr);
    QCOMPARE(view->file(), path("divider.v"));
    QCOMPARE(view->editor()->currentLine(), 3);
    emit list.itemActivated(list.item(1));
    view = qobject_cast<Workbench::TextView *>(activeView());
    QCOMPARE(view->file(), path("blink.v"));
    QCOMPARE(view->editor()->currentLine(), 2);
    emit list.itemActivated(list.item(2));
    QCOMPARE(tabs().size(), 2);
}

void TestMainWindow::pluginsAreListed()
{
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        auto &tree = child<QTreeWidget>(dialog, "pluginTree");
        QCOMPARE(tree.topLevelItemCount(), 1);
        QCOMPARE(tree.topLevelItem(0)->text(0), QString("VakInserterPlugin"));
        QCOMPARE(tree.topLevelItem(0)->text(1), QString("Running"));
        QCOMPARE(tree.topLevelItem(0)->text(2), QString("RTLVAK.VakInserterPlugin/1.0"));
        dialog.reject();
    });
    trigger("actionPlugins");
}

void TestMainWindow::menusHaveNoShortcutTwice()
{
    QStringList shortcuts;
    for (const QAction *one : window->findChildren<QAction *>()) {
        if (!one->shortcut().isEmpty() && one->shortcutContext() == Qt::WindowShortcut)
            shortcuts.append(one->shortcut().toString());
    }
    const int count = shortcuts.size();
    QVERIFY(count > 10);
    QCOMPARE(shortcuts.removeDuplicates(), 0);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
