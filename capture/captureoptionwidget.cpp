// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/captureoptionwidget.h"

#include "capture/captureform.h"
#include "capture/capturesignals.h"
#include "capture/numberrangemodel.h"

#include "rules/capturedsignals.h"
#include "rules/implementationlist.h"
#include "rules/signalresolver.h"
#include "rules/sizechoices.h"
#include "rules/usageestimate.h"
#include "signals/vaksignalselectdialog.h"
#include "trigger/signalselection.h"
#include "trigger/triggersingalselectdialog.h"

#include "ui_captureoptionwidget.h"

#include <OVTE/designtypes.h>
#include <OVTE/taskevents.h>
#include <QUtility/ievent.h>
#include <VakUtils/aocore.h>
#include <VakUtils/triggerport.h>

#include <QListView>
#include <QPointer>
#include <QtDebug>

namespace RTLVAK {

static constexpr auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);

CaptureOptionWidget::CaptureOptionWidget(VAK::AoCore *coreToEdit, NETCATCHER::RtlNetlist *rtlNetlist, QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::CaptureOptionWidget>())
    , core(coreToEdit)
    , netlist(rtlNetlist)
{
    qRegisterMetaType<VAK::SignalItem>("VAK::SignalItem");
    ui->setupUi(this);
    setUpForm();
    appendNumbers(ui->comboStorageSize, storageSizeChoices());
    connectCombos();
    onStorageChanged();
    connectButtons();
    loadCore();
    updateImplementationList();
    updateUsage();
    connectRelays();
    subscribe(QLatin1String(TE::EventType::DeviceChange));
}

CaptureOptionWidget::~CaptureOptionWidget()
{
    deleteChildWidgets(this);
}

void CaptureOptionWidget::setUpForm()
{
    setUpCaptureTree(ui->treeWidgetCapSigs, ui->btnRemove);
    // The list of segments has thousands of entries; neither the list nor the box may look at each of them.
    ui->comboWindowNum->setModel(new private_impl::NumberRangeModel(ui->comboWindowNum));
    ui->comboWindowNum->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    qobject_cast<QListView *>(ui->comboWindowNum->view())->setUniformItemSizes(true);
}

void CaptureOptionWidget::connectCombos()
{
    connect(ui->comboStorageSize, indexChanged, this, &CaptureOptionWidget::onStorageChanged);
    connect(ui->comboWindowNum, indexChanged, this, &CaptureOptionWidget::onWindowChanged);
    connect(ui->comboCapAmount, indexChanged, this, &CaptureOptionWidget::onCapAmountChanged);
    connect(ui->comboImpl, indexChanged, this, &CaptureOptionWidget::onImplChanged);
}

void CaptureOptionWidget::connectButtons()
{
    connect(ui->btnSampleClock, &QPushButton::clicked, this, &CaptureOptionWidget::onSelectClock);
    connect(ui->btnAdd, &QPushButton::clicked, this, &CaptureOptionWidget::onAddDataSignals);
    connect(ui->btnRemove, &QPushButton::clicked, this, &CaptureOptionWidget::onRemoveSignals);
    connect(ui->btnAddFromTp, &QPushButton::clicked, this, &CaptureOptionWidget::onAddFromTrigger);
    connect(ui->chkBoxForceTrigFalling, &QCheckBox::toggled, this, &CaptureOptionWidget::modified);
    connect(ui->chkBoxCaptureInitial, &QCheckBox::toggled, this, &CaptureOptionWidget::modified);
    connect(ui->treeWidgetCapSigs, &signalTreeWidget::CapSignalChange, this,
            &CaptureOptionWidget::onCaptureSignalChange);
}

void CaptureOptionWidget::connectRelays()
{
    connect(ui->treeWidgetCapSigs, &signalTreeWidget::itemDragged, this, &CaptureOptionWidget::modified);
    connect(ui->treeWidgetCapSigs->model(), &QAbstractItemModel::layoutChanged, this, &CaptureOptionWidget::modified);
    connect(ui->editSampleClock, &QLineEdit::textChanged, this, &CaptureOptionWidget::modified);
    connect(ui->radioButtonRising, &QRadioButton::toggled, this, &CaptureOptionWidget::modified);
    connect(ui->comboWindowNum, indexChanged, this, &CaptureOptionWidget::modified);
    connect(ui->comboCapAmount, indexChanged, this, &CaptureOptionWidget::modified);
    connect(ui->spinBoxTrigPos, QOverload<int>::of(&QSpinBox::valueChanged), this, &CaptureOptionWidget::modified);
}

