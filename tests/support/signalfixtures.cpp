// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signalfixtures.h"

#include "signals/vaksignalselectdialog.h"

#include "tests/fakes/fakenetlist.h"
#include "tests/support/widgethelpers.h"

#include <QLineEdit>
#include <QRadioButton>

VAK::SignalItem single(const QString &name, int active)
{
    VAK::SignalItem signal;
    signal.name = name;
    signal.active = active;
    return signal;
}

VAK::SignalItem bus(const QString &base, int width, int active)
{
    VAK::SignalItem signal = single(QStringLiteral("%1[%2:0]").arg(base).arg(width - 1), active);
    signal.kind = 1;
    for (int bit = width - 1; bit >= 0; --bit)
        signal.members.append(single(QStringLiteral("%1[%2]").arg(base).arg(bit), active));
    return signal;
}

QStringList names(const QList<VAK::SignalItem> &signalItems)
{
    QStringList list;
    for (const VAK::SignalItem &signal : signalItems)
        list.append(signal.name);
    return list;
}

std::unique_ptr<NETCATCHER::RtlNetlist> makeDesign()
{
    fakes::Instance top(QStringLiteral("top"));
    top.net(QStringLiteral("clk")).net(QStringLiteral("rst")).net(QStringLiteral("spare"));
    top.bus(QStringLiteral("data"), 7, 0).bus(QStringLiteral("wide"), 511, 0);
    top.child(QStringLiteral("u_core"), QStringLiteral("core")).net(QStringLiteral("halt"));
    return std::unique_ptr<NETCATCHER::RtlNetlist>(fakes::makeNetlist(top));
}

void chooseNets(support::DialogDriver &driver, const QString &pattern)
{
    driver.answerDialogOf<RTLVAK::VakSignalSelectDialog>([pattern](RTLVAK::VakSignalSelectDialog &dialog) {
        support::child<QLineEdit>(dialog, "lineEditName").setText(pattern);
        support::child<QRadioButton>(dialog, "radioButtonWildcard").setChecked(true);
        support::clickButton(dialog, "pushButtonSearch");
        support::clickButton(dialog, "btnAddAll");
        dialog.accept();
    });
}
