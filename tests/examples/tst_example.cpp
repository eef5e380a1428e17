// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/projectfile.h"

#include <OVTE/designtypes.h>

#include <QDir>
#include <QFile>
#include <QTest>

/// The example that comes with the program: what the README and the guide promise about it.
class TestExample : public QObject
{
    Q_OBJECT

private slots:
    void projectIsInTheFormThatSavingGives();
    void everyFileOfTheFolderIsInTheProject();
    void onlyWhatIsForSimulationIsDisabled();

private:
    static QByteArray contents(const QString &name);
    static TE::Project project();

    const QDir folder{VAK_EXAMPLES "/soc"};
};

QByteArray TestExample::contents(const QString &name)
{
    QFile file(QString(VAK_EXAMPLES "/soc/") + name);
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
    QCOMPARE(saved, contents("soc.vakproj"));
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

QTEST_GUILESS_MAIN(TestExample)
#include "tst_example.moc"
