// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include <QInputDialog>
#include <QMenu>
#include <QProgressBar>
#include <QProgressDialog>
#include <QTest>
#include <QVBoxLayout>

using support::DialogDriver;

class TestDialogDriver : public QObject
{
    Q_OBJECT

private slots:
    void boxIsRecordedAndAnswered();
    void effectiveDefaultAndEscapeAreRecorded();
    void escapeRejectsAQuestion();
    void nestedBoxTakesTheNextAnswer();
    void unscriptedBoxIsRecordedRejectedAndReported();
    void answerForAnotherKindIsReported();
    void unusedAnswerIsReported();
    void dialogLeftOpenIsReported();
    void missingButtonIsReported();
    void boxMayDieWithItsParent();
    void menuEntryIsTriggered();
    void submenuTakesAFurtherAnswer();
    void menuIsDismissed();
    void disabledEntryIsReported();
    void dialogIsHandedOver();
    void textIsEntered();
    void nonModalAndProgressDialogsAreLeftAlone();
};

void TestDialogDriver::boxIsRecordedAndAnswered()
{
    QWidget parent;
    DialogDriver driver;
    driver.answerBox(QMessageBox::Yes);
    QMessageBox box(QMessageBox::Warning, "title", "text", QMessageBox::Yes | QMessageBox::No, &parent);
    box.setDetailedText("details");
    QCOMPARE(box.exec(), int(QMessageBox::Yes));
    QCOMPARE(driver.boxes().size(), 1);
    const support::BoxRecord record = driver.boxes().at(0);
    QCOMPARE(record.title, QString("title"));
    QCOMPARE(record.text, QString("text"));
    QCOMPARE(record.detailedText, QString("details"));
    QCOMPARE(record.icon, QMessageBox::Warning);
    QCOMPARE(record.buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(record.parent, &parent);
}

void TestDialogDriver::effectiveDefaultAndEscapeAreRecorded()
{
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QMessageBox::critical(nullptr, "a", "b");
    driver.answerBox(QMessageBox::No);
    QMessageBox::question(nullptr, "a", "b", QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    QCOMPARE(driver.boxes().at(0).defaultButton, QMessageBox::Ok);
    QCOMPARE(driver.boxes().at(0).escapeButton, QMessageBox::Ok);
    QCOMPARE(driver.boxes().at(1).defaultButton, QMessageBox::No);
    QCOMPARE(driver.boxes().at(1).escapeButton, QMessageBox::No);
}

void TestDialogDriver::escapeRejectsAQuestion()
{
    DialogDriver driver;
    driver.escapeBox();
    QCOMPARE(QMessageBox::question(nullptr, "a", "b", QMessageBox::Save | QMessageBox::Cancel), QMessageBox::Cancel);
}

void TestDialogDriver::nestedBoxTakesTheNextAnswer()
{
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        QMessageBox::information(&dialog, "inner", "text");
        dialog.accept();
    });
    driver.answerBox(QMessageBox::Ok);
    QDialog outer;
    QCOMPARE(outer.exec(), int(QDialog::Accepted));
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.dialogs(), QStringList("QDialog"));
}

void TestDialogDriver::unscriptedBoxIsRecordedRejectedAndReported()
{
    DialogDriver driver;
    driver.setReporting(false);
    QMessageBox box(QMessageBox::Critical, "surprise", "text", QMessageBox::Ok);
    box.exec();
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.failures(), QStringList("unscripted: QMessageBox \"surprise\" \"text\" \"\""));
    QVERIFY(!driver.finish());
}

void TestDialogDriver::answerForAnotherKindIsReported()
{
    DialogDriver driver;
    driver.setReporting(false);
    driver.chooseFromMenu("Copy");
    QMessageBox::information(nullptr, "a", "b");
    QCOMPARE(driver.failures().size(), 1);
}

void TestDialogDriver::unusedAnswerIsReported()
{
    DialogDriver driver;
    driver.setReporting(false);
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!driver.finish());
    QCOMPARE(driver.failures(), QStringList("1 scripted answer(s) were not asked for"));
}

