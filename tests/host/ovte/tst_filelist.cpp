// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "textfile.h"

#include "hostlibs/ovte/filelist.h"
#include "hostlibs/ovte/filelistlexer.h"
#include "hostlibs/ovte/librarysearch.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace TE;

class TestFileList : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void wordsAreDivided_data();
    void wordsAreDivided();
    void wordsKnowTheirLines();
    void brokenListNamesTheLine_data();
    void brokenListNamesTheLine();
    void sourcesComeInOrderAndOnce();
    void plusOptionsTakeSeveralValues();
    void dashOptionsGiveTheSame();
    void typesFollowSuffixesAndSv();
    void nestedListStartsAtTheOutermostFolder();
    void nestedListWithCapitalFStartsAtItsOwnFolder();
    void nestedListFallsBackToItsOwnFolder();
    void listThatNamesItselfIsAnError();
    void missingNestedListIsAnError();
    void missingThingsAreNotedAndLeftOut();
    void unusedOptionsAreNoted();
    void optionWithoutValueIsAnError();
    void libraryFolderGivesWhatIsNeeded();
    void libraryFileIsTakenWhenNamed();
    void librarySuffixesCanBeAdded();
    void namesInCommentsAndStringsDoNotCount();
    void firstLibraryWins();
    void oddFileNamesAreTaken();
    void unreadableListIsAnError();

private:
    QString path(const QString &name) const { return dir->filePath(name); }
    FileList read(const QByteArray &text);
    QStringList names(const FileList &list) const;

    std::unique_ptr<QTemporaryDir> dir;
    QString error;
};

void TestFileList::init()
{
    dir = std::make_unique<QTemporaryDir>();
    error.clear();
    for (const char *name : {"a.v", "b.v", "c.sv"})
        writeText(path(name), "");
}

FileList TestFileList::read(const QByteArray &text)
{
    writeText(path("list.f"), text);
    FileList list;
    if (!readFileList(path("list.f"), &list, &error))
        list.notes = QStringList{"FAILED " + error};
    return list;
}

QStringList TestFileList::names(const FileList &list) const
{
    QStringList result;
    for (const DesignFile &file : list.files)
        result.append(QDir(dir->path()).relativeFilePath(file.path));
    return result;
}

void TestFileList::wordsAreDivided_data()
{
    qputenv("VAK_TEST_ROOT", "/opt/rtl");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("blanks") << " a\tb\r\n\n c " << QStringList{"a", "b", "c"};
    QTest::newRow("line comments") << "a // x y\n# z\nb #c" << QStringList{"a", "b"};
    QTest::newRow("block comment") << "a /* x\ny */ b" << QStringList{"a", "b"};
    QTest::newRow("slashes inside a word") << "a//b c#d" << QStringList{"a//b", "c#d"};
    QTest::newRow("quotes") << "\"a b\" c\" d\"e" << QStringList{"a b", "c de"};
    QTest::newRow("backslashes") << "a\\ b \"c\\\"d\" e\\\nf" << QStringList{"a b", "c\"d", "ef"};
    QTest::newRow("variables") << "$VAK_TEST_ROOT/a ${VAK_TEST_ROOT}b $(VAK_TEST_ROOT)/c \"$VAK_TEST_ROOT d\""
                               << QStringList{"/opt/rtl/a", "/opt/rtlb", "/opt/rtl/c", "/opt/rtl d"};
    QTest::newRow("lone dollar") << "a$ $1" << QStringList{"a$", "$1"};
}

void TestFileList::wordsAreDivided()
{
    QFETCH(QString, text);
    QList<FileListWord> found;
    int line = 0;
    QVERIFY2(splitFileList(text, &found, &line, &error), qPrintable(error));
    QStringList texts;
    for (const FileListWord &word : found)
        texts.append(word.text);
    QTEST(texts, "words");
}

void TestFileList::wordsKnowTheirLines()
{
    QList<FileListWord> words;
    int line = 0;
    QVERIFY(splitFileList("a\n/* x\n\n*/ b\nc \"d\ne\" f", &words, &line, &error));
    QList<int> lines;
    for (const FileListWord &word : words)
        lines.append(word.line);
    QCOMPARE(lines, QList<int>({1, 4, 5, 5, 6}));
}

