// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/litecaptureoptionwidget.h"

#include "capture/captureform.h"
#include "capture/capturesignals.h"

#include "rules/capturedsignals.h"
#include "rules/implementationlist.h"
#include "rules/signalresolver.h"
#include "rules/sizechoices.h"
#include "rules/usageestimate.h"
#include "signals/vaksignalselectdialog.h"
#include "trigger/signalselection.h"

#include "ui_litecaptureoptionwidget.h"

#include <OVTE/designtypes.h>
#include <OVTE/taskevents.h>
#include <QUtility/ievent.h>
#include <VakUtils/aocorelite.h>

#include <QPointer>

namespace RTLVAK {

static constexpr auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);

LiteCaptureOptionWidget::LiteCaptureOptionWidget(VAK::AOCore_Lite *coreToEdit, NETCATCHER::RtlNetlist *rtlNetlist,
                                                 QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::LiteCaptureOptionWidget>())
    , core(coreToEdit)
    , netlist(rtlNetlist)
{
    ui->setupUi(this);
    subscribe(QLatin1String(TE::EventType::DeviceChange));
    setUpCaptureTree(ui->treeWidgetSignal, ui->btnRemove);
    appendNumbers(ui->comboCapAmount, liteCaptureAmountChoices());
    loadCore();
    connectForm();

    applyInputRegisterRule();
    ui->treeWidgetSignal->updatePresentation();
    updateCaptureFigures();
    arrangeSignals();
    emit modified();
    selectStoredImplementation();
}

LiteCaptureOptionWidget::~LiteCaptureOptionWidget()
{
    deleteChildWidgets(this);
}

void LiteCaptureOptionWidget::loadCore()
{
    showSampleClock(ui->editSampleClock, ui->radioButtonRising, ui->radioButtonFalling, core->sampleClock(),
                    core->sampleEdge());
    selectStoredNumber(ui->comboCapAmount, core->captureAmount());
    ui->enableInputRegCheckBox->setChecked(core->enableInputRegister());
    ui->capIniDataCheckBox->setChecked(core->captureInitialData());
    showCaptureSignals(ui->treeWidgetSignal, core->getallCapSignal());
}

void LiteCaptureOptionWidget::connectForm()
{
    connect(ui->comboCapAmount, indexChanged, this, &LiteCaptureOptionWidget::onCapAmountOrDataSigalChanged);
    connect(ui->btnSampleClock, &QPushButton::clicked, this, &LiteCaptureOptionWidget::onSelectClock);
    connect(ui->btnAdd, &QPushButton::clicked, this, &LiteCaptureOptionWidget::onAddDataSignals);
    connect(ui->btnRemove, &QPushButton::clicked, this, &LiteCaptureOptionWidget::onRemoveSignals);
    connect(ui->capIniDataCheckBox, &QCheckBox::toggled, this, &LiteCaptureOptionWidget::onCapInitData);
    connect(ui->implementation, indexChanged, this, &LiteCaptureOptionWidget::onImplementation);
    connect(ui->treeWidgetSignal, &signalTreeWidget::CapSignalChange, this,
            &LiteCaptureOptionWidget::onCaptureSignalChange);

    connect(ui->treeWidgetSignal, &signalTreeWidget::itemDragged, this, &LiteCaptureOptionWidget::modified);
    connect(ui->treeWidgetSignal->model(), &QAbstractItemModel::layoutChanged, this,
            &LiteCaptureOptionWidget::modified);
    connect(ui->editSampleClock, &QLineEdit::textChanged, this, &LiteCaptureOptionWidget::modified);
    connect(ui->radioButtonRising, &QRadioButton::toggled, this, &LiteCaptureOptionWidget::modified);
    connect(ui->enableInputRegCheckBox, &QCheckBox::toggled, this, &LiteCaptureOptionWidget::modified);
}

/// Deliberately looks a register implementation up as "Logic", which the list never offers: such a core shows what the
/// list selected, and the next save stores that.
void LiteCaptureOptionWidget::selectStoredImplementation()
{
    const int code = core->captureImplementation();
    const QString text = code == VAK::RegImplementation ? QStringLiteral("Logic") : implementationName(code);
    const QString wanted = text.isEmpty() ? implementationName(VAK::BsramImplementation) : text;
    for (int i = 0; i < ui->implementation->count(); ++i) {
        if (ui->implementation->itemText(i) == wanted)
            ui->implementation->setCurrentIndex(i);
    }
}

