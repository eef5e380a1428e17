// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "capture/aooptionwidget.h"
#include "fakes/fakedesign.h"
#include "fakes/fakeevents.h"
#include "fakes/fakenetcatcher.h"
#include "plugin/vakinserterview.h"
#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "support/signallog.h"
#include "support/tempdir.h"
#include "support/widgethelpers.h"
#include "views/vakstandardinserterview.h"
#include "widgets/reloadbanner.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/vakfile.h>

#include <QPointer>
#include <QStackedWidget>
#include <QTreeWidget>

#include <memory>

namespace support {

/// The two kinds of file, and of view.
enum class Mode { Standard, Lite };

/// Makes every function of a test program run for both modes; for its initTestCase_data().
void addModes();
/// The mode of the row that runs; Standard in programs without addModes().
Mode currentMode();

/// Cores that validate against design(): clock "clk", "valid" captured; in Standard mode M0 on port 0 as the trigger.
std::unique_ptr<VAK::AoCore> completeCore(int index);
std::unique_ptr<VAK::AOCore_Lite> completeLiteCore(int index);
/// The design that the complete cores were chosen from: top module "soc".
fakes::Instance design();

/// Writes a file with `count` complete cores and answers its path.
QString writeFile(Mode mode, const TempDir &dir, const QString &name, int count);
/// Gives the first core of the file at `path` another sample clock, or another captured signal at the end of its list,
/// as another program would.
void changeClockOnDisk(const QString &path, const QString &clock);
void addSignalOnDisk(const QString &path, const QString &name);
/// The sample clocks of the cores in the file.
QStringList clocksInFile(const QString &path);

std::unique_ptr<RTLVAK::VakInserterView> makeView(Mode mode, QWidget *parent = nullptr);
/// Calls a slot of a view by its name in the Standard view; answers its result, true for slots without one.
bool call(RTLVAK::VakInserterView &view, const QByteArray &slot);

/// A view in a container, like the one in which the host shows it, over a design of the doubles.
class ViewFixture
{
public:
    /// Resets the doubles and offers design() with one source file.
    explicit ViewFixture(Mode mode = currentMode());
    ~ViewFixture();

    /// Writes NAME with `count` complete cores.
    QString write(const QString &name, int count) const { return writeFile(mode, dir, name, count); }
    /// The same, and opens it; fails the test when that fails.
    bool open(int count = 1, const QString &name = QStringLiteral("some.rvk"));
    /// Deletes container and view.
    void kill();

    RTLVAK::VakInserterView &view() const { return *viewPointer; }
    RTLVAK::VakStandardInserterView &standardView() const;
    bool viewLives() const { return !viewPointer.isNull(); }
    QWidget &container() const { return *containerPointer; }
    bool containerLives() const { return !containerPointer.isNull(); }
    bool call(const QByteArray &slot) const { return support::call(view(), slot); }
    void setModified(bool on) const;

    /// The list of cores: a tree in Standard mode, a combo box in Lite mode.
    QTreeWidget &tree() const { return child<QTreeWidget>(view(), "treeWidget"); }
    QStringList items() const;
    /// What items() is to be for `count` cores.
    QStringList titles(int count) const;
    QString currentItem() const;
    void showCore(int number) const;
    /// Adds a core as a person does.
    void addCore();

    QStackedWidget &stack() const { return child<QStackedWidget>(view(), "stackedWidget"); }
    /// The page at this position of the stack, and what its core and its widgets hold.
    QWidget &page(int position) const;
    RTLVAK::AoOptionWidget &standardPage(int position) const;
    int coreNumber(int position) const;
    QString coreClock(int position) const;
    QString clockShown(int position) const;
    void editClock(int position, const QString &clock) const;
    QTreeWidget &captured(int position) const;
    QString pageTitle() const;

    /// The banners that are shown, first to last.
    QList<RTLVAK::ReloadBanner *> banners() const;
    QStringList bannerTexts() const;
    void clickBanner(int number, const char *button) const;

    /// Asks for the context menu of the item in `row`; of the empty area for -1. Answers come from the driver.
    void contextMenu(int row) const;

    const Mode mode;
    TempDir dir;
    QString path; ///< of the file that is open
    DialogDriver driver;

private:
    QPointer<QWidget> containerPointer;
    QPointer<RTLVAK::VakInserterView> viewPointer;
};

} // namespace support

Q_DECLARE_METATYPE(support::Mode)
