// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "buildprogress.h"

#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QProgressBar;

namespace NETCATCHER {

/// Shows how far the building of a netlist is: stage, bytes where they are known, and the time that passed. It blocks
/// the application's other windows and cannot be closed by the user.
class NetlistProgressDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NetlistProgressDialog(QWidget *parent);

    /// Shows the state and lets the dialog repaint itself.
    void report(const BuildProgress &progress);

public slots:
    /// Does nothing: neither Escape nor the window's close button ends the work.
    void reject() override;

private:
    void showStage(const BuildProgress &progress);

    QLabel *m_stage;
    QLabel *m_elapsed;
    QProgressBar *m_bar;
    QElapsedTimer m_timer;
    QElapsedTimer m_sinceRepaint;
    int m_shownStage = -1;
};

} // namespace NETCATCHER
