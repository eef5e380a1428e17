// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/matchunitdialog.h>

#include "bittablemodel.h"
#include "bittableview.h"
#include "matchunitform.h"
#include "matchunittext.h"
#include "matchvalue.h"

#include <VakUtils/aocore.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QPushButton>

namespace VAK {

struct MatchUnitDialog::Private
{
    Private(MatchUnitDialog *dialog, MatchUnit *matchUnit);

    void fillPorts();
    void load();
    void connectAll(MatchUnitDialog *dialog);
    void protect();

    void portChanged();
    void functionChanged();
    void counterChanged();
    void showBits();
    void showPortBits();
    void chooseBit(int column, int row, QChar character);
    QString fitted(const QLineEdit *edit, const QString &value) const;
    void showFitted(int stored);
    void showValues();
    void showMessage(const QString &message, const QString &numbers);

    TriggerPort *port() const;
    int width() const;
    MatchFunction function() const;
    bool isRange() const { return isRangeFunction(function()); }
    QString value(const QLineEdit *edit, QString *error) const;
    QString error(QLineEdit **culprit) const;
    void store() const;

    MatchUnit *unit;
    MatchUnitForm form;
    BitTableModel *bits;
    MatchFunction shownFunction; ///< the function and the width that the shown values were made for
    int shownWidth = 0;
};

MatchUnitDialog::Private::Private(MatchUnitDialog *dialog, MatchUnit *matchUnit)
    : unit(matchUnit)
    , form(dialog)
    , bits(new BitTableModel(dialog))
    , shownFunction(matchUnit->function())
{
    form.tableBits->setModel(bits);
}

static QString portText(const TriggerPort &port)
{
    if (!port.isAvailable())
        return MatchUnitDialog::tr("%1 (no signals)").arg(triggerPortName(port));
    return MatchUnitDialog::tr("%1 (%2 bits)").arg(triggerPortName(port)).arg(port.width());
}

/// Ports without signals are offered only where the unit is bound to one.
void MatchUnitDialog::Private::fillPorts()
{
    form.comboPort->addItem(MatchUnitDialog::tr("(none)"), -1);
    for (const TriggerPort *offered : unit->core()->allTriggers()) {
        if (!offered->isAvailable() && offered != unit->triggerPort())
            continue;
        form.comboPort->addItem(portText(*offered), offered->index());
        if (!offered->isAvailable())
            form.comboPort->setItemData(form.comboPort->count() - 1, QColor(Qt::red), Qt::ForegroundRole);
    }
}

void MatchUnitDialog::Private::load()
{
    fillPorts();
    const int index = unit->triggerPort() ? unit->triggerPort()->index() : -1;
    form.comboPort->setCurrentIndex(form.comboPort->findData(index));
    form.comboFunction->addItems(matchFunctionTexts());
    form.comboFunction->setCurrentIndex(static_cast<int>(unit->function()));
    form.editValue0->setText(fitted(form.editValue0, unit->value0()));
    form.editValue1->setText(fitted(form.editValue1, unit->value1()));
    form.comboCounter->setCurrentIndex(static_cast<int>(unit->counterMode()));
    form.spinCount->setValue(unit->counterValue());
    showFitted(unit->value0().size());
    showPortBits();
    showBits();
    counterChanged();
}

void MatchUnitDialog::Private::connectAll(MatchUnitDialog *dialog)
{
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(form.comboPort, indexChanged, dialog, [this] { portChanged(); });
    connect(form.comboFunction, indexChanged, dialog, [this] { functionChanged(); });
    connect(form.comboCounter, indexChanged, dialog, [this] { counterChanged(); });
    connect(form.spinCount, QOverload<int>::of(&QSpinBox::valueChanged), dialog, [this] { counterChanged(); });
    connect(form.editValue0, &QLineEdit::textChanged, dialog, [this] { showValues(); });
    connect(form.editValue1, &QLineEdit::textChanged, dialog, [this] { showValues(); });
    connect(bits, &BitTableModel::bitChosen, dialog,
            [this](int column, int row, QChar character) { chooseBit(column, row, character); });
    connect(form.tableBits, &BitTableView::pasted, dialog, [this](int column, const QString &text) {
        (column == BitTableModel::UpperColumn ? form.editValue1 : form.editValue0)->setText(text.trimmed());
    });
    connect(form.buttonBox, &QDialogButtonBox::accepted, dialog, &MatchUnitDialog::accept);
    connect(form.buttonBox, &QDialogButtonBox::rejected, dialog, &MatchUnitDialog::reject);
}

void MatchUnitDialog::Private::protect()
{
    for (QWidget *widget : QList<QWidget *>{form.comboPort, form.comboFunction, form.comboCounter, form.spinCount})
        widget->setEnabled(false);
    form.editValue0->setReadOnly(true);
    form.editValue1->setReadOnly(true);
    bits->setReadOnly(true);
    form.buttonBox->setStandardButtons(QDialogButtonBox::Close);
}

TriggerPort *MatchUnitDialog::Private::port() const
{
    return unit->core()->getTrigger(form.comboPort->currentData().toInt());
}

int MatchUnitDialog::Private::width() const
{
    return port() ? port()->width() : 0;
}

MatchFunction MatchUnitDialog::Private::function() const
{
    return static_cast<MatchFunction>(form.comboFunction->currentIndex());
}

QString MatchUnitDialog::Private::value(const QLineEdit *edit, QString *error) const
{
    return storedValue(edit->text(), width(), function(), error);
}

/// A stored value at the port's width. The upper bound begins where it excludes nothing.
QString MatchUnitDialog::Private::fitted(const QLineEdit *edit, const QString &value) const
{
    if (width() == 0)
        return value;
    if (edit == form.editValue1 && value.isEmpty())
        return QString(width(), QLatin1Char('1'));
    return fittedValue(value, width(), function());
}

void MatchUnitDialog::Private::showFitted(int stored)
{
    const bool fitted = width() > 0 && stored > 0 && stored != width();
    form.labelFitted->setVisible(fitted);
    form.labelFitted->setText(
        MatchUnitDialog::tr("The value had %1 bits, the port has %2: it is shown fitted.").arg(stored).arg(width()));
}

void MatchUnitDialog::Private::portChanged()
{
    int length = 0;
    for (QLineEdit *edit : {form.editValue1, form.editValue0}) {
        QString ignored;
        const QString value = storedValue(edit->text(), shownWidth, function(), &ignored);
        const QString shown = value.isEmpty() ? edit->text() : value;
        length = shown.size();
        edit->setText(fitted(edit, shown));
    }
    showFitted(length);
    showPortBits();
    showBits();
}

/// A value that says nothing yet says nothing in the new function's way.
void MatchUnitDialog::Private::functionChanged()
{
    const QString blank(width(), unsetBit(shownFunction));
    if (form.editValue0->text() == blank)
        form.editValue0->setText(QString(width(), unsetBit(function())));
    shownFunction = function();
    showBits();
}

void MatchUnitDialog::Private::counterChanged()
{
    const bool counts = form.comboCounter->currentIndex() != static_cast<int>(CounterMode::Off);
    form.spinCount->setEnabled(counts && form.comboCounter->isEnabled());
    form.labelCounter->setText(
        counterExplanation(static_cast<CounterMode>(form.comboCounter->currentIndex()), form.spinCount->value()));
}

static BitTableModel::Bit bitOf(const SignalItem &signal)
{
    return {signal.displayName.isEmpty() ? signal.name : signal.displayName, signal.name};
}

void MatchUnitDialog::Private::showPortBits()
{
    QList<BitTableModel::Bit> list;
    const QList<SignalItem> signalNet = port() ? port()->getSignalNet() : QList<SignalItem>();
    for (const SignalItem &signal : signalNet) {
        if (signal.members.isEmpty())
            list.append(bitOf(signal));
        for (const SignalItem &member : signal.members)
            list.append(bitOf(member));
    }
    bits->setBits(list);
}

void MatchUnitDialog::Private::showBits()
{
    bits->setCharacters(valueCharacters(function()));
    bits->setUpperShown(isRange());
    form.showRange(isRange());
    form.setValueEnabled(width() > 0);
    form.labelHint->setText(width() > 0 ? valueHint(function())
                                        : MatchUnitDialog::tr("Choose a trigger port with signals to set the value."));
    form.sizeColumns();
    shownWidth = width();
    showValues();
}

void MatchUnitDialog::Private::showValues()
{
    QString ignored;
    const QString value0 = value(form.editValue0, &ignored);
    const QString value1 = isRange() ? value(form.editValue1, &ignored) : QString();
    bits->setValues(value0, value1);
    const QString number0 = valueAsNumber(value0);
    const QString number1 = valueAsNumber(value1);
    QLineEdit *culprit = nullptr;
    showMessage(error(&culprit), number1.isEmpty() ? number0 : QStringLiteral("%1\n%2").arg(number0, number1));
}

void MatchUnitDialog::Private::showMessage(const QString &message, const QString &numbers)
{
    form.labelMessage->setText(message.isEmpty() ? numbers : message);
    QPalette palette = form.labelHint->palette();
    if (!message.isEmpty())
        palette.setColor(QPalette::WindowText, Qt::red);
    form.labelMessage->setPalette(palette);
}

void MatchUnitDialog::Private::chooseBit(int column, int row, QChar character)
{
    QLineEdit *edit = column == BitTableModel::UpperColumn ? form.editValue1 : form.editValue0;
    QString ignored;
    QString text = value(edit, &ignored);
    if (text.isEmpty())
        text = QString(width(), unsetBit(function()));
    edit->setText(text.replace(row, 1, character));
}

/// What keeps the dialog from being accepted; empty when nothing does.
QString MatchUnitDialog::Private::error(QLineEdit **culprit) const
{
    QString message;
    if (width() == 0)
        return message;
    *culprit = form.editValue0;
    const QString value0 = value(form.editValue0, &message);
    if (!message.isEmpty() || !isRange())
        return message;
    *culprit = form.editValue1;
    const QString value1 = value(form.editValue1, &message);
    if (message.isEmpty() && value1 < value0) // both of one length: the order of texts is that of numbers
        message = MatchUnitDialog::tr("The upper bound is below the lower bound.");
    return message;
}

void MatchUnitDialog::Private::store() const
{
    QString ignored;
    const auto mode = static_cast<CounterMode>(form.comboCounter->currentIndex());
    if (width() > 0) {
        unit->setFunction(function());
        unit->setValue0(value(form.editValue0, &ignored));
        unit->setValue1(isRange() ? value(form.editValue1, &ignored) : QString());
    }
    unit->setTriggerPort(port());
    unit->setCounterMode(mode);
    unit->setCounterValue(mode == CounterMode::Off ? 1 : form.spinCount->value());
}

MatchUnitDialog::MatchUnitDialog(MatchUnit *matchUnit, bool readOnly, QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>(this, matchUnit))
{
    setWindowTitle(tr("Match Unit %1").arg(matchUnitName(*matchUnit)));
    d->load();
    d->connectAll(this);
    if (readOnly)
        d->protect();
}

MatchUnitDialog::~MatchUnitDialog() = default;

void MatchUnitDialog::accept()
{
    QLineEdit *culprit = nullptr;
    const QString message = d->error(&culprit);
    if (message.isEmpty()) {
        d->store();
        QDialog::accept();
        return;
    }
    d->showMessage(message, {});
    culprit->setFocus();
    culprit->selectAll();
}

} // namespace VAK
