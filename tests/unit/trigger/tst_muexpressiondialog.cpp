// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/muexpressiondialog.h"

#include "tests/support/dialogdriver.h"
#include "tests/support/widgethelpers.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using RTLVAK::MuExpressionDialog;

class tst_MuExpressionDialog : public QObject
{
    Q_OBJECT

private slots:
    void slotsStandInTheirOrder();
    void startsEmptyWithReadOnlyField();
    void everyButtonShowsItsTextAndAppendsItsToken_data();
    void everyButtonShowsItsTextAndAppendsItsToken();
    void anySequenceCanBeBuilt();
    void backspaceRemovesTheLastToken();
    void clearRemovesEverything();
    void keysWorkAsTheTwoButtons();
    void typingDoesNotReachTheField();
    void onlyOkIsADefaultButton();
    void rightExpressionIsAccepted();
    void wrongExpressionIsRefusedAndStays_data();
    void wrongExpressionIsRefusedAndStays();
    void tokensAreCheckedNotTheText();
    void cancelRejects();
    void enablesAndDisablesNoButton();
    void dialogMayGoUnderItsWarning();
};

static QString shown(const MuExpressionDialog &dialog)
{
    return support::child<QLineEdit>(dialog, "editDisplay").text();
}

static void click(const MuExpressionDialog &dialog, const QStringList &buttons)
{
    for (const QString &name : buttons)
        support::clickButton(dialog, qPrintable(name));
}

static void press(const MuExpressionDialog &dialog, QDialogButtonBox::StandardButton button)
{
    support::child<QDialogButtonBox>(dialog, "buttonBox").button(button)->click();
}

void tst_MuExpressionDialog::slotsStandInTheirOrder()
{
    QCOMPARE(support::ownSlots(MuExpressionDialog::staticMetaObject),
             QStringList({QStringLiteral("accept()"), QStringLiteral("expBtnClicked(QString)"),
                          QStringLiteral("backspaceClicked()"), QStringLiteral("clearAllClicked()")}));
}

void tst_MuExpressionDialog::startsEmptyWithReadOnlyField()
{
    const MuExpressionDialog dialog;
    const auto &field = support::child<QLineEdit>(dialog, "editDisplay");
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Expression"));
    QCOMPARE(field.text(), QString());
    QVERIFY(field.isReadOnly());
    QCOMPARE(field.focusPolicy(), Qt::NoFocus); // else it would swallow Backspace
    QCOMPARE(field.font().family(), QStringLiteral("Courier"));
    QCOMPARE(field.font().pointSize(), 16);
    QVERIFY(field.font().bold());
}

void tst_MuExpressionDialog::everyButtonShowsItsTextAndAppendsItsToken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("token");
    for (int unit = 0; unit < 16; ++unit) {
        const QString name = QStringLiteral("M%1").arg(unit);
        QTest::newRow(qPrintable(QStringLiteral("btn") + name)) << name << name;
    }
    QTest::newRow("btnAND") << "&&"
                            << "&";
    QTest::newRow("btnOR") << "|"
                           << "|";
    QTest::newRow("btnXOR") << "^"
                            << "^";
    QTest::newRow("btnNOT") << "!"
                            << "!";
    QTest::newRow("btnLeftBracket") << "("
                                    << "(";
    QTest::newRow("btnRightBracket") << ")"
                                     << ")";
    QTest::newRow("btnBackspace") << QStringLiteral("\u2190") << "";
    QTest::newRow("btnClear") << "C"
                              << "";
}

void tst_MuExpressionDialog::everyButtonShowsItsTextAndAppendsItsToken()
{
    const MuExpressionDialog dialog;
    const auto &button = support::child<QPushButton>(dialog, QTest::currentDataTag());
    QTEST(button.text(), "text");
    support::clickButton(dialog, QTest::currentDataTag());
    QTEST(shown(dialog), "token");
}

void tst_MuExpressionDialog::anySequenceCanBeBuilt()
{
    const MuExpressionDialog dialog;
    click(dialog, {"btnRightBracket", "btnAND", "btnM15", "btnM1", "btnNOT"});
    QCOMPARE(shown(dialog), QStringLiteral(")&M15M1!"));
    QCOMPARE(dialog.expression(), shown(dialog));
}

void tst_MuExpressionDialog::backspaceRemovesTheLastToken()
{
    const MuExpressionDialog dialog;
    click(dialog, {"btnM0", "btnAND", "btnM15", "btnBackspace"});
    QCOMPARE(shown(dialog), QStringLiteral("M0&"));
    click(dialog, {"btnBackspace", "btnBackspace", "btnBackspace"});
    QCOMPARE(shown(dialog), QString());
}

