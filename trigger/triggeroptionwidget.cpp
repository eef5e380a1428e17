// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/triggeroptionwidget.h"

#include "trigger/expressionlist.h"
#include "trigger/matchunittable.h"
#include "trigger/muexpressiondialog.h"
#include "trigger/triggerportdialog.h"
#include "trigger/triggerporttree.h"

#include "rules/implementationlist.h"
#include "rules/triggerusage.h"
#include "widgets/messagebox.h"

#include "ui_triggeroptionwidget.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>
#include <OVTE/taskevents.h>
#include <QUtility/ievent.h>
#include <VakUtils/aocore.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/matchunitdialog.h>
#include <VakUtils/matchunitmodel.h>
#include <VakUtils/triggerport.h>
#include <VakUtils/vaktool.h>

#include <QMenu>
#include <QMouseEvent>
#include <QPointer>

namespace RTLVAK {

static constexpr int DynamicModeIndex = VAK::DynamicTrigger;

static TE::DeviceInfo currentDevice()
{
    return TE::TaskEngine::instance()->designManager()->currentDevice();
}

static bool hasShadowRam()
{
    const TE::DeviceInfo device = currentDevice();
    return VAK_TOOL::currentDeviceSsramAmount(device.name, device.package) != 0;
}

static QList<VAK::MatchUnit *> offeredUnits(const VAK::AoCore *core, bool dynamic)
{
    return dynamic ? core->allMatchUnits().mid(0, DynamicMatchUnits) : core->allMatchUnits();
}

TriggerOptionWidget::TriggerOptionWidget(VAK::AoCore *coreToEdit, NETCATCHER::RtlNetlist *rtlNetlist, QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TriggerOptionWidget>())
    , core(coreToEdit)
    , netlist(rtlNetlist)
    , matchUnits(new VAK::MatchUnitModel(offeredUnits(core, core->triggerMode() == VAK::DynamicTrigger), this))
{
    ui->setupUi(this);
    setUpViews();
    connectViews();
    private_impl::fillTriggerPorts(ui->treeTrigger, core);
    for (const QString &expression : core->expressions())
        private_impl::appendExpression(ui->listExpression, expression);
    fillImplementations();
    showCoreMode();
    updateUsage();
    updateMatchUnitNumber(!isDynamic());
    connectSettings();
    subscribe(QLatin1String(TE::EventType::DeviceChange));
}

TriggerOptionWidget::~TriggerOptionWidget()
{
    // The views still tell their slots what goes away, so they go first.
    qDeleteAll(findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void TriggerOptionWidget::setUpViews()
{
    ui->treeTrigger->setStyleSheet(QStringLiteral("QTreeWidget::item { height: 20px;}QTreeWidget{ icon-size: 17px; }"));
    ui->listExpression->setStyleSheet(QStringLiteral("QListWidget::item { height: 24px}"));
    ui->listExpression->viewport()->installEventFilter(this);
    ui->ModeComboBox->setToolTip(
        tr("Static: the expressions are fixed logic.\n"
           "Dynamic: the expressions can be changed while the design runs; each takes storage, "
           "and M10 to M15 are not available."));
    private_impl::setUpMatchUnitTable(ui->tableMu, matchUnits);
    ui->treeTrigger->setMinimumWidth(private_impl::portRowWidth(ui->treeTrigger));
    ui->splitter->setSizes({140, 580, 150});
    ui->splitter->setStretchFactor(0, 1);
    ui->splitter->setStretchFactor(1, 3);
    ui->splitter->setStretchFactor(2, 1);
}

void TriggerOptionWidget::connectViews()
{
    connect(ui->treeTrigger, &QTreeWidget::itemDoubleClicked, this, &TriggerOptionWidget::editTrigger);
    connect(ui->tableMu, &QTableView::doubleClicked, this, &TriggerOptionWidget::editMatchUnit);
    connect(ui->listExpression, &QListWidget::customContextMenuRequested, this,
            &TriggerOptionWidget::showExpListContextMenu);
    connect(ui->listExpression, &QListWidget::itemDoubleClicked, this, &TriggerOptionWidget::editExpression);
    connect(ui->listExpression->model(), &QAbstractItemModel::layoutChanged, this, &TriggerOptionWidget::modified);
    connect(matchUnits, &VAK::MatchUnitModel::matchChange, this, &TriggerOptionWidget::onImpleChange);
}

// The interface fixes signals of the combo boxes that the toolkit calls deprecated.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void TriggerOptionWidget::connectSettings()
{
    connect(matchUnits, &VAK::MatchUnitModel::modified, this, &TriggerOptionWidget::modified);
    connect(ui->ModeComboBox, QOverload<const QString &>::of(&QComboBox::currentIndexChanged), this,
            &TriggerOptionWidget::onModeChange);
    connect(ui->ImpleComboBox, QOverload<const QString &>::of(&QComboBox::currentIndexChanged), this,
            &TriggerOptionWidget::onImpleChange);
    connect(ui->ImpleComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TriggerOptionWidget::onImplementationIndexChanged);
    connect(ui->ImpleComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &TriggerOptionWidget::onImplementationActivated);
    rememberImplementation();
}
QT_WARNING_POP

void TriggerOptionWidget::showCoreMode()
{
    const bool dynamic = core->triggerMode() == VAK::DynamicTrigger;
    ui->ModeComboBox->setCurrentIndex(dynamic ? DynamicModeIndex : VAK::StaticTrigger);
    showDynamicSettings(dynamic);
    if (!dynamic)
        return;
    fillImplementations();
    const QString stored = implementationName(core->triggerImplementation());
    ui->ImpleComboBox->setCurrentIndex(qMax(0, ui->ImpleComboBox->findText(stored)));
}

void TriggerOptionWidget::setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist)
{
    netlist = newNetlist;
    const QList<TriggerPortDialog *> dialogs = findChildren<TriggerPortDialog *>();
    for (TriggerPortDialog *dialog : dialogs)
        dialog->setRtlNetlist(netlist);
}

void TriggerOptionWidget::refreshTriggerPorts()
{
    private_impl::refreshTriggerPorts(ui->treeTrigger, core);
    for (int row = 0; row < matchUnits->rowCount(); ++row)
        matchUnits->updateRow(row);
}

void TriggerOptionWidget::applyToCore()
{
    core->setExpression(private_impl::expressionsInForce(ui->listExpression));
    if (!isDynamic()) {
        core->setTriggerMode(VAK::StaticTrigger);
        return;
    }
    core->setTriggerMode(VAK::DynamicTrigger);
    for (VAK::MatchUnit *unit : core->allMatchUnits().mid(DynamicMatchUnits))
        unit->setEnabled(false);
    core->setTriggerImplementation(implementationCode(ui->ImpleComboBox->currentText()));
}

void TriggerOptionWidget::editTrigger(QTreeWidgetItem *item, int column)
{
    Q_UNUSED(column)
    QTreeWidgetItem *portRow = private_impl::portRowOf(item);
    VAK::TriggerPort *port = core->getTrigger(ui->treeTrigger->indexOfTopLevelItem(portRow));
    if (!port)
        return;
    const QPointer<TriggerPortDialog> dialog = new TriggerPortDialog(port, netlist, this);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) // the page was closed meanwhile, and this widget with it
        return;
    dialog->deleteLater();
    if (!accepted)
        return;
    refreshTriggerPorts();
    ui->treeTrigger->setCurrentItem(portRow);
    portRow->setExpanded(true);
    emit modified();
}

void TriggerOptionWidget::editMatchUnit(QModelIndex index)
{
    VAK::MatchUnit *unit = matchUnits->muFromIndex(index);
    if (!unit)
        return;
    const QPersistentModelIndex place(index);
    const QPointer<VAK::MatchUnitDialog> dialog = new VAK::MatchUnitDialog(unit, false, this);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    dialog->deleteLater();
    if (!accepted)
        return;
    if (unit->triggerPort())
        unit->setEnabled(true);
    matchUnits->updateRow(place.row());
    updateUsage();
    emit modified();
}

void TriggerOptionWidget::updateExpressionCheck()
{
    private_impl::markExpressions(ui->listExpression, isDynamic());
}

void TriggerOptionWidget::updateMatchUnitNumber(bool isChecked)
{
    matchUnits->setMatcherList(offeredUnits(core, !isChecked));
    updateExpressionCheck();
    updateUsage();
}

void TriggerOptionWidget::onModeChange(QString text)
{
    const bool dynamic = text == QLatin1String("Dynamic");
    showDynamicSettings(dynamic);
    if (dynamic)
        updateUsage();
    updateMatchUnitNumber(!dynamic);
    emit modified();
}

void TriggerOptionWidget::onImpleChange()
{
    updateUsage();
}

void TriggerOptionWidget::onImplementationIndexChanged(int index)
{
    implementationChoice = {implementationChoice.shown, index};
}

void TriggerOptionWidget::onImplementationActivated(int index)
{
    const bool changed = index != implementationChoice.before;
    implementationChoice = {index, index};
    if (changed)
        emit modified();
}

void TriggerOptionWidget::rememberImplementation()
{
    const int index = ui->ImpleComboBox->currentIndex();
    implementationChoice = {index, index};
}

bool TriggerOptionWidget::isDynamic() const
{
    return ui->ModeComboBox->currentIndex() == DynamicModeIndex;
}

void TriggerOptionWidget::showDynamicSettings(bool shown)
{
    ui->Implementation->setVisible(shown);
    ui->Usage->setVisible(shown);
}

void TriggerOptionWidget::fillImplementations()
{
    const QString previous = ui->ImpleComboBox->currentText();
    ui->ImpleComboBox->clear();
    ui->ImpleComboBox->addItems(triggerImplementations(hasShadowRam()));
    ui->ImpleComboBox->setCurrentIndex(qMax(0, ui->ImpleComboBox->findText(previous)));
    rememberImplementation();
}

void TriggerOptionWidget::updateUsage()
{
    if (!isDynamic())
        return;
    const int expressions = private_impl::expressionsInForce(ui->listExpression).size();
    const QString text = triggerUsageText(currentDevice(), ui->ImpleComboBox->currentText(), expressions,
                                          private_impl::checkedMatchUnits(matchUnits));
    if (!text.isNull())
        ui->UsageValue->setText(text);
}

void TriggerOptionWidget::handleIEvent(const QUtil::IEvent *event)
{
    if (event->type() != QLatin1String(TE::EventType::DeviceChange))
        return;
    updateUsage();
    fillImplementations();
}

QString TriggerOptionWidget::askForExpression()
{
    const QPointer<MuExpressionDialog> dialog = new MuExpressionDialog(this);
    for (int unit = DynamicMatchUnits; isDynamic() && unit < VAK::MatchUnitsPerCore; ++unit)
        dialog->findChild<QWidget *>(QStringLiteral("btnM%1").arg(unit))->setEnabled(false);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    dialog->deleteLater();
    return accepted ? dialog->expression() : QString();
}

void TriggerOptionWidget::editExpression(QListWidgetItem *item)
{
    const QString text = askForExpression();
    if (text.isEmpty())
        return;
    item->setText(text);
    emit modified();
    updateExpressionCheck();
    updateUsage();
}

bool TriggerOptionWidget::addExpression(const QString &refusalTitle)
{
    if (ui->listExpression->count() >= VAK::MaxExpressions) {
        private_impl::showBox(this, QMessageBox::Warning, refusalTitle,
                              QStringLiteral("Support 16 expressions at most."));
        return false;
    }
    const QString text = askForExpression();
    if (text.isEmpty())
        return false;
    private_impl::appendExpression(ui->listExpression, text);
    emit modified();
    return true;
}

void TriggerOptionWidget::showExpListContextMenu(QPoint pos)
{
    Q_UNUSED(pos)
    const QPointer<TriggerOptionWidget> self(this);
    auto *menu = new QMenu(this);
    const QAction *add = menu->addAction(QStringLiteral("Add"));
    QAction *remove = menu->addAction(QStringLiteral("Remove"));
    remove->setEnabled(!ui->listExpression->selectedItems().isEmpty());
    const QAction *chosen = menu->exec(QCursor::pos());
    if (!self)
        return;
    menu->deleteLater();
    if (chosen == remove)
        removeSelectedExpressions();
    else if (chosen == add)
        addExpression(QStringLiteral("Warning"));
    if (self)
        updateUsage();
}

void TriggerOptionWidget::removeSelectedExpressions()
{
    qDeleteAll(ui->listExpression->selectedItems());
    emit modified();
}

bool TriggerOptionWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick && watched == ui->listExpression->viewport()) {
        const auto *click = static_cast<QMouseEvent *>(event);
        if (!ui->listExpression->itemAt(click->pos())) {
            if (addExpression(QStringLiteral("Error")))
                updateUsage();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace RTLVAK