void LiteCaptureOptionWidget::applyToCore()
{
    ui->treeWidgetSignal->finishEdit(); // a name that is still being typed counts
    core->setSampleClock(ui->editSampleClock->text());
    core->setSampleEdge(ui->radioButtonRising->isChecked() ? VAK::RisingEdge : VAK::FallingEdge);
    core->setEnableInputRegister(ui->enableInputRegCheckBox->isChecked());
    if (ui->comboCapAmount->currentIndex() >= 0)
        core->setCaptureAmount(shownNumber(ui->comboCapAmount));
    core->setCaptureImplementation(liteImplementationCode(ui->implementation->currentText()));
    core->setCaptureInitialData(ui->capIniDataCheckBox->isChecked());
    const QList<VAK::SignalItem> signalItems = ui->treeWidgetSignal->signalItems();
    core->setDataSignals(capturedSignals(signalItems));
    core->setallCapSignal(signalItems);
}

void LiteCaptureOptionWidget::setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist)
{
    netlist = newNetlist;
    VakSignalSelectDialog::passOn(netlist, this);
}

void LiteCaptureOptionWidget::refreshFromNetlist()
{
    if (!netlist)
        return;
    const int before = captureBits();
    const auto resolved = resolvedSignals(ui->treeWidgetSignal->signalItems(), netLookup(netlist));
    core->setDataSignals(capturedSignals(resolved));
    core->setallCapSignal(resolved);
    showCaptureSignals(ui->treeWidgetSignal, resolved);
    if (captureBits() != before)
        updateCaptureFigures();
}

void LiteCaptureOptionWidget::handleIEvent(const QUtil::IEvent *event)
{
    if (event->type() == QLatin1String(TE::EventType::DeviceChange))
        updateCaptureFigures();
}

void LiteCaptureOptionWidget::onCapAmountOrDataSigalChanged()
{
    updateCaptureFigures();
    arrangeSignals();
    emit modified();
}

void LiteCaptureOptionWidget::onSelectClock()
{
    if (chooseSampleClock(ui->editSampleClock, netlist, this))
        emit modified();
}

void LiteCaptureOptionWidget::onAddDataSignals()
{
    const QPointer<LiteCaptureOptionWidget> self(this);
    const QList<VAK::SignalItem> chosen = VakSignalSelectDialog::getSignals(netlist, this);
    if (!self || chosen.isEmpty())
        return;
    addCaptureSignals(ui->treeWidgetSignal, chosen);
    onCapAmountOrDataSigalChanged();
}

void LiteCaptureOptionWidget::onRemoveSignals()
{
    removeSelectedSignals(ui->treeWidgetSignal);
    emit modified();
    onCapAmountOrDataSigalChanged();
}

void LiteCaptureOptionWidget::onCapInitData()
{
    applyInputRegisterRule();
    emit modified();
}

void LiteCaptureOptionWidget::onImplementation()
{
    applyInputRegisterRule();
    updateUsage();
    emit modified();
}

void LiteCaptureOptionWidget::on_treeWidgetSignal_itemSelectionChanged()
{
    ui->btnRemove->setEnabled(isWholeSignalSelection(ui->treeWidgetSignal));
}

void LiteCaptureOptionWidget::onCaptureSignalChange()
{
    updateCaptureFigures();
}

void LiteCaptureOptionWidget::applyInputRegisterRule()
{
    const bool fixed = ui->capIniDataCheckBox->isChecked();
    if (fixed) {
        const auto state = inputRegisterFor(ui->implementation->currentText());
        ui->enableInputRegCheckBox->setChecked(state.value_or(ui->enableInputRegCheckBox->isChecked()));
    }
    ui->enableInputRegCheckBox->setEnabled(!fixed);
}

void LiteCaptureOptionWidget::updateCaptureFigures()
{
    const qint64 bits = liteCaptureBits(captureBits(), shownNumber(ui->comboCapAmount));
    offerImplementations(ui->implementation, captureImplementations(currentDeviceHasShadowRam(), bits));
    updateUsage();
}

void LiteCaptureOptionWidget::updateUsage()
{
    showUsage(ui->label_8, ui->label_9,
              captureUsage(CaptureMode::Lite, currentDevice(), ui->implementation->currentText(), captureBits(),
                           shownNumber(ui->comboCapAmount)));
}

void LiteCaptureOptionWidget::arrangeSignals()
{
    ui->treeWidgetSignal->updatePresentation();
    moveEnabledSignalsFirst(ui->treeWidgetSignal);
}

int LiteCaptureOptionWidget::captureBits() const
{
    return captureWidth(ui->treeWidgetSignal->signalItems());
}

} // namespace RTLVAK