void TestFileList::brokenListNamesTheLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("quote") << QByteArray("a.v\n\n\"b.v\n") << ":3: the quote that begins here has no end; add \".";
    QTest::newRow("comment") << QByteArray("a.v\n/* b.v\n") << ":2: the comment that begins here has no end; add */.";
    QTest::newRow("variable") << QByteArray("a.v\n\n$VAK_TEST_UNSET/b.v")
                              << ":3: the environment variable VAK_TEST_UNSET is not set; set it before starting the "
                                 "program, or write the path out.";
}

void TestFileList::brokenListNamesTheLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    read(text);
    QCOMPARE(error, path("list.f") + expected);
}

void TestFileList::sourcesComeInOrderAndOnce()
{
    const FileList list = read("b.v\na.v // twice\n./a.v c.sv\n");
    QCOMPARE(names(list), QStringList({"b.v", "a.v", "c.sv"}));
    QVERIFY(list.notes.isEmpty());
    for (const DesignFile &file : list.files)
        QVERIFY(file.enabled);
}

void TestFileList::plusOptionsTakeSeveralValues()
{
    const FileList list = read("+incdir+inc+rtl/inc+inc\n+define+SYNTH+WIDTH=8+SYNTH\na.v");
    QCOMPARE(list.includePaths, QStringList({path("inc"), path("rtl/inc")}));
    QCOMPARE(list.defines, QStringList({"SYNTH", "WIDTH=8"}));
}

void TestFileList::dashOptionsGiveTheSame()
{
    const FileList list = read("-Iinc -I rtl/inc -DSYNTH -D WIDTH=8 --top-module soc a.v");
    QCOMPARE(list.includePaths, QStringList({path("inc"), path("rtl/inc")}));
    QCOMPARE(list.defines, QStringList({"SYNTH", "WIDTH=8"}));
    QCOMPARE(list.topModule, QString("soc"));
    QCOMPARE(names(list), QStringList{"a.v"});
}

void TestFileList::typesFollowSuffixesAndSv()
{
    writeText(path("odd.vp"), "");
    writeText(path("x.vhd"), "");
    FileList list = read("a.v c.sv odd.vp x.vhd");
    QList<int> types;
    for (const DesignFile &file : list.files)
        types.append(file.type);
    QCOMPARE(types, QList<int>({VerilogFile, SystemVerilogFile, VerilogFile, VhdlFile}));
    list = read("a.v -sv b.v");
    QCOMPARE(list.files.at(0).type, int(VerilogFile));
    QCOMPARE(list.files.at(1).type, int(SystemVerilogFile));
}

void TestFileList::nestedListStartsAtTheOutermostFolder()
{
    writeText(path("sub/x.v"), "");
    writeText(path("sub/a.v"), "");
    writeText(path("sub/inner.f"), "sub/x.v a.v");
    QCOMPARE(names(read("-f sub/inner.f b.v")), QStringList({"sub/x.v", "a.v", "b.v"}));
}

void TestFileList::nestedListWithCapitalFStartsAtItsOwnFolder()
{
    writeText(path("sub/a.v"), "");
    writeText(path("sub/inner.f"), "a.v");
    QCOMPARE(names(read("-F sub/inner.f")), QStringList{"sub/a.v"});
}

void TestFileList::nestedListFallsBackToItsOwnFolder()
{
    writeText(path("sub/x.v"), "");
    writeText(path("sub/inner.f"), "x.v");
    QCOMPARE(names(read("-f sub/inner.f")), QStringList{"sub/x.v"});
}

void TestFileList::listThatNamesItselfIsAnError()
{
    writeText(path("other.f"), "\n-f list.f");
    read("-f other.f");
    QCOMPARE(error, path("other.f") + ":2: the file list \"list.f\" names itself; remove this line.");
}

void TestFileList::missingNestedListIsAnError()
{
    read("a.v\n-f none.f");
    QCOMPARE(
        error,
        path("list.f") +
            QString(":2: there is no file list \"none.f\"; check the path, which starts at \"%1\".").arg(dir->path()));
}