void TestDialogDriver::dialogLeftOpenIsReported()
{
    DialogDriver driver;
    driver.setReporting(false);
    driver.answerDialog([](QDialog &) {});
    QDialog dialog;
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(driver.failures().size(), 1);
}

void TestDialogDriver::missingButtonIsReported()
{
    DialogDriver driver;
    driver.setReporting(false);
    driver.answerBox(QMessageBox::Yes);
    QMessageBox::information(nullptr, "a", "b");
    QVERIFY(driver.failures().value(0).startsWith("the box has no such button"));
}

void TestDialogDriver::boxMayDieWithItsParent()
{
    DialogDriver driver;
    auto *parent = new QWidget;
    driver.answerBox(QMessageBox::Ok, [parent](QMessageBox &) { delete parent; });
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::Information, "a", "b", QMessageBox::Ok, parent);
    box->exec();
    QVERIFY(!box);
    QVERIFY(driver.finish());
}

void TestDialogDriver::menuEntryIsTriggered()
{
    DialogDriver driver;
    driver.chooseFromMenu("Second");
    QMenu menu;
    menu.addAction("First");
    menu.addSeparator();
    QAction *second = menu.addAction("Second");
    menu.addAction("Third")->setEnabled(false);
    QCOMPARE(menu.exec(QPoint(10, 10)), second);
    QCOMPARE(driver.menus().at(0).texts, QStringList({"First", "Second", "Third"}));
    QCOMPARE(driver.menus().at(0).enabledTexts, QStringList({"First", "Second"}));
}

void TestDialogDriver::submenuTakesAFurtherAnswer()
{
    DialogDriver driver;
    driver.chooseFromMenu("More");
    driver.chooseFromMenu("Leaf");
    QMenu menu;
    QAction *leaf = menu.addMenu("More")->addAction("Leaf");
    QCOMPARE(menu.exec(QPoint(10, 10)), leaf);
    QCOMPARE(driver.menus().size(), 2);
}

void TestDialogDriver::menuIsDismissed()
{
    DialogDriver driver;
    driver.dismissMenu();
    QMenu menu;
    menu.addAction("First");
    QCOMPARE(menu.exec(QPoint(10, 10)), nullptr);
}

void TestDialogDriver::disabledEntryIsReported()
{
    DialogDriver driver;
    driver.setReporting(false);
    driver.chooseFromMenu("First");
    QMenu menu;
    menu.addAction("First")->setEnabled(false);
    QCOMPARE(menu.exec(QPoint(10, 10)), nullptr);
    QCOMPARE(driver.failures().size(), 1);
}

void TestDialogDriver::dialogIsHandedOver()
{
    DialogDriver driver;
    driver.answerDialogOf<QInputDialog>([](QInputDialog &dialog) { dialog.reject(); });
    QInputDialog dialog;
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    driver.setReporting(false);
    driver.answerDialogOf<QInputDialog>([](QInputDialog &input) { input.accept(); });
    QDialog other;
    QCOMPARE(other.exec(), int(QDialog::Rejected));
    QVERIFY(driver.failures().value(0).startsWith("a dialog of another class appeared"));
}

void TestDialogDriver::textIsEntered()
{
    DialogDriver driver;
    driver.enterText("hello");
    QCOMPARE(QInputDialog::getText(nullptr, "a", "b"), QString("hello"));
}

void TestDialogDriver::nonModalAndProgressDialogsAreLeftAlone()
{
    DialogDriver driver;
    QDialog dialog;
    dialog.show();
    QProgressDialog progress;
    progress.setWindowModality(Qt::ApplicationModal);
    progress.show();
    QDialog bar;
    bar.setModal(true);
    new QProgressBar(&bar);
    bar.show();
    QTest::qWait(10);
    QVERIFY(dialog.isVisible());
    QVERIFY(progress.isVisible());
    QVERIFY(bar.isVisible());
    QCOMPARE(driver.shownCount(), 0);
}

QTEST_MAIN(TestDialogDriver)

#include "tst_dialogdriver.moc"
