// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/matchunitdialog.h>
#include <VakUtils/triggerport.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>

using namespace VAK;

class TestMatchUnitDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void portsWithSignalsAreOffered();
    void boundPortWithoutSignalsStaysVisible();
    void newUnitStartsWithAnyValue();
    void okStoresEverything();
    void cancelChangesNothing();
    void valueOfAnotherWidthIsShownFitted();
    void choosingAnotherPortFitsTheValue();
    void functionThatComparesTakesNoX();
    void rangeShowsASecondValue();
    void boundsInTheWrongOrderAreRefused();
    void wrongLengthIsRefused();
    void numberIsShownAndStored();
    void eachBitHasItsSignal();
    void bitsAreTyped();
    void doubleClickChoosesTheNextCharacter();
    void textIsPastedIntoTheBits();
    void counterIsOffOrCounts();
    void unboundUnitKeepsItsValue();
    void readOnlyShowsAndProtects();
    void widestPortIsUsable();
    void bitTableIsAWholeModel();

private:
    void open(bool readOnly = false) { dialog = std::make_unique<MatchUnitDialog>(unit, readOnly); }
    template <class T>
    T *child(const char *name) const
    {
        return dialog->findChild<T *>(QLatin1String(name));
    }
    QComboBox *combo(const char *name) const { return child<QComboBox>(name); }
    QLineEdit *value0() const { return child<QLineEdit>("editValue0"); }
    QLineEdit *value1() const { return child<QLineEdit>("editValue1"); }
    QString message() const { return child<QLabel>("labelMessage")->text(); }
    QTableView *table() const { return child<QTableView>("tableBits"); }
    QString cell(int row, int column) const { return table()->model()->index(row, column).data().toString(); }
    void choosePort(const char *text) const { combo("comboPort")->setCurrentText(QLatin1String(text)); }
    void chooseFunction(const char *text) const { combo("comboFunction")->setCurrentText(QLatin1String(text)); }

    std::unique_ptr<AoCore> core;
    MatchUnit *unit = nullptr;
    std::unique_ptr<MatchUnitDialog> dialog;
};

void TestMatchUnitDialog::init()
{
    core = std::make_unique<AoCore>(0);
    unit = core->matchUnit(3);
    SignalItem renamed = netSignal(QStringLiteral("u_core/valid"));
    renamed.displayName = QStringLiteral("valid");
    core->getTrigger(0)->setSignalNet({renamed, busSignal(QStringLiteral("u_core/pc"), 2, 0)});
    core->getTrigger(5)->setSignalNet({busSignal(QStringLiteral("wide"), 63, 0)});
}

void TestMatchUnitDialog::cleanup()
{
    dialog.reset();
    core.reset();
}

static QStringList texts(const QComboBox *combo)
{
    QStringList list;
    for (int i = 0; i < combo->count(); ++i)
        list.append(combo->itemText(i));
    return list;
}

void TestMatchUnitDialog::portsWithSignalsAreOffered()
{
    open();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Match Unit M3"));
    QCOMPARE(texts(combo("comboPort")), QStringList({"(none)", "Trigger Port 0 (4 bits)", "Trigger Port 5 (64 bits)"}));
    QCOMPARE(combo("comboPort")->currentText(), QStringLiteral("(none)"));
    QCOMPARE(texts(combo("comboFunction")), matchFunctionTexts());
}

void TestMatchUnitDialog::boundPortWithoutSignalsStaysVisible()
{
    unit->setTriggerPort(core->getTrigger(9));
    unit->setValue0(QStringLiteral("01"));
    open();
    QCOMPARE(combo("comboPort")->currentText(), QStringLiteral("Trigger Port 9 (no signals)"));
    QVERIFY(!value0()->isEnabled());
    dialog->accept();
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(unit->triggerPort(), core->getTrigger(9));
    QCOMPARE(unit->value0(), QStringLiteral("01"));
}

void TestMatchUnitDialog::newUnitStartsWithAnyValue()
{
    open();
    QVERIFY(!value0()->isEnabled());
    choosePort("Trigger Port 0 (4 bits)");
    QVERIFY(value0()->isEnabled());
    QCOMPARE(value0()->text(), QStringLiteral("XXXX"));
    QVERIFY(child<QLabel>("labelFitted")->isHidden());
    dialog->accept();
    QCOMPARE(unit->value0(), QStringLiteral("XXXX"));
    QCOMPARE(unit->triggerPort(), core->getTrigger(0));
    QVERIFY(!unit->isEnabled()); // for the caller to decide
}

