// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbenchtest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "hostlibs/ovte/projectengine.h"
#include "signals/signaltreewidget.h"
#include "workbench/codeeditor.h"
#include "workbench/mainwindow.h"
#include "workbench/textview.h"

#include <IdeCore/iview.h>
#include <OVTE/designmanager.h>

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

using support::child;
using support::DialogDriver;

static const char configuration[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<vak version="1" mode="standard">
  <core index="0" module="blink">
    <clock net="clk" edge="rising"/>
    <trigger mode="static" implementation="BSRAM">
    </trigger>
    <capture implementation="BSRAM" storageSize="1024" segments="1" amount="1024" triggerPosition="0" forceTriggerByFallingEdge="false" initialData="false">
      <net name="tick" displayName="" enabled="true" present="true" active="true"/>
      <bus name="count[3:0]" displayName="" enabled="true" present="true" active="true" base="count" first="3" last="0"/>
    </capture>
  </core>
</vak>
)";

/// What an open analyzer does when a person, or another program, changes the design around it.
class TestDesignChange : public WorkbenchTest
{
    Q_OBJECT

private slots:
    void savedSourceOffersAReload();
    void otherProgramsChangeOffersAReload();
    void everyChangeOfTheProjectThatMattersOffersAReload_data();
    void everyChangeOfTheProjectThatMattersOffersAReload();
    void changesThatDoNotMatterOfferNothing();
    void misspeltTopClosesTheAnalyzerOnly();
    void rewrittenConfigurationIsOfferedOnce();
    void deviceChangeReachesTheEstimate();

private:
    void openAnalyzer();
    QStringList banners() const;
    void answerBanner(const char *button) const;
    QWidget &page() const { return *child<QStackedWidget>(*analyzer, "stackedWidget").currentWidget(); }
    RTLVAK::signalTreeWidget &signalTree() const
    {
        return child<RTLVAK::signalTreeWidget>(page(), "treeWidgetCapSigs");
    }

    QPointer<Core::IView> analyzer;
};

void TestDesignChange::openAnalyzer()
{
    dir->write("a.rvk", configuration);
    QVERIFY(window->open(path("blink.vakproj")));
    DialogDriver driver;
    if (!window->open(path("a.rvk")))
        qFatal("the analyzer did not open: %s", qPrintable(driver.failures().join(' ')));
    analyzer = activeView();
    qobject_cast<QTabWidget *>(&page())->setCurrentIndex(1);
    QVERIFY(banners().isEmpty());
}

/// The questions that stand above the editing area. Layouts hold what is still to be answered.
QStringList TestDesignChange::banners() const
{
    QStringList texts;
    const QLayout *layout = child<QWidget>(*analyzer, "widget_3").layout();
    for (int i = 0; i < layout->count(); ++i)
        texts.append(child<QLabel>(*layout->itemAt(i)->widget(), "labelFile").text());
    return texts;
}

void TestDesignChange::answerBanner(const char *button) const
{
    support::clickButton(*child<QWidget>(*analyzer, "widget_3").layout()->itemAt(0)->widget(), button);
}

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

void TestDesignChange::otherProgramsChangeOffersAReload()
{
    openAnalyzer();
    child<QRadioButton>(page(), "radioButtonFalling").click();
    QCOMPARE(tabs(), QStringList{"a.rvk *"});
    dir->write("blink.v", dir->read("blink.v").replace("tick", "pulse").replace(".pulse(", ".tick("));
    QTRY_COMPARE(banners(), QStringList{"Design files changed. Do you want to reload?"});
    answerBanner("btnA");
    QVERIFY(banners().isEmpty());
    QCOMPARE(signalTree().topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(signalTree().topLevelItem(1)->foreground(0).color(), QColor(Qt::black));
    QVERIFY(child<QRadioButton>(page(), "radioButtonFalling").isChecked());
    QCOMPARE(tabs(), QStringList{"a.rvk *"});
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    trigger("actionClose");
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

void TestDesignChange::misspeltTopClosesTheAnalyzerOnly()
{
    openAnalyzer();
    child<QRadioButton>(page(), "radioButtonFalling").click();
    QVERIFY(window->open(path("blink.v")));
    trigger("actionPreviousTab");
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        child<QComboBox>(dialog, "topModule").setEditText("blnik");
        dialog.accept();
    });
    trigger("actionConfiguration");
    QCOMPARE(banners(), QStringList{"Top module changed. Do you want to reload?"});
    driver.answerBox(QMessageBox::Ok);
    answerBanner("btnA");
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.boxes().at(0).text, QString("No module named \"blnik\", please reset top module."));
    QTRY_VERIFY(analyzer.isNull());
    QCOMPARE(tabs(), QStringList{"blink.v"});
}

void TestDesignChange::rewrittenConfigurationIsOfferedOnce()
{
    openAnalyzer();
    const QByteArray other = QByteArray(configuration).replace("rising", "falling");
    for (int i = 0; i < 3; ++i)
        dir->write("a.rvk", other + QByteArray(i, '\n'));
    QTRY_COMPARE(banners().size(), 1);
    QVERIFY(child<QRadioButton>(page(), "radioButtonRising").isChecked());
    answerBanner("btnA");
    QVERIFY(child<QRadioButton>(page(), "radioButtonFalling").isChecked());
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
