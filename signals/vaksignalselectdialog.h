// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <VakUtils/signalitem.h>

#include <QDialog>

#include <memory>

namespace NETCATCHER {
class RtlNetlist;
}

namespace Ui {
class VakSignalSelectDialog;
}

namespace RTLVAK {

class RtlNetlistTreeView;
struct SearchCriteria;

/// Finds nets and buses of the design by name and collects a list of chosen ones.
class VAKINS_EXPORT VakSignalSelectDialog : public QDialog
{
    Q_OBJECT

public:
    /// The netlist is borrowed and may be null: then nothing is found.
    explicit VakSignalSelectDialog(NETCATCHER::RtlNetlist *netlist, QWidget *parent = nullptr);
    ~VakSignalSelectDialog() override;

    /// Goes on in another netlist, or in none, because the one before is about to end: what was found goes, what was
    /// chosen stays and is brought up to date.
    void setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist);
    /// Hands a netlist to the searches that are open over `page`.
    static void passOn(NETCATCHER::RtlNetlist *newNetlist, const QWidget *page);

    /// The chosen list, top to bottom.
    QList<VAK::SignalItem> chosenSignals() const;

    /// Runs the dialog; the chosen signals after OK, nothing after Cancel.
    static QList<VAK::SignalItem> getSignals(NETCATCHER::RtlNetlist *netlist, QWidget *parent);
    /// Runs the dialog where one net is wanted: the first chosen one, of a bus the first usable bit; else empty.
    static QString getSignalName(NETCATCHER::RtlNetlist *netlist, QWidget *parent);

public slots:
    void on_pushButtonSearch_clicked();
    void on_checkBoxAdvancedFilter_toggled(bool checked);
    void onAddSignal();
    void onAddAllSignal();
    void onDelSignal();
    void onDelAllSignal();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setUpSearchIn();
    void fillSearchIn();
    SearchCriteria criteria() const;
    void search();
    void showPatternError(const QString &reason);
    void addToChosen(const QList<VAK::SignalItem> &records);
    void showChosenCount();

    std::unique_ptr<::Ui::VakSignalSelectDialog> ui;
    NETCATCHER::RtlNetlist *netlist; ///< borrowed
    RtlNetlistTreeView *searchIn = nullptr;
};

} // namespace RTLVAK
