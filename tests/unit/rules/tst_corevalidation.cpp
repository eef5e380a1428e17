// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakenetlist.h"
#include "rules/corevalidation.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>
#include <netcatcher/rtlnetlist.h>

#include <QtTest>

#include <functional>
#include <memory>

using namespace RTLVAK;

/// Changes a core that is without errors.
using Damage = std::function<void(VAK::AoCore &)>;

Q_DECLARE_METATYPE(Damage)

class TestCoreValidation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void completeCoreIsCorrect();
    void anEmptyCoreListValidatesAsCorrect();
    void oneDamageGivesItsLine_data();
    void oneDamageGivesItsLine();
    void aNewCoreHasFiveErrorsInOrder();
    void twoCoresWithoutExpressionGiveTwoLines();
    void thePrefixIsTheCoresNumberNotItsPosition();
    void anExpressionNamingADisabledUnitTwiceGivesTwoIdenticalLines();
    void unavailablePortGivesNoLengthLine();
    void everyExpressionAndUnitIsExamined();
    void numbersBeyondTheUnitsCountAsNotEnabled_data();
    void numbersBeyondTheUnitsCountAsNotEnabled();
    void placeholdersInAnExpressionAreNotFilled();
    void withoutNetlistNoClockExists();
    void aBitOfABusCanBeTheClock();
    void onlyEnabledAndActiveSignalsAreCaptured_data();
    void onlyEnabledAndActiveSignalsAreCaptured();
    void validationChangesNothing();
    void theErrorTextIsOptional();

    void liteCoreIsCheckedForClockAndSignals_data();
    void liteCoreIsCheckedForClockAndSignals();
    void aLiteCoreWithoutAnythingYieldsClockFirst();
    void anEmptyLiteListValidatesAsCorrect();

private:
    QString errorsOf(const QList<VAK::AoCore *> &cores) const;
    QString errorsOf(VAK::AoCore &core) const { return errorsOf(QList<VAK::AoCore *>{&core}); }

    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;
};

static VAK::SignalItem signal(const QString &name, int active = 1, bool enabled = true)
{
    VAK::SignalItem item;
    item.name = name;
    item.active = active;
    item.enabled = enabled;
    return item;
}

/// M0 and M2 in use on port 1 of two bits, the expression M0&M2, a clock and one captured signal.
static std::unique_ptr<VAK::AoCore> completeCore(int index = 0)
{
    auto core = std::make_unique<VAK::AoCore>(index);
    core->getTrigger(1)->setSignalNet({signal("a"), signal("b")});
    for (const int unit : {0, 2}) {
        core->matchUnit(unit)->setTriggerPort(core->getTrigger(1));
        core->matchUnit(unit)->setValue0("1X");
        core->matchUnit(unit)->setEnabled(true);
    }
    core->setExpression({"M0&M2"});
    core->setSampleClock("clk");
    core->setDataSignal({signal("a")});
    return core;
}

QString TestCoreValidation::errorsOf(const QList<VAK::AoCore *> &cores) const
{
    QString errors("left over");
    const bool valid = validateCores(cores, netlist.get(), &errors);
    return valid == errors.isEmpty() ? errors : QString("result and text disagree");
}

void TestCoreValidation::initTestCase()
{
    fakes::Instance top("top");
    top.net("clk").net("stuck", fakes::Unusable).bus("data", 1, 0);
    netlist.reset(fakes::makeNetlist(top));
}

void TestCoreValidation::completeCoreIsCorrect()
{
    QCOMPARE(errorsOf(*completeCore()), QString());
}

void TestCoreValidation::anEmptyCoreListValidatesAsCorrect()
{
    QCOMPARE(errorsOf(QList<VAK::AoCore *>()), QString());
    QVERIFY(validateCores({}, nullptr));
}

