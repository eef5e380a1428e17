// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/dialogdriver.h"
#include "support/tempdir.h"
#include "support/widgethelpers.h"

#include "workbench/codeeditor.h"
#include "workbench/findbar.h"
#include "workbench/hdlhighlighter.h"
#include "workbench/textfile.h"
#include "workbench/textview.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <memory>

using namespace Workbench;
using support::child;
using support::DialogDriver;

class TestTextView : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void bytesSurviveReadingAndWriting_data();
    void bytesSurviveReadingAndWriting();
    void binaryFileIsRefused();
    void failedWriteLeavesTheOldFile();
    void titleTellsAboutChanges();
    void savingWritesAndTells();
    void closingAsksWhenModified();
    void cancelKeepsTheViewOpen();
    void otherProgramsChangeIsTakenOver();
    void unsavedWorkIsKeptWhenTheFileChanges();
    void textBeyondLatin1IsSavedAsUtf8();
    void missingFileIsReported();
    void goToLineIsBounded();
    void findGoesRoundAndRound();
    void findMatchesCaseOnDemand();
    void findStartsWithTheSelection();
    void lineNumbersTakeTheRoomTheyNeed();
    void keywordsAndCommentsAreColoured();
    void languageFollowsSuffix();

private:
    std::unique_ptr<TextView> open(const QByteArray &contents, const QString &name = "a.v");
    static QRgb colourAt(const TextView &view, int line, int column);

    std::unique_ptr<support::TempDir> dir;
};

void TestTextView::init()
{
    dir = std::make_unique<support::TempDir>();
}

std::unique_ptr<TextView> TestTextView::open(const QByteArray &contents, const QString &name)
{
    auto view = std::make_unique<TextView>();
    QString error;
    if (!view->open(dir->write(name, contents), &error))
        qFatal("%s", qPrintable(error));
    view->resize(500, 300);
    view->show();
    return view;
}

QRgb TestTextView::colourAt(const TextView &view, int line, int column)
{
    const QTextBlock block = view.editor()->document()->findBlockByNumber(line - 1);
    for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
        if (column >= range.start && column < range.start + range.length)
            return range.format.foreground().color().rgb();
    }
    return 0;
}

void TestTextView::bytesSurviveReadingAndWriting_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("plain") << QByteArray("module a;\nendmodule\n");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no newline at the end") << QByteArray("a\nb");
    QTest::newRow("carriage returns") << QByteArray("a\r\nb\r\n");
    QTest::newRow("utf-8") << QByteArray("// \xc3\xa4\xe2\x82\xac\n");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf// a\n");
    QTest::newRow("latin-1") << QByteArray("// \xe4\xf6\n");
    QTest::newRow("tabs and blanks") << QByteArray("\ta \n\n \n");
}

void TestTextView::bytesSurviveReadingAndWriting()
{
    QFETCH(QByteArray, bytes);
    TextFile file;
    QVERIFY(decodeText(bytes, &file));
    QVERIFY(!file.text.contains('\r'));
    QCOMPARE(encodeText(file), bytes);
    const auto view = open(bytes);
    view->editor()->document()->setModified(true);
    QVERIFY(view->save());
    QCOMPARE(dir->read("a.v"), bytes);
}

void TestTextView::binaryFileIsRefused()
{
    const QString path = dir->write("a.bin", QByteArray("a\0b", 3));
    TextView view;
    QString error;
    QVERIFY(!view.open(path, &error));
    QCOMPARE(error, "Can not open " + path + ":\nThis is not a text file.");
}

void TestTextView::failedWriteLeavesTheOldFile()
{
    const auto view = open("old\n");
    view->editor()->insertPlainText("new");
    QVERIFY(QDir(dir->path()).rename("a.v", "b.v"));
    QVERIFY(QDir(dir->path()).mkdir("a.v"));
    DialogDriver driver;
    driver.answerBox(QMessageBox::Save);
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!view->save());
    QVERIFY(driver.boxes().at(1).text.startsWith("Can not save to " + dir->filePath("a.v") + ":\n"));
    QVERIFY(view->isModified());
    QCOMPARE(dir->read("b.v"), QByteArray("old\n"));
}

