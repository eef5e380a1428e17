// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "analyzertest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "workbench/mainwindow.h"

#include <QLabel>
#include <QLayout>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

using support::child;

static const char core[] = R"(  <core index="%1" module="blink">
    <clock net="clk" edge="rising"/>
    <trigger mode="static" implementation="BSRAM">
      <port index="0">
        <net name="tick" displayName="" enabled="true" present="true" active="true"/>
      </port>
      <unit index="0" enabled="true" port="0" function="==" value0="1" value1="" counter="off" count="1"/>
      <expression text="M0"/>
    </trigger>
    <capture implementation="BSRAM" storageSize="1024" segments="1" amount="1024" triggerPosition="0" forceTriggerByFallingEdge="false" initialData="false">
      <net name="tick" displayName="" enabled="true" present="true" active="true"/>
      <bus name="count[3:0]" displayName="" enabled="true" present="true" active="true" base="count" first="3" last="0"/>
    </capture>
  </core>
)";

QByteArray analyzerFile(int coreCount)
{
    QByteArray text("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<vak version=\"1\" mode=\"standard\">\n");
    for (int i = 0; i < coreCount; ++i)
        text += QByteArray(core).replace("%1", QByteArray::number(i));
    return text + "</vak>\n";
}

void AnalyzerTest::openAnalyzer(const QByteArray &contents)
{
    dir->write("a.rvk", contents);
    QVERIFY(window->open(path("blink.vakproj")));
    support::DialogDriver driver;
    if (!window->open(path("a.rvk")))
        qFatal("the analyzer did not open: %s", qPrintable(driver.failures().join(' ')));
    analyzer = activeView();
    qobject_cast<QTabWidget *>(&page())->setCurrentIndex(1);
    QVERIFY(banners().isEmpty());
}

void AnalyzerTest::edit() const
{
    child<QRadioButton>(page(), "radioButtonFalling").click();
    QVERIFY(isEdited());
    QVERIFY(tabs().contains("a.rvk *"));
}

bool AnalyzerTest::isEdited() const
{
    return child<QRadioButton>(page(), "radioButtonFalling").isChecked();
}

QStringList AnalyzerTest::banners(const Core::IView &view)
{
    QStringList texts;
    // Layouts hold what is still to be answered.
    const QLayout *layout = child<QWidget>(view, "widget_3").layout();
    for (int i = 0; i < layout->count(); ++i)
        texts.append(child<QLabel>(*layout->itemAt(i)->widget(), "labelFile").text());
    return texts;
}

void AnalyzerTest::answerBanner(const char *button) const
{
    support::clickButton(*child<QWidget>(*analyzer, "widget_3").layout()->itemAt(0)->widget(), button);
}

QWidget &AnalyzerTest::page() const
{
    return *child<QStackedWidget>(*analyzer, "stackedWidget").currentWidget();
}

RTLVAK::signalTreeWidget &AnalyzerTest::signalTree() const
{
    return child<RTLVAK::signalTreeWidget>(page(), "treeWidgetCapSigs");
}
