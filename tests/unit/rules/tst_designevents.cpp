// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/designevents.h"

#include <OVTE/designtypes.h>
#include <QUtility/ievent.h>

#include <QtTest>

using namespace RTLVAK;

using Values = QMap<QString, QVariant>;

Q_DECLARE_METATYPE(RTLVAK::DesignPrompt)

class TestDesignEvents : public QObject
{
    Q_OBJECT

private slots:
    void subscribedTypesInOrder();
    void sourceTypesAreTwoThreeAndFour_data();
    void sourceTypesAreTwoThreeAndFour();
    void fileEventsAskTheProjectForItsRecord_data();
    void fileEventsAskTheProjectForItsRecord();
    void prompt_data();
    void prompt();
};

static DesignPrompt promptWithoutProject(const QString &type, const Values &values)
{
    return promptFor(QUtil::IEvent(type, values), [](const QString &) { return TE::DesignFile(); });
}

void TestDesignEvents::subscribedTypesInOrder()
{
    const QStringList expected{"TE.File.Add",         "TE.File.Remove",   "TE.File.Change.Enable",
                               "TE.File.Change.Type", "TE.File.Modified", "TE.Option.Change"};
    QCOMPARE(designEventTypes(), expected);
}

void TestDesignEvents::sourceTypesAreTwoThreeAndFour_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("source");
    for (int type = -1; type <= 10; ++type)
        QTest::addRow("%d", type) << type << (type >= 2 && type <= 4);
}

void TestDesignEvents::sourceTypesAreTwoThreeAndFour()
{
    QFETCH(int, type);
    QTEST(isNetlistSource(type), "source");
}

void TestDesignEvents::fileEventsAskTheProjectForItsRecord_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<RTLVAK::DesignPrompt>("expected");
    for (const QString event : {"TE.File.Add", "TE.File.Modified"}) {
        for (int type = 0; type <= 9; ++type) {
            for (const bool enabled : {false, true}) {
                const bool stale = enabled && type >= 2 && type <= 4;
                QTest::addRow("%s type %d %s", qPrintable(event), type, enabled ? "enabled" : "disabled")
                    << event << type << enabled << (stale ? DesignPrompt::DesignFiles : DesignPrompt::None);
            }
        }
    }
}

void TestDesignEvents::fileEventsAskTheProjectForItsRecord()
{
    QFETCH(QString, event);
    QFETCH(int, type);
    QFETCH(bool, enabled);
    QStringList asked;
    const auto project = [&](const QString &path) {
        asked += path;
        return TE::DesignFile{path, type, enabled, {}};
    };
    // What the event says beyond the path does not count.
    const Values values{{"file", "/p/a.v"}, {"type", 2}, {"enable", true}, {"option", "TopModule"}};
    QTEST(promptFor(QUtil::IEvent(event, values), project), "expected");
    QCOMPARE(asked, QStringList{"/p/a.v"});
}

void TestDesignEvents::prompt_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<Values>("values");
    QTest::addColumn<RTLVAK::DesignPrompt>("expected");
    const DesignPrompt none = DesignPrompt::None;
    const DesignPrompt files = DesignPrompt::DesignFiles;
    const DesignPrompt top = DesignPrompt::TopModule;

    for (int type = 0; type <= 9; ++type) {
        const DesignPrompt expected = type >= 2 && type <= 4 ? files : none;
        QTest::addRow("removed, enabled, type %d", type)
            << "TE.File.Remove" << Values{{"type", type}, {"enable", true}} << expected;
        QTest::addRow("removed, disabled, type %d", type)
            << "TE.File.Remove" << Values{{"type", type}, {"enable", false}} << none;
        QTest::addRow("enabled, type %d", type)
            << "TE.File.Change.Enable" << Values{{"type", type}, {"enable", true}} << expected;
        QTest::addRow("disabled, type %d", type)
            << "TE.File.Change.Enable" << Values{{"type", type}, {"enable", false}} << expected;
        QTest::addRow("became type %d", type)
            << "TE.File.Change.Type" << Values{{"type", type}, {"previous", 0}} << expected;
        QTest::addRow("was type %d", type)
            << "TE.File.Change.Type" << Values{{"type", 0}, {"previous", type}} << expected;
    }
    QTest::newRow("source to source") << "TE.File.Change.Type" << Values{{"type", 2}, {"previous", 3}} << files;
    QTest::newRow("include path") << "TE.Option.Change" << Values{{"option", "IncludePath"}} << files;
    QTest::newRow("standard") << "TE.Option.Change" << Values{{"option", "Verilog_Standard"}} << files;
    QTest::newRow("top module") << "TE.Option.Change" << Values{{"option", "TopModule"}} << top;
    for (const QString option : {"Synthesize_tool", "Defines", "topmodule", "TopModule ", ""})
        QTest::addRow("option '%s'", qPrintable(option)) << "TE.Option.Change" << Values{{"option", option}} << none;
    for (const QString type : {"TE.Device.Change", "TE.File", "te.file.remove", "TE.File.Removed", ""})
        QTest::addRow("event '%s'", qPrintable(type))
            << type << Values{{"type", 2}, {"previous", 2}, {"enable", true}, {"option", "TopModule"}} << none;
    for (const QString &type : designEventTypes())
        QTest::addRow("%s without values", qPrintable(type)) << type << Values() << none;
}

void TestDesignEvents::prompt()
{
    QFETCH(QString, event);
    QFETCH(Values, values);
    QTEST(promptWithoutProject(event, values), "expected");
}

QTEST_GUILESS_MAIN(TestDesignEvents)
#include "tst_designevents.moc"
