// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "triggerpage.h"

#include "trigger/muexpressiondialog.h"

#include "tests/support/doubles.h"

#include <QPushButton>
#include <QtTest>

class tst_TriggerExpressions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void expressionsOfTheCoreAreShown();
    void menuAddsAnExpression();
    void removeIsOfferedForASelection();
    void removeDeletesEverySelectedRow();
    void doubleClickOnEmptyPlaceAddsAnExpression();
    void doubleClickOnARowEditsIt();
    void cancellingTheExpressionDialogKeepsTheText();
    void expressionDialogStartsEmptyAlsoWhenEditing();
    void sixteenExpressionsAreTheMost();
    void dynamicModeDisablesButtonsOfHighUnits();
    void highUnitsAreGreyInDynamicModeOnly();
};

void tst_TriggerExpressions::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_TriggerExpressions::expressionsOfTheCoreAreShown()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0&M1"), QStringLiteral("M12"), QStringLiteral("M0&M1")});
    QCOMPARE(bench.expressionTexts(), bench.core.expressions());
    QCOMPARE(bench.expressionColours().join(u' '), QStringLiteral("black black black"));
}

void tst_TriggerExpressions::menuAddsAnExpression()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0")});
    bench.page();
    support::DialogDriver driver;
    driver.chooseFromMenu(QStringLiteral("Add"));
    composeExpression(driver, {"btnM1", "btnOR", "btnM2"});
    bench.askForMenu();
    QCOMPARE(driver.menus().at(0).texts, QStringList({QStringLiteral("Add"), QStringLiteral("Remove")}));
    QCOMPARE(bench.expressionTexts(), QStringList({QStringLiteral("M0"), QStringLiteral("M1|M2")}));
    QVERIFY(bench.expressions().item(1)->data(Qt::ForegroundRole).isValid());
    QCOMPARE(bench.expressionColours().constLast(), QStringLiteral("black"));
    QVERIFY(bench.core.expressions().size() == 1);
}

void tst_TriggerExpressions::removeIsOfferedForASelection()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1")});
    bench.page();
    support::DialogDriver driver;
    driver.dismissMenu();
    bench.askForMenu();
    QCOMPARE(driver.menus().at(0).enabledTexts, QStringList{QStringLiteral("Add")});
    bench.expressions().item(1)->setSelected(true);
    driver.dismissMenu();
    bench.askForMenu();
    QCOMPARE(driver.menus().at(1).enabledTexts, QStringList({QStringLiteral("Add"), QStringLiteral("Remove")}));
}

void tst_TriggerExpressions::removeDeletesEverySelectedRow()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1"), QStringLiteral("M2")});
    bench.expressions().item(0)->setSelected(true);
    bench.expressions().item(2)->setSelected(true);
    support::DialogDriver driver;
    driver.chooseFromMenu(QStringLiteral("Remove"));
    bench.askForMenu();
    QCOMPARE(bench.expressionTexts(), QStringList{QStringLiteral("M1")});
}

void tst_TriggerExpressions::doubleClickOnEmptyPlaceAddsAnExpression()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0")});
    bench.page();
    support::DialogDriver driver;
    composeExpression(driver, {"btnM3"});
    bench.doubleClickEmptyPlace();
    QCOMPARE(bench.expressionTexts(), QStringList({QStringLiteral("M0"), QStringLiteral("M3")}));
    cancelDialog(driver);
    bench.doubleClickEmptyPlace();
    QCOMPARE(bench.expressionTexts().size(), 2);
}

void tst_TriggerExpressions::doubleClickOnARowEditsIt()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1")});
    bench.page();
    support::DialogDriver driver;
    composeExpression(driver, {"btnNOT", "btnM5"});
    bench.doubleClickExpression(0);
    QCOMPARE(bench.expressionTexts(), QStringList({QStringLiteral("!M5"), QStringLiteral("M1")}));
    QCOMPARE(driver.shownCount(), 1);
}