void TestTextView::titleTellsAboutChanges()
{
    const auto view = open("one\n");
    QSignalSpy spy(view.get(), &TextView::modificationStatusChanged);
    QCOMPARE(view->shortTitle(), QString("a.v"));
    view->editor()->insertPlainText("x");
    QCOMPARE(view->shortTitle(), QString("a.v *"));
    QCOMPARE(view->windowTitle(), QString("a.v *"));
    view->editor()->undo();
    QCOMPARE(view->shortTitle(), QString("a.v"));
    QCOMPARE(spy, QList<QVariantList>({{true}, {false}}));
}

void TestTextView::savingWritesAndTells()
{
    const auto view = open("one\n");
    QSignalSpy spy(view.get(), &TextView::saved);
    view->editor()->insertPlainText("zero\n");
    QVERIFY(view->save());
    QCOMPARE(dir->read("a.v"), QByteArray("zero\none\n"));
    QCOMPARE(spy, QList<QVariantList>({{dir->filePath("a.v")}}));
    QVERIFY(!view->isModified());
}

void TestTextView::closingAsksWhenModified()
{
    const auto view = open("one\n");
    DialogDriver driver;
    QVERIFY(view->close());
    QCOMPARE(driver.shownCount(), 0);
    view->show();
    view->editor()->insertPlainText("x");
    driver.answerBox(QMessageBox::Save);
    QVERIFY(view->close());
    QCOMPARE(driver.boxes().at(0).defaultButton, QMessageBox::Save);
    QCOMPARE(dir->read("a.v"), QByteArray("xone\n"));
}

void TestTextView::cancelKeepsTheViewOpen()
{
    const auto view = open("one\n");
    view->editor()->insertPlainText("x");
    DialogDriver driver;
    driver.answerBox(QMessageBox::Cancel);
    QVERIFY(!view->close());
    driver.escapeBox();
    QVERIFY(!view->close());
    QVERIFY(view->isVisible());
    QCOMPARE(dir->read("a.v"), QByteArray("one\n"));
}

void TestTextView::otherProgramsChangeIsTakenOver()
{
    const auto view = open("one\ntwo\n");
    view->editor()->goToLine(2);
    dir->write("a.v", "one\nTWO\n");
    view->reloadIfChanged();
    QCOMPARE(view->editor()->toPlainText(), QString("one\nTWO\n"));
    QCOMPARE(view->editor()->currentLine(), 2);
    QVERIFY(!view->isModified());
}

void TestTextView::unsavedWorkIsKeptWhenTheFileChanges()
{
    const auto view = open("one\n");
    view->editor()->insertPlainText("mine ");
    dir->write("a.v", "theirs\n");
    view->reloadIfChanged();
    QCOMPARE(view->editor()->toPlainText(), QString("mine one\n"));
    DialogDriver driver;
    driver.answerBox(QMessageBox::Cancel);
    QVERIFY(!view->save());
    QVERIFY(driver.boxes().at(0).text.startsWith("Another program has changed \"" + dir->filePath("a.v") + "\""));
    QCOMPARE(driver.boxes().at(0).defaultButton, QMessageBox::Cancel);
    QCOMPARE(dir->read("a.v"), QByteArray("theirs\n"));
    driver.answerBox(QMessageBox::Save);
    QVERIFY(view->save());
    QCOMPARE(dir->read("a.v"), QByteArray("mine one\n"));
}

void TestTextView::textBeyondLatin1IsSavedAsUtf8()
{
    const auto view = open("// \xe4\n");
    view->editor()->insertPlainText(QString::fromUtf8("// \xe2\x82\xac\n"));
    DialogDriver driver;
    driver.answerBox(QMessageBox::Cancel);
    QVERIFY(!view->save());
    driver.answerBox(QMessageBox::Save);
    QVERIFY(view->save());
    QCOMPARE(dir->read("a.v"), QByteArray("// \xe2\x82\xac\n// \xc3\xa4\n"));
}

void TestTextView::missingFileIsReported()
{
    TextView view;
    QString error;
    QVERIFY(!view.open(dir->filePath("none.v"), &error));
    QVERIFY(error.startsWith("Can not open " + dir->filePath("none.v") + ":\n"));
}

