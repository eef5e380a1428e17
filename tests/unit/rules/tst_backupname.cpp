// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/backupname.h"

#include "support/tempdir.h"

#include <QtTest>

using namespace RTLVAK;

class TestBackupName : public QObject
{
    Q_OBJECT

private slots:
    void firstNameHasNoNumber();
    void existingCopiesAreCountedOn();
    void copiesOfOtherKindsDoNotCount();
};

void TestBackupName::firstNameHasNoNumber()
{
    const support::TempDir dir;
    const QString file = dir.filePath("a.rvk");
    QCOMPARE(freeBackupName(file, "saved"), file + ".saved");
    QCOMPARE(latestBackup(file, "saved"), QString());
}

void TestBackupName::existingCopiesAreCountedOn()
{
    const support::TempDir dir;
    const QString file = dir.filePath("a.rvk");
    dir.write("a.rvk.saved", "1");
    QCOMPARE(freeBackupName(file, "saved"), file + ".saved2");
    QCOMPARE(latestBackup(file, "saved"), file + ".saved");
    dir.write("a.rvk.saved2", "2");
    QCOMPARE(freeBackupName(file, "saved"), file + ".saved3");
    QCOMPARE(latestBackup(file, "saved"), file + ".saved2");
}

void TestBackupName::copiesOfOtherKindsDoNotCount()
{
    const support::TempDir dir;
    dir.write("a.rvk.recovered", "1");
    dir.write("b.rvk.saved", "1");
    QCOMPARE(freeBackupName(dir.filePath("a.rvk"), "saved"), dir.filePath("a.rvk.saved"));
}

QTEST_GUILESS_MAIN(TestBackupName)
#include "tst_backupname.moc"