void tst_TriggerExpressions::cancellingTheExpressionDialogKeepsTheText()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0")});
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    cancelDialog(driver);
    bench.doubleClickExpression(0);
    QCOMPARE(bench.expressionTexts(), QStringList{QStringLiteral("M0")});
    QCOMPARE(spy.count(), 0);
}

void tst_TriggerExpressions::expressionDialogStartsEmptyAlsoWhenEditing()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0&M1")});
    bench.page();
    support::DialogDriver driver;
    QString shown = QStringLiteral("nothing asked");
    driver.answerDialogOf<RTLVAK::MuExpressionDialog>([&shown](RTLVAK::MuExpressionDialog &dialog) {
        shown = dialog.expression();
        dialog.reject();
    });
    bench.doubleClickExpression(0);
    QCOMPARE(shown, QString());
}

void tst_TriggerExpressions::sixteenExpressionsAreTheMost()
{
    TriggerBench bench;
    QStringList full;
    for (int i = 0; i < 16; ++i)
        full.append(QStringLiteral("M%1").arg(i));
    bench.core.setExpression(full);
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    bench.page().resize(900, 700); // room below the sixteenth row
    support::DialogDriver driver;
    driver.chooseFromMenu(QStringLiteral("Add"));
    driver.answerBox(QMessageBox::Ok);
    bench.askForMenu();
    driver.answerBox(QMessageBox::Ok);
    bench.doubleClickEmptyPlace();
    QCOMPARE(driver.boxes().size(), 2);
    QCOMPARE(driver.boxes().at(0).title, QStringLiteral("Warning"));
    QCOMPARE(driver.boxes().at(1).title, QStringLiteral("Error"));
    for (const support::BoxRecord &box : driver.boxes()) {
        QCOMPARE(box.text, QStringLiteral("Support 16 expressions at most."));
        QCOMPARE(box.icon, QMessageBox::Warning);
    }
    QCOMPARE(bench.expressionTexts(), full);
    QCOMPARE(spy.count(), 0);
    composeExpression(driver, {"btnM0", "btnAND", "btnM1"});
    bench.doubleClickExpression(15);
    QCOMPARE(bench.expressionTexts().constLast(), QStringLiteral("M0&M1"));
}

static QStringList disabledUnits(TriggerBench &bench)
{
    QStringList disabled;
    support::DialogDriver driver;
    driver.answerDialog([&disabled](QDialog &dialog) {
        for (int unit = 0; unit < 16; ++unit) {
            const QString name = QStringLiteral("btnM%1").arg(unit);
            if (!dialog.findChild<QPushButton *>(name)->isEnabled())
                disabled.append(name);
        }
        dialog.reject();
    });
    bench.doubleClickEmptyPlace();
    return disabled;
}

void tst_TriggerExpressions::dynamicModeDisablesButtonsOfHighUnits()
{
    TriggerBench bench;
    QCOMPARE(disabledUnits(bench), QStringList());
    bench.mode().setCurrentIndex(1);
    QCOMPARE(disabledUnits(bench),
             QStringList({QStringLiteral("btnM10"), QStringLiteral("btnM11"), QStringLiteral("btnM12"),
                          QStringLiteral("btnM13"), QStringLiteral("btnM14"), QStringLiteral("btnM15")}));
}

void tst_TriggerExpressions::highUnitsAreGreyInDynamicModeOnly()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M1"), QStringLiteral("M1&M10"), QStringLiteral("M11")});
    bench.mode().setCurrentIndex(1);
    QCOMPARE(bench.expressionColours().join(u' '), QStringLiteral("black grey grey"));
    QCOMPARE(bench.expressions().item(0)->toolTip(), QString());
    QCOMPARE(bench.expressions().item(1)->toolTip(), QStringLiteral("M10 to M15 are not available in Dynamic mode"));
    bench.mode().setCurrentIndex(0);
    QCOMPARE(bench.expressionColours().join(u' '), QStringLiteral("black black black"));
    QCOMPARE(bench.expressions().item(1)->toolTip(), QString());
}

QTEST_MAIN(tst_TriggerExpressions)
#include "tst_triggerexpressions.moc"
