// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "workbenchtest.h"

#include "signals/signaltreewidget.h"

#include <IdeCore/iview.h>

#include <QPointer>

/// A Standard configuration of the small project that passes every check, with `coreCount` equal cores.
QByteArray analyzerFile(int coreCount = 1);

/// Base of the tests that open an analyzer of the small project in the real window.
class AnalyzerTest : public WorkbenchTest
{
    Q_OBJECT

protected:
    /// Writes `contents` to a.rvk, opens the project and the file, and turns to the capture page of the first core.
    void openAnalyzer(const QByteArray &contents = analyzerFile());
    /// Makes an edit that only a reload of the file can undo.
    void edit() const;
    bool isEdited() const;

    /// The questions that stand above the editing area of `view` and are still to be answered.
    static QStringList banners(const Core::IView &view);
    QStringList banners() const { return banners(*analyzer); }
    /// Clicks a button of the first question.
    void answerBanner(const char *button) const;

    /// The page of the core that is shown.
    QWidget &page() const;
    RTLVAK::signalTreeWidget &signalTree() const;

    QPointer<Core::IView> analyzer;
};