void tst_MuExpressionDialog::clearRemovesEverything()
{
    const MuExpressionDialog dialog;
    click(dialog, {"btnM0", "btnAND", "btnM15", "btnClear"});
    QCOMPARE(shown(dialog), QString());
    click(dialog, {"btnM3"});
    QCOMPARE(shown(dialog), QStringLiteral("M3"));
}

void tst_MuExpressionDialog::keysWorkAsTheTwoButtons()
{
    MuExpressionDialog dialog;
    dialog.show();
    click(dialog, {"btnM0", "btnAND", "btnM15"});
    QTest::keyClick(&dialog, Qt::Key_Backspace);
    QCOMPARE(shown(dialog), QStringLiteral("M0&"));
    QTest::keyClick(&support::child<QPushButton>(dialog, "btnM0"), Qt::Key_Backspace);
    QCOMPARE(shown(dialog), QStringLiteral("M0"));
    QTest::keyClick(&support::child<QPushButton>(dialog, "btnM0"), Qt::Key_Delete);
    QCOMPARE(shown(dialog), QString());
}

void tst_MuExpressionDialog::typingDoesNotReachTheField()
{
    MuExpressionDialog dialog;
    dialog.show();
    QTest::keyClicks(&support::child<QLineEdit>(dialog, "editDisplay"), QStringLiteral("M0&M1"));
    QCOMPARE(shown(dialog), QString());
}

void tst_MuExpressionDialog::onlyOkIsADefaultButton()
{
    MuExpressionDialog dialog;
    dialog.show();
    const auto &box = support::child<QDialogButtonBox>(dialog, "buttonBox");
    for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->parent() != &box)
            QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
    }
    QVERIFY(box.button(QDialogButtonBox::Ok)->isDefault());
}

void tst_MuExpressionDialog::rightExpressionIsAccepted()
{
    MuExpressionDialog dialog;
    dialog.show();
    click(dialog, {"btnM0", "btnAND", "btnLeftBracket", "btnM1", "btnOR", "btnNOT", "btnM2", "btnRightBracket"});
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.expression(), QStringLiteral("M0&(M1|!M2)"));
}

void tst_MuExpressionDialog::wrongExpressionIsRefusedAndStays_data()
{
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QStringList{} << "";
    QTest::newRow("M0&") << QStringList{"btnM0", "btnAND"} << "M0&";
    QTest::newRow("!!M0") << QStringList{"btnNOT", "btnNOT", "btnM0"} << "!!M0";
    QTest::newRow("(M0") << QStringList{"btnLeftBracket", "btnM0"} << "(M0";
}

void tst_MuExpressionDialog::wrongExpressionIsRefusedAndStays()
{
    QFETCH(QStringList, buttons);
    MuExpressionDialog dialog;
    dialog.show();
    click(dialog, buttons);
    support::DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.boxes().at(0).title, QStringLiteral("Warning"));
    QCOMPARE(driver.boxes().at(0).text, QStringLiteral("Please input the right expression"));
    QCOMPARE(driver.boxes().at(0).icon, QMessageBox::Warning);
    QVERIFY(dialog.isVisible());
    QTEST(shown(dialog), "text");
    click(dialog, {"btnBackspace"});
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_MuExpressionDialog::tokensAreCheckedNotTheText()
{
    MuExpressionDialog dialog;
    dialog.show();
    click(dialog, {"btnM1", "btnM0"}); // reads like M10, which would be an expression
    support::child<QLineEdit>(dialog, "editDisplay").setText(QStringLiteral("M10"));
    support::DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(driver.boxes().size(), 1);
    QVERIFY(dialog.isVisible());
}

void tst_MuExpressionDialog::cancelRejects()
{
    MuExpressionDialog dialog;
    dialog.show();
    click(dialog, {"btnM0"});
    press(dialog, QDialogButtonBox::Cancel);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_MuExpressionDialog::enablesAndDisablesNoButton()
{
    const MuExpressionDialog dialog;
    auto &unit = support::child<QPushButton>(dialog, "btnM12");
    unit.setEnabled(false);
    click(dialog, {"btnM0", "btnClear", "btnM1", "btnBackspace"});
    QVERIFY(!unit.isEnabled());
    QVERIFY(support::child<QPushButton>(dialog, "btnM9").isEnabled());
}

void tst_MuExpressionDialog::dialogMayGoUnderItsWarning()
{
    const QPointer<MuExpressionDialog> dialog = new MuExpressionDialog;
    support::DialogDriver driver;
    driver.actOnBox([dialog](QMessageBox &) { delete dialog.data(); });
    QMetaObject::invokeMethod(dialog.data(), "accept");
    QVERIFY(!dialog);
}

QTEST_MAIN(tst_MuExpressionDialog)
#include "tst_muexpressiondialog.moc"
