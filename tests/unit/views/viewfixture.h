// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "capture/aooptionwidget.h"
#include "fakes/fakedesign.h"
#include "fakes/fakeevents.h"
#include "fakes/fakenetcatcher.h"
#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "support/signallog.h"
#include "support/tempdir.h"
#include "support/widgethelpers.h"
#include "views/vakstandardinserterview.h"
#include "widgets/reloadbanner.h"

#include <VakUtils/aocore.h>
#include <VakUtils/vakfile.h>

#include <QPointer>
#include <QStackedWidget>
#include <QTreeWidget>

#include <memory>

namespace support {

/// A core that validates against design(): port 0 on "data", M0 on it, the expression M0, clock "clk", "data" captured.
std::unique_ptr<VAK::AoCore> completeCore(int index);
/// The design that completeCore() was chosen from: top module "soc".
fakes::Instance design();

/// Writes a file with `count` complete cores and answers its path.
QString writeStandardFile(const TempDir &dir, const QString &name, int count);
/// Gives one core of the file at `path` another sample clock, as another program would.
void changeClockOnDisk(const QString &path, const QString &clock);
/// The sample clocks of the cores in the file.
QStringList clocksInFile(const QString &path);

/// A Standard view in a container, like the one in which the host shows it, over a design of the doubles.
class ViewFixture
{
public:
    /// Resets the doubles and offers design() with one source file.
    ViewFixture();
    ~ViewFixture();

    /// Writes NAME with `count` complete cores and opens it; fails the test when that fails.
    bool open(int count = 1, const QString &name = QStringLiteral("some.rvk"));
    /// Deletes container and view.
    void kill();

    RTLVAK::VakStandardInserterView &view() const { return *viewPointer; }
    bool viewLives() const { return !viewPointer.isNull(); }
    QWidget &container() const { return *containerPointer; }
    bool containerLives() const { return !containerPointer.isNull(); }

    QTreeWidget &tree() const { return child<QTreeWidget>(view(), "treeWidget"); }
    QStackedWidget &stack() const { return child<QStackedWidget>(view(), "stackedWidget"); }
    QStringList items() const { return topTexts(tree()); }
    /// The page of the core at this position of the stack.
    RTLVAK::AoOptionWidget &page(int position) const;
    QString pageTitle() const;
    QString currentItem() const;
    QString clockShown(int position) const;
    void editClock(int position, const QString &clock) const;

    /// The banners that are shown, top first.
    QList<RTLVAK::ReloadBanner *> banners() const;
    QStringList bannerTexts() const;
    void clickBanner(int number, const char *button) const;

    /// Asks for the context menu of the item in `row`; of the empty area for -1. Answers come from the driver.
    void contextMenu(int row) const;

    TempDir dir;
    QString path; ///< of the file that is open
    DialogDriver driver;

private:
    QPointer<QWidget> containerPointer;
    QPointer<RTLVAK::VakStandardInserterView> viewPointer;
};

} // namespace support