void TestTextView::goToLineIsBounded()
{
    const auto view = open("1\n2\n3");
    view->editor()->goToLine(2);
    QCOMPARE(view->editor()->currentLine(), 2);
    view->editor()->goToLine(99);
    QCOMPARE(view->editor()->currentLine(), 3);
    view->editor()->goToLine(-1);
    QCOMPARE(view->editor()->currentLine(), 1);
}

void TestTextView::findGoesRoundAndRound()
{
    const auto view = open("wire a;\nreg b;\nwire c;\n");
    view->findBar()->start();
    QTest::keyClicks(&child<QLineEdit>(*view, "findPattern"), "wire");
    QCOMPARE(view->editor()->currentLine(), 1);
    view->findBar()->findNext();
    QCOMPARE(view->editor()->currentLine(), 3);
    view->findBar()->findNext();
    QCOMPARE(view->editor()->currentLine(), 1);
    QCOMPARE(child<QLabel>(*view, "findResult").text(), QString("Started over"));
    view->findBar()->findPrevious();
    QCOMPARE(view->editor()->currentLine(), 3);
    QTest::keyClicks(&child<QLineEdit>(*view, "findPattern"), "x");
    QCOMPARE(child<QLabel>(*view, "findResult").text(), QString("Not found"));
    QTest::keyClick(&child<QLineEdit>(*view, "findPattern"), Qt::Key_Escape);
    QVERIFY(!view->findBar()->isVisible());
}

void TestTextView::findMatchesCaseOnDemand()
{
    const auto view = open("Wire\nwire\n");
    view->findBar()->start();
    child<QLineEdit>(*view, "findPattern").setText("wire");
    view->findBar()->findNext();
    QCOMPARE(view->editor()->currentLine(), 1);
    view->editor()->goToLine(1);
    view->findBar()->findChild<QCheckBox *>()->setChecked(true);
    QCOMPARE(view->editor()->currentLine(), 2);
}

void TestTextView::findStartsWithTheSelection()
{
    const auto view = open("alpha beta\n");
    view->editor()->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    view->findBar()->start();
    QCOMPARE(child<QLineEdit>(*view, "findPattern").text(), QString("alpha"));
}

void TestTextView::lineNumbersTakeTheRoomTheyNeed()
{
    const auto small = open("1\n");
    const auto large = open(QByteArray("\n").repeated(20000), "b.v");
    const auto left = [](const TextView &view) { return view.editor()->viewport()->geometry().left(); };
    QVERIFY(left(*small) > 0);
    QVERIFY(left(*large) > left(*small));
}

void TestTextView::keywordsAndCommentsAreColoured()
{
    const auto view = open("module a; // end\n/* x\ny */ wire\nmodules \"module\"\n");
    const QRgb keyword = colourAt(*view, 1, 0);
    const QRgb comment = colourAt(*view, 1, 11);
    QVERIFY(keyword != 0 && comment != 0 && keyword != comment);
    QCOMPARE(colourAt(*view, 1, 7), QRgb(0));
    QCOMPARE(colourAt(*view, 2, 3), comment);
    QCOMPARE(colourAt(*view, 3, 0), comment);
    QCOMPARE(colourAt(*view, 3, 5), keyword);
    QCOMPARE(colourAt(*view, 4, 0), QRgb(0));
    QVERIFY(colourAt(*view, 4, 9) != keyword);
    const auto vhdl = open("ENTITY a -- entity\n", "a.vhd");
    QCOMPARE(colourAt(*vhdl, 1, 0), keyword);
    QCOMPARE(colourAt(*vhdl, 1, 12), comment);
    const auto plain = open("module\n", "a.txt");
    QCOMPARE(colourAt(*plain, 1, 0), QRgb(0));
}

void TestTextView::languageFollowsSuffix()
{
    QCOMPARE(languageOfPath("a.sv"), Language::Verilog);
    QCOMPARE(languageOfPath("a.svh"), Language::Verilog);
    QCOMPARE(languageOfPath("a.vhd"), Language::Vhdl);
    QCOMPARE(languageOfPath("a.txt"), Language::None);
}

QTEST_MAIN(TestTextView)
#include "tst_textview.moc"
