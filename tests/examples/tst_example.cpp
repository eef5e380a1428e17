// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/netlistbuilder.h"
#include "hostlibs/ovte/projectengine.h"
#include "hostlibs/ovte/projectfile.h"
#include "rules/corevalidation.h"

#include <OVTE/designmanager.h>
#include <OVTE/designtypes.h>
#include <OVTE/taskengine.h>
#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/triggerport.h>
#include <VakUtils/vakfile.h>
#include <netcatcher/rtlnetlist.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The example that comes with the program: what the README and the guide promise about it.
class TestExample : public QObject
{
    Q_OBJECT

private slots:
    void projectIsInTheFormThatSavingGives();
    void everyFileOfTheFolderIsInTheProject();
    void onlyWhatIsForSimulationIsDisabled();
    void standardFileIsInTheFormThatSavingGives();
    void liteFileIsInTheFormThatSavingGives();
    void standardFilePassesTheValidationAgainstTheDesign();
    void everySignalNamesANetOfTheDesign();

private:
    static TE::Project project();

    const QDir folder{VAK_EXAMPLES "/soc"};
};

static QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TE::Project TestExample::project()
{
    TE::Project project;
    QString error;
    if (!TE::readProjectFile(VAK_EXAMPLES "/soc/soc.vakproj", &project, &error))
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return project;
}

void TestExample::projectIsInTheFormThatSavingGives()
{
    const QByteArray saved = TE::projectFileContents(project(), folder.path());
    QVERIFY(!saved.isEmpty());
    QCOMPARE(saved, bytesOf(folder.filePath("soc.vakproj")));
}

static void collectFiles(const QDir &folder, QStringList *paths)
{
    for (const QFileInfo &entry : folder.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (entry.isDir())
            collectFiles(entry.filePath(), paths);
        else if (entry.suffix() != "vakproj" && entry.suffix() != "md")
            paths->append(QDir::cleanPath(entry.absoluteFilePath()));
    }
}

void TestExample::everyFileOfTheFolderIsInTheProject()
{
    QStringList there;
    collectFiles(folder, &there);
    QStringList listed;
    for (const TE::DesignFile &file : project().files)
        listed.append(file.path);
    there.sort();
    listed.sort();
    QCOMPARE(listed, there);
}

void TestExample::onlyWhatIsForSimulationIsDisabled()
{
    for (const TE::DesignFile &file : project().files)
        QCOMPARE(file.enabled, !file.path.contains("/sim/"));
}

void TestExample::standardFileIsInTheFormThatSavingGives()
{
    const QString path = folder.filePath("standard.rvk");
    QCOMPARE(VAK::vakModeFromVakConfigFile(path), VAK::VakMode::Standard);
    QVERIFY(VAK::checkVAKStandardFile(path));
    bool ok = false;
    QString error;
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(path, &ok, &error);
    QVERIFY2(ok, qPrintable(error));
    QCOMPARE(cores.size(), 2);

    const QTemporaryDir temporary;
    const QString copy = temporary.filePath("copy.rvk");
    QVERIFY(VAK::writeVAKConfigToXml(cores, copy));
    qDeleteAll(cores);
    QCOMPARE(bytesOf(copy), bytesOf(path));
}

void TestExample::liteFileIsInTheFormThatSavingGives()
{
    const QString path = folder.filePath("lite.rvk");
    QCOMPARE(VAK::vakModeFromVakConfigFile(path), VAK::VakMode::Lite);
    QVERIFY(VAK::checkVAKLiteFile(path));
    bool ok = false;
    QString error;
    const QList<VAK::AOCore_Lite *> cores = VAK::readVAKConfigFromXml_Lite(path, &ok, &error);
    QVERIFY2(ok, qPrintable(error));
    QCOMPARE(cores.size(), 1);

    const QTemporaryDir temporary;
    const QString copy = temporary.filePath("copy.rvk");
    QVERIFY(VAK::writeVAKConfigToXml_Lite(cores, copy));
    qDeleteAll(cores);
    QCOMPARE(bytesOf(copy), bytesOf(path));
}

/// The netlist of the example, read by the engine; null when that failed.
static std::unique_ptr<NETCATCHER::RtlNetlist> readNetlist(const QString &projectFile)
{
    QString error;
    if (!TE::ProjectEngine::instance()->openProject(projectFile, &error)) {
        qWarning("%s", qPrintable(error));
        return nullptr;
    }
    const QMap<QString, QVariant> info = TE::TaskEngine::instance()->designManager()->getSourceFileInfo();
    NETCATCHER::NetlistBuilder builder(NETCATCHER::DesignSources::fromSourceInfo(info));
    if (!builder.analyse()) {
        qWarning("%s", qPrintable(builder.messages().join('\n')));
        return nullptr;
    }
    return builder.build(&error);
}

static QStringList namesOf(const QList<VAK::SignalItem> &items)
{
    QStringList names;
    for (const VAK::SignalItem &item : items)
        names += item.members.isEmpty() ? QStringList(item.name) : namesOf(item.members);
    return names;
}

void TestExample::standardFilePassesTheValidationAgainstTheDesign()
{
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist = readNetlist(folder.filePath("soc.vakproj"));
    QVERIFY(netlist);
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(folder.filePath("standard.rvk"));
    QString errors;
    const bool valid = RTLVAK::validateCores(cores, netlist.get(), &errors);
    qDeleteAll(cores);
    QVERIFY2(valid, qPrintable(errors));
}

void TestExample::everySignalNamesANetOfTheDesign()
{
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist = readNetlist(folder.filePath("soc.vakproj"));
    QVERIFY(netlist);
    QStringList names;
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(folder.filePath("standard.rvk"));
    for (const VAK::AoCore *core : cores) {
        names += namesOf(core->getallCapSignal());
        for (const VAK::TriggerPort *port : core->availableTriggers())
            names += namesOf(port->getSignalNet());
    }
    qDeleteAll(cores);
    const QList<VAK::AOCore_Lite *> liteCores = VAK::readVAKConfigFromXml_Lite(folder.filePath("lite.rvk"));
    for (const VAK::AOCore_Lite *core : liteCores)
        names += namesOf(core->getallCapSignal()) << core->sampleClock();
    qDeleteAll(liteCores);

    QVERIFY(names.size() > 250);
    for (const QString &name : qAsConst(names)) {
        const NETCATCHER::RtlNet *net = netlist->findNet(name);
        QVERIFY2(net, qPrintable(name + " is not in the design"));
        QVERIFY2(!net->isUnusable(), qPrintable(name + " is unusable"));
    }
}

QTEST_GUILESS_MAIN(TestExample)
#include "tst_example.moc"