void CaptureOptionWidget::loadCore()
{
    showSampleClock(ui->editSampleClock, ui->radioButtonRising, ui->radioButtonFalling, core->sampleClock(),
                    core->sampleEdge());
    loadSizes();
    ui->chkBoxForceTrigFalling->setChecked(core->forceTriggerByFallingEdge());
    ui->chkBoxCaptureInitial->setChecked(core->captureInitialData());
    ui->comboWindowNum->setMaxVisibleItems(15);
    ui->comboWindowNum->setStyleSheet(QStringLiteral("QComboBox{combobox-popup:0;}"));
    const int stored = ui->comboImpl->findText(implementationName(core->captureImplementation()));
    if (stored >= 0) // else what the list shows stays selected
        ui->comboImpl->setCurrentIndex(stored);
    loadSignals();
}

void CaptureOptionWidget::loadSizes()
{
    selectStoredNumber(ui->comboStorageSize, core->storageSize());
    selectStoredNumber(ui->comboWindowNum, core->segmentNumber());
    selectStoredNumber(ui->comboCapAmount, core->captureAmount());
    if (ui->comboCapAmount->currentIndex() < 0) {
        // No amount limits the position; the stored one stays in sight until an amount is chosen.
        ui->spinBoxTrigPos->setMaximum(qMax(maxTriggerPosition(core->captureAmount()), core->triggerPosition()));
    }
    ui->spinBoxTrigPos->setValue(core->triggerPosition());
}

void CaptureOptionWidget::loadSignals()
{
    loadedSignals = core->getallCapSignal();
    showCaptureSignals(ui->treeWidgetCapSigs, loadedSignals);
}

void CaptureOptionWidget::applyToCore()
{
    ui->treeWidgetCapSigs->finishEdit(); // a name that is still being typed counts
    core->setSampleClock(ui->editSampleClock->text());
    core->setSampleEdge(ui->radioButtonRising->isChecked() ? VAK::RisingEdge : VAK::FallingEdge);
    applySizes();
    core->setForceTriggerByFallingEdge(ui->chkBoxForceTrigFalling->isChecked());
    core->setCaptureInitialData(ui->chkBoxCaptureInitial->isChecked());
    core->setCaptureImplementation(implementationCode(ui->comboImpl->currentText()));
    applySignals(ui->treeWidgetCapSigs->signalItems());
}

void CaptureOptionWidget::applySizes()
{
    if (ui->comboStorageSize->currentIndex() >= 0)
        core->setStorageSize(shownNumber(ui->comboStorageSize));
    if (ui->comboWindowNum->currentIndex() >= 0)
        core->setSegmentNumber(shownNumber(ui->comboWindowNum));
    if (ui->comboCapAmount->currentIndex() >= 0)
        core->setCaptureAmount(shownNumber(ui->comboCapAmount));
    core->setTriggerPosition(ui->spinBoxTrigPos->value());
}

void CaptureOptionWidget::applySignals(const QList<VAK::SignalItem> &signalItems)
{
    core->setDataSignal(capturedSignals(signalItems));
    core->setallCapSignal(signalItems);
}

void CaptureOptionWidget::setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist)
{
    netlist = newNetlist;
    VakSignalSelectDialog::passOn(netlist, this);
}

void CaptureOptionWidget::refreshFromNetlist()
{
    if (!netlist)
        return;
    const QList<VAK::SignalItem> edited = ui->treeWidgetCapSigs->signalItems();
    if (edited != loadedSignals)
        applySignals(edited);
    const NetLookup lookup = netLookup(netlist);
    for (VAK::TriggerPort *port : core->allTriggers())
        port->setSignalNet(resolvedSignals(port->getSignalNet(), lookup));
    applySignals(resolvedSignals(core->getallCapSignal(), lookup));
    const int width = captureWidth(edited);
    loadSignals();
    if (captureWidth(loadedSignals) != width)
        updateCaptureFigures();
}

