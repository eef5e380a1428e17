// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include "capture/liteaooptionwidget.h"
#include "views/vakliteinserterview.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

namespace support {

using namespace RTLVAK;

static bool modesAdded = false;

void addModes()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("Standard") << Mode::Standard;
    QTest::newRow("Lite") << Mode::Lite;
    modesAdded = true;
}

Mode currentMode()
{
    if (!modesAdded)
        return Mode::Standard;
    QFETCH_GLOBAL(Mode, mode);
    return mode;
}

static VAK::SignalItem signalNamed(const QString &name)
{
    VAK::SignalItem signal;
    signal.name = name;
    return signal;
}

std::unique_ptr<VAK::AoCore> completeCore(int index)
{
    auto core = std::make_unique<VAK::AoCore>(index);
    core->getTrigger(0)->setSignalNet({signalNamed("valid")});
    core->matchUnit(0)->setTriggerPort(core->getTrigger(0));
    core->matchUnit(0)->setValue0("1");
    core->matchUnit(0)->setEnabled(true);
    core->setExpression({"M0"});
    core->setSampleClock("clk");
    core->setallCapSignal({signalNamed("valid")});
    core->setDataSignal({signalNamed("valid")});
    return core;
}

std::unique_ptr<VAK::AOCore_Lite> completeLiteCore(int index)
{
    auto core = std::make_unique<VAK::AOCore_Lite>(index);
    core->setSampleClock("clk");
    core->setallCapSignal({signalNamed("valid")});
    core->setDataSignals({signalNamed("valid")});
    return core;
}

fakes::Instance design()
{
    fakes::Instance top("soc");
    top.net("clk").net("clk2").net("valid").net("stuck", fakes::Unusable).bus("data", 7, 0);
    return top;
}

namespace {

/// The cores of a file of either mode, owned; what the functions below need of both.
struct CoresOfFile
{
    explicit CoresOfFile(const QString &path)
    {
        if (VAK::vakModeFromVakConfigFile(path) == VAK::VakMode::Lite)
            lite = VAK::readVAKConfigFromXml_Lite(path);
        else
            standard = VAK::readVAKConfigFromXml(path);
    }
    CoresOfFile(Mode mode, int count)
    {
        for (int i = 0; i < count; ++i) {
            if (mode == Mode::Lite)
                lite += completeLiteCore(i).release();
            else
                standard += completeCore(i).release();
        }
    }
    ~CoresOfFile()
    {
        qDeleteAll(standard);
        qDeleteAll(lite);
    }
    CoresOfFile(const CoresOfFile &) = delete;
    CoresOfFile &operator=(const CoresOfFile &) = delete;

    void write(Mode mode, const QString &path) const
    {
        const bool written =
            mode == Mode::Lite ? VAK::writeVAKConfigToXml_Lite(lite, path) : VAK::writeVAKConfigToXml(standard, path);
        if (!written)
            qFatal("cannot write %s", qPrintable(path));
    }
    void write(const QString &path) const { write(lite.isEmpty() ? Mode::Standard : Mode::Lite, path); }

    QList<VAK::AoCore *> standard;
    QList<VAK::AOCore_Lite *> lite;
};

} // namespace

QString writeFile(Mode mode, const TempDir &dir, const QString &name, int count)
{
    CoresOfFile(mode, count).write(mode, dir.filePath(name));
    return dir.filePath(name);
}

void changeClockOnDisk(const QString &path, const QString &clock)
{
    const CoresOfFile cores(path);
    if (cores.lite.isEmpty())
        cores.standard.first()->setSampleClock(clock);
    else
        cores.lite.first()->setSampleClock(clock);
    cores.write(path);
}

void addSignalOnDisk(const QString &path, const QString &name)
{
    const CoresOfFile cores(path);
    if (cores.lite.isEmpty())
        cores.standard.first()->setallCapSignal(cores.standard.first()->getallCapSignal() << signalNamed(name));
    else
        cores.lite.first()->setallCapSignal(cores.lite.first()->getallCapSignal() << signalNamed(name));
    cores.write(path);
}

QStringList clocksInFile(const QString &path)
{
    QStringList clocks;
    const CoresOfFile cores(path);
    for (const VAK::AoCore *core : cores.standard)
        clocks += core->sampleClock();
    for (const VAK::AOCore_Lite *core : cores.lite)
        clocks += core->sampleClock();
    return clocks;
}

