// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QDialog>

#include <memory>

namespace VAK {

class MatchUnit;

/// Edits one match unit: its trigger port, function, values and counter. The unit is changed only when OK is accepted.
class HOST_EXPORT MatchUnitDialog : public QDialog
{
    Q_OBJECT

public:
    /// `matchUnit` is borrowed and outlives the dialog. With `readOnly` everything is shown and nothing can be edited.
    MatchUnitDialog(VAK::MatchUnit *matchUnit, bool readOnly, QWidget *parent = nullptr);
    ~MatchUnitDialog() override;

public slots:
    void accept() override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace VAK