void TestCoreValidation::oneDamageGivesItsLine_data()
{
    QTest::addColumn<Damage>("damage");
    QTest::addColumn<QString>("line");

    QTest::newRow("no enabled match unit") << Damage([](VAK::AoCore &core) {
        core.matchUnit(0)->setEnabled(false);
        core.matchUnit(2)->setEnabled(false);
        core.setExpression({"!"});
    }) << "Core 0: No available match units";
    QTest::newRow("unit without port") << Damage([](VAK::AoCore &core) { core.matchUnit(2)->setTriggerPort(nullptr); })
                                       << "Core 0: M2 doesn't bind a trigger port";
    QTest::newRow("port unavailable") << Damage([](VAK::AoCore &core) {
        core.matchUnit(2)->setTriggerPort(core.getTrigger(7));
    }) << "Core 0: Trigger port 7 for M2 is not available";
    QTest::newRow("value too short") << Damage([](VAK::AoCore &core) { core.matchUnit(2)->setValue0("1"); })
                                     << "Core 0: Length of M2 is not equal to trigger port 1";
    QTest::newRow("value too long") << Damage([](VAK::AoCore &core) { core.matchUnit(0)->setValue0("1XX"); })
                                    << "Core 0: Length of M0 is not equal to trigger port 1";
    QTest::newRow("no expression") << Damage([](VAK::AoCore &core) { core.setExpression({}); })
                                   << "Core 0: No expressions specified";
    QTest::newRow("disabled unit in an expression")
        << Damage([](VAK::AoCore &core) { core.setExpression({"M0&(M1|M2)"}); })
        << "Core 0: M1 in expression \"M0&(M1|M2)\" is not enable";
    QTest::newRow("no clock") << Damage([](VAK::AoCore &core) { core.setSampleClock({}); })
                              << "Core 0: No sample clock specified";
    QTest::newRow("unknown clock") << Damage([](VAK::AoCore &core) { core.setSampleClock("clk2"); })
                                   << "Core 0: The specified sample clock does not exist";
    QTest::newRow("clock in other case") << Damage([](VAK::AoCore &core) { core.setSampleClock("CLK"); })
                                         << "Core 0: The specified sample clock does not exist";
    QTest::newRow("unusable clock") << Damage([](VAK::AoCore &core) { core.setSampleClock("stuck"); })
                                    << "Core 0: Invalid sampling clock selected";
    QTest::newRow("no capture signal") << Damage([](VAK::AoCore &core) { core.setDataSignal({}); })
                                       << "Core 0: No capture signals specified";
    QTest::newRow("no captured signal") << Damage([](VAK::AoCore &core) {
        core.setDataSignal({signal("a", 0), signal("b", 1, false)});
    }) << "Core 0: No capture signals specified";
}

void TestCoreValidation::oneDamageGivesItsLine()
{
    QFETCH(Damage, damage);
    const auto core = completeCore();
    damage(*core);
    QTEST(errorsOf(*core), "line");
}

void TestCoreValidation::aNewCoreHasFiveErrorsInOrder()
{
    VAK::AoCore core(0);
    QCOMPARE(errorsOf(core), QString("Core 0: No available trigger ports\n"
                                     "Core 0: No available match units\n"
                                     "Core 0: No expressions specified\n"
                                     "Core 0: No sample clock specified\n"
                                     "Core 0: No capture signals specified"));
}

void TestCoreValidation::twoCoresWithoutExpressionGiveTwoLines()
{
    const auto first = completeCore(0);
    const auto second = completeCore(1);
    first->setExpression({});
    second->setExpression({});
    QCOMPARE(errorsOf({first.get(), second.get()}),
             QString("Core 0: No expressions specified\nCore 1: No expressions specified"));
}

void TestCoreValidation::thePrefixIsTheCoresNumberNotItsPosition()
{
    const auto core = completeCore(9);
    core->setSampleClock({});
    QCOMPARE(errorsOf(*core), QString("Core 9: No sample clock specified"));
}

void TestCoreValidation::anExpressionNamingADisabledUnitTwiceGivesTwoIdenticalLines()
{
    const auto core = completeCore();
    core->setExpression({"M1&!M1"});
    QCOMPARE(errorsOf(*core), QString("Core 0: M1 in expression \"M1&!M1\" is not enable\n"
                                      "Core 0: M1 in expression \"M1&!M1\" is not enable"));
}

void TestCoreValidation::unavailablePortGivesNoLengthLine()
{
    const auto core = completeCore();
    core->matchUnit(2)->setTriggerPort(core->getTrigger(0));
    core->matchUnit(2)->setValue0("0101");
    QCOMPARE(errorsOf(*core), QString("Core 0: Trigger port 0 for M2 is not available"));
}

void TestCoreValidation::everyExpressionAndUnitIsExamined()
{
    const auto core = completeCore(3);
    core->matchUnit(0)->setValue0({});
    core->matchUnit(2)->setTriggerPort(nullptr);
    core->setExpression({"M0", "M12&M3", "M2", "M15"});
    QCOMPARE(errorsOf(*core), QString("Core 3: Length of M0 is not equal to trigger port 1\n"
                                      "Core 3: M2 doesn't bind a trigger port\n"
                                      "Core 3: M12 in expression \"M12&M3\" is not enable\n"
                                      "Core 3: M3 in expression \"M12&M3\" is not enable\n"
                                      "Core 3: M15 in expression \"M15\" is not enable"));
}

void TestCoreValidation::numbersBeyondTheUnitsCountAsNotEnabled_data()
{
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("shown");
    QTest::newRow("first beyond") << "16"
                                  << "16";
    QTest::newRow("far beyond") << "123456"
                                << "123456";
    QTest::newRow("leading zeros") << "007"
                                   << "7";
    QTest::newRow("largest int") << "2147483647"
                                 << "2147483647";
    QTest::newRow("too large for an int") << "2147483648"
                                          << "2147483648";
    QTest::newRow("far too large") << "00099999999999999999999"
                                   << "00099999999999999999999";
    QTest::newRow("not decimal digits of ASCII") << QString(QChar(0x0660)) << QString(QChar(0x0660));
}

