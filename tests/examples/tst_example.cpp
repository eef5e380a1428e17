// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/projectfile.h"

#include <OVTE/designtypes.h>
#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/vakfile.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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
    void everyCoreOfTheStandardFileHasACompleteTrigger();

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

void TestExample::everyCoreOfTheStandardFileHasACompleteTrigger()
{
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(folder.filePath("standard.rvk"));
    for (const VAK::AoCore *core : cores) {
        QVERIFY(!core->availableTriggers().isEmpty());
        QVERIFY(!core->enabledMatchUnits().isEmpty());
        QVERIFY(!core->expressions().isEmpty());
        QVERIFY(!core->getDataSignal().isEmpty());
    }
    qDeleteAll(cores);
}

QTEST_GUILESS_MAIN(TestExample)
#include "tst_example.moc"
