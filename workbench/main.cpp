// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/appearance.h"
#include "workbench/mainwindow.h"
#include "workbench/pluginhost.h"
#include "workbench/unattended.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <iostream>

namespace {

/// How long a picture waits for what is laid out and painted later.
constexpr int PictureDelayMs = 200;
constexpr double LargestShareOfScreen = 0.95;

struct Arguments
{
    QStringList files; ///< the project comes first
    QString picture;
};

} // namespace

static Arguments parseArguments(const QApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Configures embedded logic analyzers for FPGA designs.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("project", "A project (.vakproj) or a Verilog file list (.f).", "[PROJECT]");
    parser.addPositionalArgument("config", "Analyzer configurations (.rvk) or sources.", "[CONFIG...]");
    const QCommandLineOption picture("screenshot", "Save a picture of the window and end.", "FILE");
    parser.addOption(picture);
    parser.process(application);
    Arguments arguments;
    arguments.files = parser.positionalArguments();
    const auto isProject = [](const QString &path) { return path.endsWith(".vakproj") || path.endsWith(".f"); };
    std::stable_partition(arguments.files.begin(), arguments.files.end(), isProject);
    arguments.picture = parser.value(picture);
    return arguments;
}

static bool openAll(Workbench::MainWindow &window, const QStringList &files)
{
    bool ok = true;
    for (const QString &file : files)
        ok = window.open(file) && ok;
    return ok;
}

static int takePicture(Workbench::MainWindow &window, const Arguments &arguments)
{
    // Nobody's list of recent files changes by a picture.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    const Workbench::Unattended unattended;
    window.show();
    bool ok = openAll(window, arguments.files);
    QEventLoop loop;
    QTimer::singleShot(PictureDelayMs, &loop, &QEventLoop::quit);
    loop.exec();
    if (!window.grab().save(arguments.picture)) {
        std::cerr << "Can not save the picture to " << arguments.picture.toStdString() << '\n';
        ok = false;
    }
    return ok ? 0 : 1;
}

int main(int argc, char *argv[])
{
    Workbench::prepareHighDpi();
    QApplication application(argc, argv);
    QApplication::setApplicationName("rtlvak-workbench");
    QApplication::setApplicationVersion(WORKBENCH_VERSION);
    QApplication::setOrganizationName("RtlVakIns");
    Workbench::applyAppearance(application);
    const Arguments arguments = parseArguments(application);

    Workbench::PluginHost plugins;
    plugins.load(QApplication::applicationDirPath() + "/../plugins");
    Workbench::MainWindow window(plugins);
    if (!arguments.picture.isEmpty())
        return takePicture(window, arguments);
    window.resize(window.size().boundedTo(window.screen()->availableSize() * LargestShareOfScreen));
    window.show();
    openAll(window, arguments.files);
    return QApplication::exec();
}
