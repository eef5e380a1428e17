// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Renders the pictures of a core's page, of the dialogs of its trigger and of the search from the example into a
// folder: render_pictures EXAMPLE_FOLDER TARGET_FOLDER

#include "capture/aooptionwidget.h"
#include "hostlibs/ovte/projectengine.h"
#include "signals/vaksignalselectdialog.h"
#include "trigger/muexpressiondialog.h"
#include "trigger/triggerportdialog.h"
#include "trigger/triggersingalselectdialog.h"
#include "workbench/appearance.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>
#include <VakUtils/aocore.h>
#include <VakUtils/matchunitdialog.h>
#include <VakUtils/vakfile.h>
#include <netcatcher/netcatcher.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include <memory>

static void render(QWidget &widget, const QDir &folder, const char *name)
{
    widget.show();
    QCoreApplication::processEvents();
    if (!widget.grab().save(folder.filePath(QLatin1String(name))))
        qFatal("cannot write %s", name);
}

static void renderPage(VAK::AoCore &core, const QDir &folder)
{
    RTLVAK::AoOptionWidget page(&core, nullptr);
    page.resize(820, 520);
    auto *ports = page.findChild<QTreeWidget *>(QStringLiteral("treeTrigger"));
    for (int port : {1, 2})
        ports->topLevelItem(port)->setExpanded(true);
    render(page, folder, "trigger.png");
    page.setCurrentIndex(1);
    render(page, folder, "capture.png");
}

static void renderDialogs(VAK::AoCore &core, const QDir &folder)
{
    RTLVAK::TriggerPortDialog port(core.getTrigger(1), nullptr);
    render(port, folder, "trigger-port.png");
    RTLVAK::TriggerSingalSelectDialog picker(core.availableTriggers());
    picker.findChild<QCheckBox *>()->setChecked(true);
    render(picker, folder, "add-from-trigger.png");
    VAK::MatchUnitDialog unit(core.matchUnit(0), false);
    render(unit, folder, "match-unit.png");
    RTLVAK::MuExpressionDialog expression;
    expression.show();
    for (const char *button :
         {"btnM0", "btnAND", "btnLeftBracket", "btnM1", "btnOR", "btnNOT", "btnM2", "btnRightBracket"})
        expression.findChild<QPushButton *>(QLatin1String(button))->click();
    render(expression, folder, "expression.png");
}

static std::unique_ptr<NETCATCHER::RtlNetlist> netlistOfProject()
{
    QMap<QString, QVariant> info = TE::TaskEngine::instance()->designManager()->getSourceFileInfo();
    QStringList tops, modules, messages, paths;
    NETCATCHER::catchRtlModules(tops, modules, messages, info, nullptr);
    NETCATCHER::RtlNetlist *netlist = nullptr;
    NETCATCHER::catchRtlNetsWithProgressDialog(&netlist, paths, nullptr);
    return std::unique_ptr<NETCATCHER::RtlNetlist>(netlist);
}

static void renderSearch(const QDir &folder)
{
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist = netlistOfProject();
    RTLVAK::VakSignalSelectDialog dialog(netlist.get());
    dialog.show();
    dialog.resize(640, 520);
    dialog.findChild<QRadioButton *>(QStringLiteral("radioButtonWildcard"))->click();
    dialog.findChild<QLineEdit *>(QStringLiteral("lineEditName"))->setText(QStringLiteral("u_uart/*"));
    dialog.findChild<QPushButton *>(QStringLiteral("pushButtonSearch"))->click();
    auto *results = dialog.findChild<QTreeWidget *>(QStringLiteral("treeWidget"));
    for (int row : {1, 3, 4})
        results->topLevelItem(row)->setSelected(true);
    dialog.findChild<QAbstractButton *>(QStringLiteral("btnAdd"))->click();
    render(dialog, folder, "search.png");
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Workbench::applyAppearance(application);
    if (argc != 3)
        qFatal("usage: render_pictures EXAMPLE_FOLDER TARGET_FOLDER");
    const QDir example(QString::fromLocal8Bit(argv[1]));
    QString error;
    if (!TE::ProjectEngine::instance()->openProject(example.absoluteFilePath(QStringLiteral("soc.vakproj")), &error))
        qFatal("%s", qPrintable(error));
    bool ok = false;
    const auto cores = VAK::readVAKConfigFromXml(example.absoluteFilePath(QStringLiteral("standard.rvk")), &ok, &error);
    if (!ok || cores.size() < 2)
        qFatal("%s", qPrintable(error));
    renderPage(*cores.at(1), QDir(QString::fromLocal8Bit(argv[2])));
    renderDialogs(*cores.at(1), QDir(QString::fromLocal8Bit(argv[2])));
    renderSearch(QDir(QString::fromLocal8Bit(argv[2])));
    qDeleteAll(cores);
    return 0;
}