void TestMatchUnitDialog::okStoresEverything()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    chooseFunction("out of range");
    value0()->setText(QStringLiteral("2"));
    value1()->setText(QStringLiteral("0xC"));
    combo("comboCounter")->setCurrentText(QStringLiteral("Consecutive"));
    child<QSpinBox>("spinCount")->setValue(12);
    QTest::mouseClick(child<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(unit->triggerPort(), core->getTrigger(0));
    QCOMPARE(unit->function(), MatchFunction::OutOfRange);
    QCOMPARE(unit->value0(), QStringLiteral("0010"));
    QCOMPARE(unit->value1(), QStringLiteral("1100"));
    QCOMPARE(unit->counterMode(), CounterMode::Consecutive);
    QCOMPARE(unit->counterValue(), 12);
}

void TestMatchUnitDialog::cancelChangesNothing()
{
    unit->setTriggerPort(core->getTrigger(0));
    unit->setValue0(QStringLiteral("01"));
    open();
    chooseFunction(">");
    value0()->setText(QStringLiteral("1111"));
    combo("comboCounter")->setCurrentIndex(1);
    choosePort("Trigger Port 5 (64 bits)");
    QTest::mouseClick(child<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
    QCOMPARE(unit->triggerPort(), core->getTrigger(0));
    QCOMPARE(unit->function(), MatchFunction::Equal);
    QCOMPARE(unit->value0(), QStringLiteral("01"));
    QCOMPARE(unit->counterMode(), CounterMode::Off);
}

void TestMatchUnitDialog::valueOfAnotherWidthIsShownFitted()
{
    unit->setTriggerPort(core->getTrigger(0));
    unit->setValue0(QStringLiteral("R1"));
    open();
    QCOMPARE(value0()->text(), QStringLiteral("XXR1"));
    QVERIFY(!child<QLabel>("labelFitted")->isHidden());
    QCOMPARE(child<QLabel>("labelFitted")->text(),
             QStringLiteral("The value had 2 bits, the port has 4: it is shown fitted."));
    QCOMPARE(unit->value0(), QStringLiteral("R1"));
    dialog->accept();
    QCOMPARE(unit->value0(), QStringLiteral("XXR1"));
}

void TestMatchUnitDialog::choosingAnotherPortFitsTheValue()
{
    unit->setTriggerPort(core->getTrigger(5));
    unit->setValue0(QStringLiteral("1010")); // bits, however much it looks like a number
    open();
    QCOMPARE(value0()->text(), QString(60, QLatin1Char('X')) + QStringLiteral("1010"));
    choosePort("Trigger Port 0 (4 bits)");
    QCOMPARE(value0()->text(), QStringLiteral("1010"));
    unit->setValue0(QString(60, QLatin1Char('0')) + QStringLiteral("1RFX"));
    open();
    QVERIFY(child<QLabel>("labelFitted")->isHidden());
    choosePort("Trigger Port 0 (4 bits)");
    QCOMPARE(value0()->text(), QStringLiteral("1RFX"));
    QVERIFY(!child<QLabel>("labelFitted")->isHidden());
}

void TestMatchUnitDialog::functionThatComparesTakesNoX()
{
    unit->setTriggerPort(core->getTrigger(0));
    unit->setValue0(QStringLiteral("01XX"));
    open();
    chooseFunction(">=");
    QCOMPARE(message(), QStringLiteral("\"X\" cannot stand in this value."));
    dialog->accept();
    QVERIFY(dialog->result() != QDialog::Accepted);
    QCOMPARE(unit->function(), MatchFunction::Equal);
    value0()->setText(QStringLiteral("0111"));
    QCOMPARE(message(), QStringLiteral("7 = 0x7"));
    dialog->accept();
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    open();
    choosePort("Trigger Port 0 (4 bits)");
    chooseFunction("==");
    value0()->setText(QStringLiteral("XXXX"));
    chooseFunction("<");
    QCOMPARE(value0()->text(), QStringLiteral("0000")); // it said nothing, and says nothing
}

void TestMatchUnitDialog::rangeShowsASecondValue()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    QVERIFY(value1()->isHidden());
    QCOMPARE(table()->model()->columnCount(), 3);
    chooseFunction("in range");
    QVERIFY(!value1()->isHidden());
    QCOMPARE(table()->model()->columnCount(), 4);
    QCOMPARE(value0()->text(), QStringLiteral("0000"));
    QCOMPARE(value1()->text(), QStringLiteral("1111"));
    QCOMPARE(message(), QStringLiteral("0 = 0x0\n15 = 0xF"));
    chooseFunction("==");
    dialog->accept();
    QCOMPARE(unit->value1(), QString());
}

