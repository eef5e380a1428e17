// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QWidget>

#include <memory>

class QPushButton;

namespace RTLVAK {

namespace Ui {
class ChangedBanner;
}

/// A strip that says that the netlist changed. The view that holds it connects its button.
class VAKINS_EXPORT ChangedBanner : public QWidget
{
    Q_OBJECT

public:
    explicit ChangedBanner(QWidget *parent = nullptr);
    ~ChangedBanner() override;

    /// The button that dismisses the strip; the strip itself does nothing on a click.
    QPushButton *okButton() const;

private:
    std::unique_ptr<Ui::ChangedBanner> ui;
};

} // namespace RTLVAK
