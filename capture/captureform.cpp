// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/captureform.h"

#include "rules/implementationlist.h"
#include "rules/sizechoices.h"
#include "rules/usageestimate.h"
#include "signals/vaksignalselectdialog.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>
#include <VakUtils/aocore.h>
#include <VakUtils/vaktool.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>

namespace RTLVAK {

TE::DeviceInfo currentDevice()
{
    return TE::TaskEngine::instance()->designManager()->currentDevice();
}

bool currentDeviceHasShadowRam()
{
    const TE::DeviceInfo device = currentDevice();
    return VAK_TOOL::currentDeviceSsramAmount(device.name, device.package) != 0;
}

void showSampleClock(QLineEdit *clock, QRadioButton *rising, QRadioButton *falling, const QString &name, int edge)
{
    QObject::connect(clock, &QLineEdit::textChanged, clock,
                     &QWidget::setToolTip); // the name may be longer than the field
    clock->setText(name);
    (edge == VAK::RisingEdge ? rising : falling)->setChecked(true);
}

bool chooseSampleClock(QLineEdit *clock, NETCATCHER::RtlNetlist *netlist, QWidget *page)
{
    const QPointer<QWidget> alive(page);
    const QString name = VakSignalSelectDialog::getSignalName(netlist, page);
    if (!alive || name.isEmpty())
        return false;
    clock->setText(name);
    return true;
}

void appendNumbers(QComboBox *combo, const QList<int> &numbers)
{
    for (int number : numbers)
        combo->addItem(QString::number(number), number);
}

void selectTextOrLast(QComboBox *combo, const QString &text)
{
    const int row = combo->findText(text);
    combo->setCurrentIndex(row < 0 ? combo->count() - 1 : row);
}

void selectStoredNumber(QComboBox *combo, int stored)
{
    const int row = combo->findData(stored);
    combo->setCurrentIndex(row);
    if (row >= 0)
        return;
    combo->setToolTip(QCoreApplication::translate("RTLVAK::CaptureForm",
                                                  "The stored value %1 is not among those offered here. "
                                                  "It is kept until another one is chosen.")
                          .arg(stored));
    QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), combo, [combo](int index) {
        if (index >= 0)
            combo->setToolTip(QString());
    });
}

int shownNumber(const QComboBox *combo)
{
    return numberShown(combo->currentText());
}

void offerImplementations(QComboBox *combo, const QStringList &offered)
{
    const QString previous = combo->currentText();
    if (isImplementationListCurrent(offered, combo->count(), previous))
        return;
    combo->clear();
    combo->addItems(offered);
    combo->setCurrentIndex(reselectedImplementation(offered, previous));
}

void showUsage(QLabel *title, QLabel *value, const CaptureUsage &usage)
{
    if (!usage.title.isEmpty())
        title->setText(usage.title);
    value->setText(captureUsageText(usage.need, usage.available));
}

void deleteChildWidgets(QWidget *page)
{
    qDeleteAll(page->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

} // namespace RTLVAK