void TestMatchUnitDialog::boundsInTheWrongOrderAreRefused()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    chooseFunction("in range");
    value0()->setText(QStringLiteral("10"));
    value1()->setText(QStringLiteral("9"));
    QCOMPARE(message(), QStringLiteral("The upper bound is below the lower bound."));
    dialog->accept();
    QVERIFY(dialog->result() != QDialog::Accepted);
    QVERIFY(!unit->triggerPort());
    value1()->setText(QStringLiteral("10"));
    dialog->accept();
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(unit->value1(), QStringLiteral("1010"));
}

void TestMatchUnitDialog::wrongLengthIsRefused()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    value0()->setText(QStringLiteral("01X"));
    QCOMPARE(message(), QStringLiteral("The value has 3 of 4 bits."));
    QCOMPARE(child<QLabel>("labelMessage")->palette().color(QPalette::WindowText), QColor(Qt::red));
    QCOMPARE(cell(0, 2), QString());
    dialog->accept();
    QVERIFY(dialog->result() != QDialog::Accepted);
    QCOMPARE(value0()->selectedText(), QStringLiteral("01X"));
    value0()->setText(QStringLiteral("01X1"));
    QVERIFY(message().isEmpty());
    QVERIFY(child<QLabel>("labelMessage")->palette().color(QPalette::WindowText) != QColor(Qt::red));
}

void TestMatchUnitDialog::numberIsShownAndStored()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    value0()->setText(QStringLiteral("0xa"));
    QCOMPARE(message(), QStringLiteral("10 = 0xA"));
    QCOMPARE(cell(0, 2) + cell(1, 2) + cell(2, 2) + cell(3, 2), QStringLiteral("1010"));
    dialog->accept();
    QCOMPARE(unit->value0(), QStringLiteral("1010"));
}

void TestMatchUnitDialog::eachBitHasItsSignal()
{
    open();
    QCOMPARE(table()->model()->rowCount(), 0);
    choosePort("Trigger Port 0 (4 bits)");
    QCOMPARE(table()->model()->rowCount(), 4);
    QCOMPARE(cell(0, 0), QStringLiteral("3"));
    QCOMPARE(cell(3, 0), QStringLiteral("0"));
    QCOMPARE(cell(0, 1), QStringLiteral("valid"));
    QCOMPARE(table()->model()->index(0, 1).data(Qt::ToolTipRole).toString(), QStringLiteral("u_core/valid"));
    QCOMPARE(cell(1, 1), QStringLiteral("u_core/pc[2]"));
    QCOMPARE(cell(3, 1), QStringLiteral("u_core/pc[0]"));
}

void TestMatchUnitDialog::bitsAreTyped()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    table()->setCurrentIndex(table()->model()->index(0, 2));
    QTest::keyClicks(table(), QStringLiteral("1rq0f"));
    QCOMPARE(value0()->text(), QStringLiteral("1R0F"));
    QCOMPARE(table()->currentIndex().row(), 3);
    chooseFunction("in range");
    value0()->setText(QStringLiteral("0000"));
    table()->setCurrentIndex(table()->model()->index(3, 3));
    QTest::keyClicks(table(), QStringLiteral("x0"));
    QCOMPARE(value1()->text(), QStringLiteral("1110"));
}

void TestMatchUnitDialog::doubleClickChoosesTheNextCharacter()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    dialog->show();
    const QModelIndex bit = table()->model()->index(1, 2);
    QString seen;
    for (int i = 0; i < 7; ++i) {
        emit table()->doubleClicked(bit);
        seen += value0()->text().at(1);
    }
    QCOMPARE(seen, QStringLiteral("RFBN01X"));
    emit table()->doubleClicked(table()->model()->index(1, 1));
    QCOMPARE(value0()->text(), QStringLiteral("XXXX"));
    table()->setCurrentIndex(bit);
    QTest::keyClick(table(), Qt::Key_Space);
    QCOMPARE(value0()->text(), QStringLiteral("XRXX"));
}