void TestCoreValidation::numbersBeyondTheUnitsCountAsNotEnabled()
{
    QFETCH(QString, found);
    QFETCH(QString, shown);
    const auto core = completeCore();
    core->setExpression({"M" + found});
    QCOMPARE(errorsOf(*core), "Core 0: M" + shown + " in expression \"M" + found + "\" is not enable");
}

void TestCoreValidation::placeholdersInAnExpressionAreNotFilled()
{
    const auto core = completeCore();
    core->setExpression({"%1&%2"});
    QCOMPARE(errorsOf(*core), QString("Core 0: M1 in expression \"%1&%2\" is not enable"));
}

void TestCoreValidation::withoutNetlistNoClockExists()
{
    const auto core = completeCore();
    QString errors;
    QVERIFY(!validateCores({core.get()}, nullptr, &errors));
    QCOMPARE(errors, QString("Core 0: The specified sample clock does not exist"));
}

void TestCoreValidation::aBitOfABusCanBeTheClock()
{
    const auto core = completeCore();
    core->setSampleClock("data[1]");
    QCOMPARE(errorsOf(*core), QString());
}

void TestCoreValidation::onlyEnabledAndActiveSignalsAreCaptured_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("active");
    QTest::addColumn<bool>("captured");
    QTest::newRow("enabled and active") << true << 1 << true;
    QTest::newRow("inactive") << true << 0 << false;
    QTest::newRow("unusable") << false << 1 << false;
    QTest::newRow("unusable and inactive") << false << 0 << false;
}

void TestCoreValidation::onlyEnabledAndActiveSignalsAreCaptured()
{
    QFETCH(bool, enabled);
    QFETCH(int, active);
    const auto core = completeCore();
    core->setDataSignal({signal("x", 0), signal("a", active, enabled)});
    QTEST(errorsOf(*core).isEmpty(), "captured");
}

void TestCoreValidation::validationChangesNothing()
{
    const auto core = completeCore(5);
    const QList<VAK::SignalItem> data{signal("gone", 0), signal("b", 1, false)};
    core->setDataSignal(data);
    core->setallCapSignal(data);
    core->setExpression({"M9"});
    core->setSampleClock("gone");
    errorsOf(*core);
    QCOMPARE(core->index(), 5);
    QCOMPARE(core->getDataSignal(), data);
    QCOMPARE(core->getallCapSignal(), data);
    QCOMPARE(core->expressions(), QStringList{"M9"});
    QCOMPARE(core->sampleClock(), QString("gone"));
    QCOMPARE(core->enabledMatchUnits().size(), 2);
}

void TestCoreValidation::theErrorTextIsOptional()
{
    const auto good = completeCore();
    VAK::AoCore bad(1);
    QVERIFY(validateCores({good.get()}, netlist.get()));
    QVERIFY(!validateCores({good.get(), &bad}, netlist.get()));
}

void TestCoreValidation::liteCoreIsCheckedForClockAndSignals_data()
{
    QTest::addColumn<QString>("clock");
    QTest::addColumn<int>("active");
    QTest::addColumn<QString>("errors");
    QTest::newRow("correct") << "clk" << 1 << "";
    QTest::newRow("unknown clock") << "nothing" << 1 << "Core 4: The specified sample clock does not exist";
    QTest::newRow("unusable clock") << "stuck" << 1 << "Core 4: Invalid sampling clock selected";
    QTest::newRow("nothing captured") << "clk" << 0 << "Core 4: No capture signals specified";
    QTest::newRow("both") << "stuck" << 0
                          << "Core 4: Invalid sampling clock selected\nCore 4: No capture signals specified";
}

void TestCoreValidation::liteCoreIsCheckedForClockAndSignals()
{
    QFETCH(QString, clock);
    QFETCH(int, active);
    VAK::AOCore_Lite core(4);
    core.setSampleClock(clock);
    core.setDataSignals({signal("a", active)});
    QString errors;
    const bool valid = validateLiteCores({&core}, netlist.get(), &errors);
    QTEST(errors, "errors");
    QCOMPARE(valid, errors.isEmpty());
}

void TestCoreValidation::aLiteCoreWithoutAnythingYieldsClockFirst()
{
    VAK::AOCore_Lite first(0);
    VAK::AOCore_Lite second(1);
    QString errors;
    QVERIFY(!validateLiteCores({&first, &second}, nullptr, &errors));
    QCOMPARE(errors, QString("Core 0: No sample clock specified\nCore 0: No capture signals specified\n"
                             "Core 1: No sample clock specified\nCore 1: No capture signals specified"));
}

void TestCoreValidation::anEmptyLiteListValidatesAsCorrect()
{
    QString errors("left over");
    QVERIFY(validateLiteCores({}, nullptr, &errors));
    QCOMPARE(errors, QString());
}

QTEST_GUILESS_MAIN(TestCoreValidation)
#include "tst_corevalidation.moc"
