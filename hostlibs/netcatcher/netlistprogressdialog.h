// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "buildprogress.h"

#include <QElapsedTimer>
#include <QProgressDialog>

class QLabel;
class QProgressBar;

namespace NETCATCHER {

/// Shows how far the building of a netlist is: stage, bytes where they are known, and the time that passed. It blocks
/// the application's other windows and cannot be closed by the user.
class NetlistProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    explicit NetlistProgressDialog(QWidget *parent);

    /// Shows the state and lets the windows repaint themselves.
    void report(const BuildProgress &progress);

public slots:
    /// Does nothing: Escape does not end the work.
    void reject() override;

protected:
    /// Refuses.
    void closeEvent(QCloseEvent *event) override;

private:
    void showStage(const BuildProgress &progress);

    QLabel *m_text;
    QProgressBar *m_bar;
    QElapsedTimer m_timer;
    QElapsedTimer m_sinceRepaint;
    int m_shownStage = -1;
};

} // namespace NETCATCHER