void TestMatchUnitDialog::textIsPastedIntoTheBits()
{
    open();
    choosePort("Trigger Port 0 (4 bits)");
    QApplication::clipboard()->setText(QStringLiteral(" 0b1_10\n"));
    QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(value0()->text(), QStringLiteral("0b1_10"));
    QCOMPARE(cell(0, 2) + cell(1, 2) + cell(2, 2) + cell(3, 2), QStringLiteral("0110"));
}

void TestMatchUnitDialog::counterIsOffOrCounts()
{
    unit->setCounterMode(CounterMode::Total);
    unit->setCounterValue(9);
    open();
    QCOMPARE(combo("comboCounter")->currentText(), QStringLiteral("Total"));
    QCOMPARE(child<QSpinBox>("spinCount")->value(), 9);
    QCOMPARE(child<QSpinBox>("spinCount")->minimum(), 1);
    QCOMPARE(child<QSpinBox>("spinCount")->maximum(), 65535);
    QCOMPARE(child<QLabel>("labelCounter")->text(), QStringLiteral("True from matching sample number 9 on"));
    combo("comboCounter")->setCurrentText(QStringLiteral("Off"));
    QVERIFY(!child<QSpinBox>("spinCount")->isEnabled());
    dialog->accept();
    QCOMPARE(unit->counterMode(), CounterMode::Off);
    QCOMPARE(unit->counterValue(), 1);
}

void TestMatchUnitDialog::unboundUnitKeepsItsValue()
{
    unit->setTriggerPort(core->getTrigger(0));
    unit->setFunction(MatchFunction::Greater);
    unit->setValue0(QStringLiteral("0101"));
    open();
    choosePort("(none)");
    QVERIFY(!value0()->isEnabled());
    QVERIFY(!table()->isEnabled());
    dialog->accept();
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QVERIFY(!unit->triggerPort());
    QCOMPARE(unit->function(), MatchFunction::Greater);
    QCOMPARE(unit->value0(), QStringLiteral("0101"));
}

void TestMatchUnitDialog::readOnlyShowsAndProtects()
{
    unit->setTriggerPort(core->getTrigger(0));
    unit->setValue0(QStringLiteral("01XR"));
    open(true);
    QCOMPARE(value0()->text(), QStringLiteral("01XR"));
    QVERIFY(value0()->isReadOnly());
    for (const char *name : {"comboPort", "comboFunction", "comboCounter"})
        QVERIFY2(!combo(name)->isEnabled(), name);
    QVERIFY(!child<QSpinBox>("spinCount")->isEnabled());
    table()->setCurrentIndex(table()->model()->index(0, 2));
    QTest::keyClicks(table(), QStringLiteral("1"));
    QCOMPARE(value0()->text(), QStringLiteral("01XR"));
    QVERIFY(!child<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok));
    QVERIFY(child<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Close));
}

void TestMatchUnitDialog::widestPortIsUsable()
{
    open();
    choosePort("Trigger Port 5 (64 bits)");
    QCOMPARE(value0()->text(), QString(64, QLatin1Char('X')));
    QCOMPARE(table()->model()->rowCount(), 64);
    value0()->setText(QStringLiteral("0xFFFF_FFFF_FFFF_FFFE"));
    QCOMPARE(message(), QStringLiteral("18446744073709551614 = 0xFFFFFFFFFFFFFFFE"));
    QCOMPARE(cell(63, 2), QStringLiteral("0"));
    dialog->show();
    QVERIFY(table()->columnWidth(1) > 200);
}

void TestMatchUnitDialog::bitTableIsAWholeModel()
{
    open();
    const QAbstractItemModelTester tester(table()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    choosePort("Trigger Port 5 (64 bits)");
    chooseFunction("in range");
    value0()->setText(QStringLiteral("1"));
    choosePort("Trigger Port 0 (4 bits)");
    chooseFunction("==");
    choosePort("(none)");
}

QTEST_MAIN(TestMatchUnitDialog)
#include "tst_matchunitdialog.moc"
