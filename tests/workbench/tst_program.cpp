// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/tempdir.h"

#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTest>

#include <memory>

/// The program itself, started as ./run does where there is no display.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void pictureOfTheExample();
    void pictureOfTheEmptyWindow();
    void analyzerAloneFindsItsProject();
    void missingFileIsStatusOne();
    void brokenDesignIsStatusOneAndSaysWhy();
    void pictureThatCannotBeWrittenIsStatusOne();
    void recentFilesAreLeftAlone();
    void wrongOptionIsRefused();

private:
    int run(const QStringList &arguments);
    QString picture() const { return dir->filePath("picture.png"); }
    bool isPictureOfAWindow() const;

    std::unique_ptr<support::TempDir> dir;
    QString errors;
};

void TestProgram::init()
{
    dir = std::make_unique<support::TempDir>();
    errors.clear();
}

int TestProgram::run(const QStringList &arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_CONFIG_HOME", dir->filePath("config"));
    program.setProcessEnvironment(environment);
    program.start(WORKBENCH_BINARY, arguments);
    if (!program.waitForFinished(60000))
        qFatal("the program does not end");
    errors = QString::fromUtf8(program.readAllStandardError());
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

/// More than one colour, in the size of a window.
bool TestProgram::isPictureOfAWindow() const
{
    const QImage image(picture());
    if (image.width() < 1000 || image.height() < 600)
        return false;
    QSet<QRgb> colours;
    for (int x = 0; x < image.width(); x += 7) {
        for (int y = 0; y < image.height(); y += 7)
            colours.insert(image.pixel(x, y));
    }
    return colours.size() > 10;
}

void TestProgram::pictureOfTheExample()
{
    const QString example = EXAMPLE_FOLDER;
    QCOMPARE(run({example + "/standard.rvk", example + "/soc.vakproj", "--screenshot", picture()}), 0);
    QVERIFY(isPictureOfAWindow());
}

void TestProgram::pictureOfTheEmptyWindow()
{
    QCOMPARE(run({"--screenshot", picture()}), 0);
    QVERIFY(isPictureOfAWindow());
}

void TestProgram::analyzerAloneFindsItsProject()
{
    QCOMPARE(run({QString(EXAMPLE_FOLDER) + "/lite.rvk", "--screenshot", picture()}), 0);
}

void TestProgram::missingFileIsStatusOne()
{
    QCOMPARE(run({dir->filePath("none.vakproj"), "--screenshot", picture()}), 1);
    QVERIFY2(errors.contains(dir->filePath("none.vakproj")), qPrintable(errors));
    QVERIFY(isPictureOfAWindow());
}

void TestProgram::brokenDesignIsStatusOneAndSaysWhy()
{
    dir->write("a.v", "module a;\n  wire ;;\nendmodule\n");
    dir->write("a.vakproj", R"({"vakproj": 1, "files": [{"path": "a.v"}]})");
    const QString config = dir->write("a.rvk", "<vak version=\"1\" mode=\"standard\"/>");
    QCOMPARE(run({dir->filePath("a.vakproj"), config, "--screenshot", picture()}), 1);
    QVERIFY2(errors.contains("Design files contain some errors.: ERROR: " + dir->filePath("a.v") + ":2: "),
             qPrintable(errors));
}

void TestProgram::pictureThatCannotBeWrittenIsStatusOne()
{
    QCOMPARE(run({"--screenshot", dir->filePath("no/such/folder.png")}), 1);
    QVERIFY2(errors.contains("Can not save the picture to "), qPrintable(errors));
}

void TestProgram::recentFilesAreLeftAlone()
{
    QCOMPARE(run({QString(EXAMPLE_FOLDER) + "/soc.vakproj", "--screenshot", picture()}), 0);
    QVERIFY(!QFile::exists(dir->filePath("config")));
}

void TestProgram::wrongOptionIsRefused()
{
    QCOMPARE(run({"--nonsense"}), 1);
    QVERIFY2(errors.contains("nonsense"), qPrintable(errors));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