void CaptureOptionWidget::handleIEvent(const QUtil::IEvent *event)
{
    if (event->type() == QLatin1String(TE::EventType::DeviceChange))
        updateCaptureFigures();
}

void CaptureOptionWidget::onStorageChanged()
{
    const int storage = shownNumber(ui->comboStorageSize);
    const QString segments = ui->comboWindowNum->currentText();
    disconnect(ui->comboWindowNum, indexChanged, this, &CaptureOptionWidget::onWindowChanged);
    ui->comboWindowNum->clear();
    ui->comboWindowNum->model()->insertRows(0, segmentChoiceCount(storage));
    selectTextOrLast(ui->comboWindowNum, segments);
    connect(ui->comboWindowNum, indexChanged, this, &CaptureOptionWidget::onWindowChanged);
    onWindowChanged();
    updateCaptureFigures();
}

void CaptureOptionWidget::onWindowChanged()
{
    const int storage = shownNumber(ui->comboStorageSize);
    const int segments = shownNumber(ui->comboWindowNum);
    const QString amount = ui->comboCapAmount->currentText();
    disconnect(ui->comboCapAmount, indexChanged, this, &CaptureOptionWidget::onCapAmountChanged);
    ui->comboCapAmount->clear();
    appendNumbers(ui->comboCapAmount, captureAmountChoices(storage, segments));
    selectTextOrLast(ui->comboCapAmount, amount);
    onCapAmountChanged();
    connect(ui->comboCapAmount, indexChanged, this, &CaptureOptionWidget::onCapAmountChanged);
}

void CaptureOptionWidget::onCapAmountChanged()
{
    ui->spinBoxTrigPos->setRange(0, maxTriggerPosition(shownNumber(ui->comboCapAmount)));
}

void CaptureOptionWidget::onImplChanged()
{
    updateUsage();
    emit modified();
}

void CaptureOptionWidget::onSelectClock()
{
    chooseSampleClock(ui->editSampleClock, netlist, this);
}

void CaptureOptionWidget::onAddDataSignals()
{
    const QPointer<CaptureOptionWidget> self(this);
    const QList<VAK::SignalItem> chosen = VakSignalSelectDialog::getSignals(netlist, this);
    if (!self || chosen.isEmpty())
        return;
    qDebug("get infor from search");
    addSignals(chosen);
}

void CaptureOptionWidget::onAddFromTrigger()
{
    const QPointer<CaptureOptionWidget> self(this);
    const QList<VAK::SignalItem> chosen = TriggerSingalSelectDialog::selectSignals(core->availableTriggers(), this);
    if (self && !chosen.isEmpty())
        addSignals(chosen);
}

void CaptureOptionWidget::addSignals(const QList<VAK::SignalItem> &signalItems)
{
    addCaptureSignals(ui->treeWidgetCapSigs, signalItems);
    updateCaptureFigures();
    ui->treeWidgetCapSigs->updatePresentation();
    moveEnabledSignalsFirst(ui->treeWidgetCapSigs);
    emit modified();
}

void CaptureOptionWidget::onRemoveSignals()
{
    removeSelectedSignals(ui->treeWidgetCapSigs);
    updateCaptureFigures();
    emit modified();
}

void CaptureOptionWidget::on_treeWidgetCapSigs_itemSelectionChanged()
{
    ui->btnRemove->setEnabled(isWholeSignalSelection(ui->treeWidgetCapSigs));
}

void CaptureOptionWidget::onCaptureSignalChange()
{
    updateCaptureFigures();
}

void CaptureOptionWidget::updateCaptureFigures()
{
    updateImplementationList();
    updateUsage();
}

void CaptureOptionWidget::updateImplementationList()
{
    const int width = captureWidth(ui->treeWidgetCapSigs->signalItems());
    const qint64 bits = standardCaptureBits(width, shownNumber(ui->comboStorageSize));
    offerImplementations(ui->comboImpl, captureImplementations(currentDeviceHasShadowRam(), bits));
}

void CaptureOptionWidget::updateUsage()
{
    const int width = captureWidth(ui->treeWidgetCapSigs->signalItems());
    showUsage(ui->label_8, ui->label_9,
              captureUsage(CaptureMode::Standard, currentDevice(), ui->comboImpl->currentText(), width,
                           shownNumber(ui->comboStorageSize)));
}

} // namespace RTLVAK
