// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

namespace support {

using namespace RTLVAK;

std::unique_ptr<VAK::AoCore> completeCore(int index)
{
    VAK::SignalItem signal;
    signal.name = "valid";
    auto core = std::make_unique<VAK::AoCore>(index);
    core->getTrigger(0)->setSignalNet({signal});
    core->matchUnit(0)->setTriggerPort(core->getTrigger(0));
    core->matchUnit(0)->setValue0("1");
    core->matchUnit(0)->setEnabled(true);
    core->setExpression({"M0"});
    core->setSampleClock("clk");
    core->setallCapSignal({signal});
    core->setDataSignal({signal});
    return core;
}

fakes::Instance design()
{
    fakes::Instance top("soc");
    top.net("clk").net("clk2").net("valid").net("stuck", fakes::Unusable).bus("data", 7, 0);
    return top;
}

static void writeCores(const QList<VAK::AoCore *> &cores, const QString &path)
{
    if (!VAK::writeVAKConfigToXml(cores, path))
        qFatal("cannot write %s", qPrintable(path));
}

QString writeStandardFile(const TempDir &dir, const QString &name, int count)
{
    QList<VAK::AoCore *> cores;
    for (int i = 0; i < count; ++i)
        cores += completeCore(i).release();
    writeCores(cores, dir.filePath(name));
    qDeleteAll(cores);
    return dir.filePath(name);
}

void changeClockOnDisk(const QString &path, const QString &clock)
{
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(path);
    cores.first()->setSampleClock(clock);
    writeCores(cores, path);
    qDeleteAll(cores);
}

QStringList clocksInFile(const QString &path)
{
    QStringList clocks;
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(path);
    for (const VAK::AoCore *core : cores)
        clocks += core->sampleClock();
    qDeleteAll(cores);
    return clocks;
}

ViewFixture::ViewFixture()
{
    fakes::resetDesign();
    fakes::resetEvents();
    fakes::resetNetcatcher();
    fakes::addSource("/design/soc.v");
    fakes::setDesign(design());
    containerPointer = new QWidget;
    viewPointer = new VakStandardInserterView;
    auto *layout = new QVBoxLayout(containerPointer);
    layout->addWidget(viewPointer);
    containerPointer->show();
}

ViewFixture::~ViewFixture()
{
    kill();
}

bool ViewFixture::open(int count, const QString &name)
{
    path = writeStandardFile(dir, name, count);
    QString error;
    if (view().open(path, {}, &error))
        return true;
    qWarning("%s", qPrintable(error));
    return false;
}

void ViewFixture::kill()
{
    delete containerPointer;
    runDeferredDeletes();
}

AoOptionWidget &ViewFixture::page(int position) const
{
    auto *found = qobject_cast<AoOptionWidget *>(stack().widget(position));
    if (!found)
        qFatal("no page at position %d", position);
    return *found;
}

QString ViewFixture::pageTitle() const
{
    return child<QDockWidget>(view(), "dockWidget_2").windowTitle();
}

QString ViewFixture::currentItem() const
{
    const QTreeWidgetItem *item = tree().currentItem();
    return item ? item->text(0) : QString();
}

QString ViewFixture::clockShown(int position) const
{
    return child<QLineEdit>(page(position), "editSampleClock").text();
}

void ViewFixture::editClock(int position, const QString &clock) const
{
    child<QLineEdit>(page(position), "editSampleClock").setText(clock);
}

QList<ReloadBanner *> ViewFixture::banners() const
{
    QList<ReloadBanner *> found;
    const QLayout *layout = child<QWidget>(view(), "widget_3").layout();
    for (int i = 0; i < layout->count(); ++i)
        found += qobject_cast<ReloadBanner *>(layout->itemAt(i)->widget());
    return found;
}

QStringList ViewFixture::bannerTexts() const
{
    QStringList texts;
    for (const ReloadBanner *banner : banners())
        texts += child<QLabel>(*banner, "labelFile").text();
    return texts;
}

void ViewFixture::clickBanner(int number, const char *button) const
{
    clickButton(*banners().at(number), button);
}

void ViewFixture::contextMenu(int row) const
{
    contextMenuOn(tree(), tree().topLevelItem(row));
}

} // namespace support