void TestFileList::missingThingsAreNotedAndLeftOut()
{
    const FileList list = read("a.v\nnone.v\n-y nodir\n-v nolib.v");
    QCOMPARE(names(list), QStringList{"a.v"});
    const QString at = path("list.f");
    QCOMPARE(list.notes, QStringList({at + ":2: there is no file \"none.v\"; check the path, which starts at \"" +
                                          dir->path() + "\".",
                                      at + ":3: the library folder \"nodir\" does not exist; check the path.",
                                      at + ":4: the library file \"nolib.v\" does not exist; check the path."}));
}

void TestFileList::unusedOptionsAreNoted()
{
    const FileList list = read("+access+rw\n-timescale 1ns/1ps a.v\n-quiet");
    QCOMPARE(names(list), QStringList{"a.v"});
    const QString at = path("list.f");
    QCOMPARE(list.notes, QStringList({at + ":1: the option \"+access+rw\" is not used.",
                                      at + ":2: the option \"-timescale\" is not used.",
                                      at + ":3: the option \"-quiet\" is not used."}));
}

void TestFileList::optionWithoutValueIsAnError()
{
    read("a.v\n-y");
    QCOMPARE(error, path("list.f") + ":2: after \"-y\" a value is missing.");
}

void TestFileList::libraryFolderGivesWhatIsNeeded()
{
    writeText(path("a.v"), "module a; fifo #(8) u(); endmodule");
    writeText(path("lib/fifo.v"), "module fifo; ram u(); endmodule");
    writeText(path("lib/ram.v"), "module automatic ram; endmodule");
    writeText(path("lib/uart.v"), "module uart; endmodule");
    writeText(path("lib/notes.txt"), "module fifo; endmodule");
    QCOMPARE(names(read("a.v -y lib")), QStringList({"a.v", "lib/fifo.v", "lib/ram.v"}));
}

void TestFileList::libraryFileIsTakenWhenNamed()
{
    writeText(path("a.v"), "module a; PLL u(); endmodule");
    writeText(path("cells.v"), "primitive p(); endprimitive module PLL; endmodule");
    writeText(path("other.v"), "module OTHER; endmodule");
    QCOMPARE(names(read("-v cells.v -v other.v a.v")), QStringList({"a.v", "cells.v"}));
}

void TestFileList::librarySuffixesCanBeAdded()
{
    writeText(path("a.v"), "module a; fifo u(); endmodule");
    writeText(path("lib/fifo.vlib"), "module fifo; endmodule");
    QCOMPARE(names(read("a.v -y lib")), QStringList({"a.v"}));
    QCOMPARE(names(read("a.v -y lib +libext+.vlib")), QStringList({"a.v", "lib/fifo.vlib"}));
}

void TestFileList::namesInCommentsAndStringsDoNotCount()
{
    writeText(path("a.v"), "// fifo\n/* fifo */ module a; initial $display(\"fifo \\\" fifo\"); endmodule");
    writeText(path("lib/fifo.v"), "// module a\nmodule fifo; endmodule");
    QCOMPARE(neededLibraryFiles({path("a.v")}, {path("lib/fifo.v")}), QStringList());
    writeText(path("a.v"), "module a; /**/ fifo u(); endmodule");
    QCOMPARE(neededLibraryFiles({path("a.v")}, {path("lib/fifo.v")}), QStringList{path("lib/fifo.v")});
}

void TestFileList::firstLibraryWins()
{
    writeText(path("a.v"), "module a; fifo u(); own v(); endmodule module own; endmodule");
    writeText(path("lib1/fifo.v"), "module fifo; endmodule");
    writeText(path("lib2/fifo.v"), "module fifo; endmodule");
    writeText(path("lib2/own.v"), "module own; endmodule");
    QCOMPARE(names(read("a.v -y lib1 -y lib2")), QStringList({"a.v", "lib1/fifo.v"}));
}

void TestFileList::oddFileNamesAreTaken()
{
    writeText(path("with blank & $(x).v"), "");
    QCOMPARE(names(read("\"with blank & \\$(x).v\"")), QStringList{"with blank & $(x).v"});
}

void TestFileList::unreadableListIsAnError()
{
    FileList list;
    QVERIFY(!readFileList(path("none.f"), &list, &error));
    QVERIFY2(error.startsWith(path("none.f") + ": "), qPrintable(error));
}

QTEST_GUILESS_MAIN(TestFileList)
#include "tst_filelist.moc"
