// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "analyzertest.h"

#include "support/widgethelpers.h"

#include "hostlibs/ovte/projectengine.h"
#include "workbench/codeeditor.h"
#include "workbench/mainwindow.h"
#include "workbench/textview.h"

#include <OVTE/designmanager.h>

#include <QAction>
#include <QLabel>
#include <QTest>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

/// What an open analyzer does when a person changes the design around it.
class TestDesignChange : public AnalyzerTest
{
    Q_OBJECT

private slots:
    void savedSourceOffersAReload();
    void everyChangeOfTheProjectThatMattersOffersAReload_data();
    void everyChangeOfTheProjectThatMattersOffersAReload();
    void changesThatDoNotMatterOfferNothing();
    void deviceChangeReachesTheEstimate();
};

void TestDesignChange::savedSourceOffersAReload()
{
    openAnalyzer();
    QVERIFY(window->open(path("divider.v")));
    qobject_cast<Workbench::TextView *>(activeView())->editor()->insertPlainText("// changed\n");
    trigger("actionSave");
    QCOMPARE(banners(), QStringList{"Design files changed. Do you want to reload?"});
    answerBanner("btnB");
    QVERIFY(banners().isEmpty());
}

void TestDesignChange::everyChangeOfTheProjectThatMattersOffersAReload_data()
{
    using TE::ProjectEngine;
    QTest::addColumn<std::function<void()>>("change");
    QTest::addColumn<QString>("question");
    static ProjectEngine &engine = *ProjectEngine::instance();
    const QString files = "Design files changed. Do you want to reload?";
    const auto row = [](const char *name, const std::function<void()> &change, const QString &question) {
        QTest::newRow(name) << change << question;
    };
    row(
        "added", [] { engine.addFile("new.v"); }, files);
    row(
        "removed", [] { engine.removeFile("divider.v"); }, files);
    row(
        "disabled", [] { engine.setFileEnabled("divider.v", false); }, files);
    row(
        "retyped", [] { engine.setFileType("divider.v", TE::HdlIncludeFile); }, files);
    row(
        "include path", [] { engine.setOption(TE::OptionName::IncludePath, QStringList{"inc"}); }, files);
    row(
        "standard", [] { engine.setOption(TE::OptionName::VerilogStandard, "1364-2001"); }, files);
    row(
        "top", [] { engine.setOption(TE::OptionName::TopModule, "divider"); },
        "Top module changed. Do you want to reload?");
}

void TestDesignChange::everyChangeOfTheProjectThatMattersOffersAReload()
{
    QFETCH(std::function<void()>, change);
    QFETCH(QString, question);
    openAnalyzer();
    change();
    QCOMPARE(banners(), QStringList{question});
}

void TestDesignChange::changesThatDoNotMatterOfferNothing()
{
    openAnalyzer();
    auto &engine = *TE::ProjectEngine::instance();
    engine.addFile("notes.txt");
    engine.removeFile("notes.txt");
    engine.addFile("pins.pcf");
    engine.setOption(TE::OptionName::SynthesizeTool, "Synplify");
    engine.setOption(TE::OptionName::TopModule, "blink");
    engine.setFileEnabled("blink.v", true);
    QVERIFY(banners().isEmpty());
}

void TestDesignChange::deviceChangeReachesTheEstimate()
{
    openAnalyzer();
    const auto figures = [this] {
        QStringList texts;
        for (const QLabel *label : page().findChildren<QLabel *>())
            texts.append(label->text());
        return texts.filter("/24").size();
    };
    QVERIFY(figures() > 0);
    TE::DeviceInfo device;
    device.name = "KXB-M16";
    TE::ProjectEngine::instance()->setDevice(device);
    QCOMPARE(figures(), 0);
}

QTEST_MAIN(TestDesignChange)
#include "tst_designchange.moc"
