// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <deque>
#include <functional>

class QMenu;

namespace support {

/// What a message box showed.
struct BoxRecord
{
    QString title;
    QString text;
    QString informativeText;
    QString detailedText;
    Qt::TextFormat textFormat = Qt::AutoText;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    QStringList buttonTexts;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton; ///< what Return clicks
    QMessageBox::StandardButton escapeButton = QMessageBox::NoButton;  ///< what Escape clicks
    QWidget *parent = nullptr;                                         ///< only an address once the box is gone
};

/// What a menu offered, separators left out.
struct MenuRecord
{
    QStringList texts;
    QStringList enabledTexts;
    QStringList checkedTexts;
};

/// Answers message boxes, menus and modal dialogs of the code under test as scripted, in the order in which they
/// appear.
///
/// Answers are queued before the code is run that shows something; a dialog opened while another is being answered
/// takes the next answer, so nesting needs nothing special. Whatever appears without an answer, or with an answer meant
/// for something else, is recorded and rejected, and the test fails. So does a test that leaves answers unused
/// (finish(), called by the destructor at the latest). Progress dialogs and non-modal dialogs are left alone.
///
///     DialogDriver driver;
///     driver.answerBox(QMessageBox::No);
///     view.close();
///     QCOMPARE(driver.boxes().size(), 1);
///     QCOMPARE(driver.boxes().at(0).text, QString("..."));
class DialogDriver : public QObject
{
public:
    DialogDriver();
    ~DialogDriver() override;

    /// Clicks `button` in the next box. `look`, when given, is called with the box first.
    void answerBox(QMessageBox::StandardButton button, const std::function<void(QMessageBox &)> &look = {});
    /// Presses Escape in the next box.
    void escapeBox();
    /// Calls `act` with the next box (menu), which must close it: click, press a key, or delete the window that it
    /// stands on.
    void actOnBox(const std::function<void(QMessageBox &)> &act);
    void actOnMenu(const std::function<void(QMenu &)> &act);
    /// Triggers the entry `text` of the next menu; ampersands count. An entry that opens a submenu takes a further
    /// answer.
    void chooseFromMenu(const QString &text);
    /// Closes the next menu without a choice.
    void dismissMenu();
    /// Calls `act` with the next dialog, which must close it (accept(), a click on its buttons ...).
    void answerDialog(const std::function<void(QDialog &)> &act);
    /// The same for a dialog that must be a T.
    template <typename T>
    void answerDialogOf(const std::function<void(T &)> &act)
    {
        answerDialog([this, act](QDialog &dialog) {
            if (auto *wanted = dynamic_cast<T *>(&dialog))
                act(*wanted);
            else
                fail(QStringLiteral("a dialog of another class appeared: ") + describe(&dialog));
        });
    }
    /// Types `path` into the next file dialog and accepts it.
    void chooseFile(const QString &path);
    /// Enters `text` into the next input dialog and accepts it.
    void enterText(const QString &text);

    /// What appeared so far, in order, answered or not.
    const QList<BoxRecord> &boxes() const { return boxRecords; }
    const QList<MenuRecord> &menus() const { return menuRecords; }
    /// Class names of the other dialogs.
    const QStringList &dialogs() const { return dialogClasses; }
    /// The number of things that appeared, of any kind.
    int shownCount() const { return boxRecords.size() + menuRecords.size() + dialogClasses.size(); }

    /// Forgets the records; answers stay queued.
    void clearRecords();
    /// Fails the test when answers are left; drops them. Returns whether everything went as scripted since the start.
    bool finish();

    /// What went wrong so far. Reported to the test at once, unless collected.
    const QStringList &failures() const { return failureTexts; }
    /// Only collect failures: for tests of the driver.
    void setReporting(bool on) { reporting = on; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Kind { Box, Menu, Dialog };
    struct Answer
    {
        Kind kind;
        std::function<void(QWidget &)> act;
    };

    void meet(QWidget *window, Kind kind);
    void record(QWidget *window, Kind kind);
    void fail(const QString &text);
    static bool concerns(QWidget *window, Kind *kind);
    static void reject(QWidget *window);
    static QString describe(const QWidget *window);
    void choose(QMenu &menu, const QString &text);

    std::deque<Answer> answers;
    QList<BoxRecord> boxRecords;
    QList<MenuRecord> menuRecords;
    QStringList dialogClasses;
    QStringList failureTexts;
    bool reporting = true;
};

} // namespace support