std::unique_ptr<VakInserterView> makeView(Mode mode, QWidget *parent)
{
    if (mode == Mode::Lite)
        return std::make_unique<VakLiteInserterView>(parent);
    return std::make_unique<VakStandardInserterView>(parent);
}

bool call(VakInserterView &view, const QByteArray &slot)
{
    const bool renamed = slot == "onFileChange" && qobject_cast<VakLiteInserterView *>(&view);
    const QByteArray own = renamed ? QByteArray("onFileChanged") : slot;
    bool result = true;
    const bool called =
        own == "readRtlNetlist"
            ? QMetaObject::invokeMethod(&view, own.constData(), Qt::DirectConnection, Q_RETURN_ARG(bool, result))
            : QMetaObject::invokeMethod(&view, own.constData(), Qt::DirectConnection);
    if (!called)
        qFatal("the view has no slot %s", own.constData());
    return result;
}

ViewFixture::ViewFixture(Mode modeOfView)
    : mode(modeOfView)
{
    fakes::resetDesign();
    fakes::resetEvents();
    fakes::resetNetcatcher();
    fakes::addSource("/design/soc.v");
    fakes::setDesign(design());
    containerPointer = new QWidget;
    viewPointer = makeView(mode).release();
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
    path = write(name, count);
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

VakStandardInserterView &ViewFixture::standardView() const
{
    return *qobject_cast<VakStandardInserterView *>(viewPointer.data());
}

void ViewFixture::setModified(bool on) const
{
    if (auto *lite = qobject_cast<VakLiteInserterView *>(viewPointer.data()))
        lite->setModified(on);
    else
        standardView().setModified(on);
}

QStringList ViewFixture::items() const
{
    return mode == Mode::Lite ? modelTexts(*child<QComboBox>(view(), "comboBoxAo").model()) : topTexts(tree());
}

QStringList ViewFixture::titles(int count) const
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts += QString(mode == Mode::Lite ? "AO %1" : "Core %1").arg(i);
    return texts;
}

QString ViewFixture::currentItem() const
{
    if (mode == Mode::Lite)
        return child<QComboBox>(view(), "comboBoxAo").currentText();
    const QTreeWidgetItem *item = tree().currentItem();
    return item ? item->text(0) : QString();
}

void ViewFixture::showCore(int number) const
{
    if (mode == Mode::Lite)
        child<QComboBox>(view(), "comboBoxAo").setCurrentIndex(number);
    else
        standardView().changeAoWidget(number);
}

void ViewFixture::addCore()
{
    if (mode == Mode::Lite) {
        clickButton(view(), "btnAdd");
        return;
    }
    driver.chooseFromMenu("Add");
    contextMenu(-1);
}

QWidget &ViewFixture::page(int position) const
{
    QWidget *found = stack().widget(position);
    if (!found)
        qFatal("no page at position %d", position);
    return *found;
}

AoOptionWidget &ViewFixture::standardPage(int position) const
{
    return *qobject_cast<AoOptionWidget *>(&page(position));
}

int ViewFixture::coreNumber(int position) const
{
    const auto *lite = qobject_cast<LiteAoOptionWidget *>(&page(position));
    return lite ? lite->core()->index() : standardPage(position).core()->index();
}

QString ViewFixture::coreClock(int position) const
{
    const auto *lite = qobject_cast<LiteAoOptionWidget *>(&page(position));
    return lite ? lite->core()->sampleClock() : standardPage(position).core()->sampleClock();
}

QString ViewFixture::clockShown(int position) const
{
    return child<QLineEdit>(page(position), "editSampleClock").text();
}

void ViewFixture::editClock(int position, const QString &clock) const
{
    child<QLineEdit>(page(position), "editSampleClock").setText(clock);
}

QTreeWidget &ViewFixture::captured(int position) const
{
    return child<QTreeWidget>(page(position), mode == Mode::Lite ? "treeWidgetSignal" : "treeWidgetCapSigs");
}

QString ViewFixture::pageTitle() const
{
    return child<QDockWidget>(view(), "dockWidget_2").windowTitle();
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
