// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QWidget>

#include <memory>

namespace RTLVAK {

namespace Ui {
class ReloadBanner;
}

/// A strip above an editing area that asks what to do after something changed outside. It only asks: whoever made it
/// handles the answer and removes it.
class VAKINS_EXPORT ReloadBanner : public QWidget
{
    Q_OBJECT

public:
    /// What happened to the file. Any other number leaves the form's texts, with buttons that do nothing.
    enum Kind : int { Changed = 0, Removed = 1 };

    /// `path` is named in the question; with native separators, and as it is, whatever characters it holds.
    ReloadBanner(int kind, const QString &path, QWidget *parent);
    ~ReloadBanner() override;

    /// Replaces the question; shown as plain text.
    void setText(const QString &text);

signals:
    /// The answers to Changed.
    void reload();
    void cancel();
    /// The answers to Removed.
    void keepIt();
    void closeIt();

private:
    void askAboutChange(const QString &path);
    void askAboutRemoval(const QString &path);

    std::unique_ptr<Ui::ReloadBanner> ui;
};

} // namespace RTLVAK
