// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/dialogdriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace support {

/// The button that the box's own rules would take for Escape.
static QMessageBox::StandardButton escapeButtonOf(const QMessageBox &box)
{
    if (box.escapeButton())
        return box.standardButton(box.escapeButton());
    const QList<QAbstractButton *> buttons = box.buttons();
    if (buttons.size() == 1)
        return box.standardButton(buttons.first());
    if (box.standardButtons() & QMessageBox::Cancel)
        return QMessageBox::Cancel;
    for (const QMessageBox::ButtonRole role : {QMessageBox::RejectRole, QMessageBox::NoRole}) {
        QList<QAbstractButton *> candidates;
        for (QAbstractButton *button : buttons) {
            if (box.buttonRole(button) == role)
                candidates.append(button);
        }
        if (candidates.size() == 1)
            return box.standardButton(candidates.first());
    }
    return QMessageBox::NoButton;
}

static BoxRecord recordOf(const QMessageBox &box)
{
    BoxRecord record;
    record.title = box.windowTitle();
    record.text = box.text();
    record.informativeText = box.informativeText();
    record.detailedText = box.detailedText();
    record.textFormat = box.textFormat();
    record.icon = box.icon();
    record.buttons = box.standardButtons();
    record.escapeButton = escapeButtonOf(box);
    record.parent = box.parentWidget();
    for (QAbstractButton *button : box.buttons()) {
        record.buttonTexts.append(button->text());
        auto *pushButton = qobject_cast<QPushButton *>(button);
        if (pushButton && pushButton->isDefault())
            record.defaultButton = box.standardButton(button);
    }
    return record;
}

static MenuRecord recordOf(const QMenu &menu)
{
    MenuRecord record;
    for (const QAction *action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible())
            continue;
        record.texts.append(action->text());
        if (action->isEnabled())
            record.enabledTexts.append(action->text());
        if (action->isChecked())
            record.checkedTexts.append(action->text());
    }
    return record;
}

DialogDriver::DialogDriver()
{
    qApp->installEventFilter(this);
}

DialogDriver::~DialogDriver()
{
    finish();
}

void DialogDriver::answerBox(QMessageBox::StandardButton button, const std::function<void(QMessageBox &)> &look)
{
    answers.push_back({Kind::Box, [this, button, look](QWidget &window) {
                           auto &box = static_cast<QMessageBox &>(window);
                           const QPointer<QMessageBox> guard(&box);
                           if (look)
                               look(box);
                           if (!guard)
                               return; // the test made the box's parent die
                           if (QAbstractButton *wanted = box.button(button))
                               wanted->click();
                           else
                               fail(QStringLiteral("the box has no such button: ") + describe(&box));
                       }});
}

void DialogDriver::escapeBox()
{
    answers.push_back({Kind::Box, [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Escape); }});
}

void DialogDriver::actOnBox(const std::function<void(QMessageBox &)> &act)
{
    answers.push_back({Kind::Box, [act](QWidget &window) { act(static_cast<QMessageBox &>(window)); }});
}

void DialogDriver::actOnMenu(const std::function<void(QMenu &)> &act)
{
    answers.push_back({Kind::Menu, [act](QWidget &window) { act(static_cast<QMenu &>(window)); }});
}

void DialogDriver::chooseFromMenu(const QString &text)
{
    answers.push_back({Kind::Menu, [this, text](QWidget &window) { choose(static_cast<QMenu &>(window), text); }});
}

void DialogDriver::dismissMenu()
{
    answers.push_back({Kind::Menu, [](QWidget &window) { window.close(); }});
}

void DialogDriver::answerDialog(const std::function<void(QDialog &)> &act)
{
    answers.push_back({Kind::Dialog, [act](QWidget &window) { act(static_cast<QDialog &>(window)); }});
}

void DialogDriver::chooseFile(const QString &path)
{
    answerDialogOf<QFileDialog>([path](QFileDialog &dialog) {
        if (auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
            edit->setText(path);
        static_cast<QDialog &>(dialog).accept();
    });
}

void DialogDriver::enterText(const QString &text)
{
    answerDialogOf<QInputDialog>([text](QInputDialog &dialog) {
        dialog.setTextValue(text);
        dialog.accept();
    });
}

void DialogDriver::clearRecords()
{
    boxRecords.clear();
    menuRecords.clear();
    dialogClasses.clear();
}

bool DialogDriver::finish()
{
    if (!answers.empty())
        fail(QStringLiteral("%1 scripted answer(s) were not asked for").arg(answers.size()));
    answers.clear();
    return failureTexts.isEmpty();
}

bool DialogDriver::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto *window = static_cast<QWidget *>(watched);
        Kind kind;
        // Answered from the event loop that the window is about to start.
        if (concerns(window, &kind))
            QTimer::singleShot(0, window, [this, window, kind] { meet(window, kind); });
    }
    return QObject::eventFilter(watched, event);
}

/// A dialog that only shows how far something is: nothing to click, a bar.
static bool isProgress(const QWidget *window)
{
    return qobject_cast<const QProgressDialog *>(window) ||
           (window->findChild<QProgressBar *>() && !window->findChild<QAbstractButton *>());
}

bool DialogDriver::concerns(QWidget *window, Kind *kind)
{
    if (qobject_cast<QMessageBox *>(window))
        *kind = Kind::Box;
    else if (qobject_cast<QMenu *>(window))
        *kind = Kind::Menu;
    else if (qobject_cast<QDialog *>(window) && window->isModal() && !isProgress(window))
        *kind = Kind::Dialog;
    else
        return false;
    return true;
}

void DialogDriver::meet(QWidget *window, Kind kind)
{
    if (!window->isVisible())
        return;
    record(window, kind);
    if (answers.empty() || answers.front().kind != kind) {
        fail(QStringLiteral("unscripted: ") + describe(window));
        reject(window);
        return;
    }
    const Answer answer = std::move(answers.front());
    answers.pop_front();
    const QPointer<QWidget> guard(window);
    answer.act(*window);
    if (kind != Kind::Menu && guard && guard->isVisible()) {
        fail(QStringLiteral("still open after its answer: ") + describe(guard));
        reject(guard);
    }
}

void DialogDriver::record(QWidget *window, Kind kind)
{
    if (kind == Kind::Box)
        boxRecords.append(recordOf(*static_cast<QMessageBox *>(window)));
    else if (kind == Kind::Menu)
        menuRecords.append(recordOf(*static_cast<QMenu *>(window)));
    else
        dialogClasses.append(QLatin1String(window->metaObject()->className()));
}

void DialogDriver::fail(const QString &text)
{
    failureTexts.append(text);
    if (reporting)
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
}

void DialogDriver::reject(QWidget *window)
{
    if (auto *dialog = qobject_cast<QDialog *>(window))
        dialog->done(QDialog::Rejected);
    else
        window->close();
}

QString DialogDriver::describe(const QWidget *window)
{
    QString text = QLatin1String(window->metaObject()->className());
    text += QStringLiteral(" \"%1\"").arg(window->windowTitle());
    if (const auto *box = qobject_cast<const QMessageBox *>(window))
        text += QStringLiteral(" \"%1\" \"%2\"").arg(box->text(), box->detailedText());
    if (const auto *menu = qobject_cast<const QMenu *>(window))
        text += QStringLiteral(" (%1)").arg(recordOf(*menu).texts.join(QStringLiteral(" | ")));
    return text;
}

void DialogDriver::choose(QMenu &menu, const QString &text)
{
    for (QAction *action : menu.actions()) {
        if (action->text() != text || !action->isVisible())
            continue;
        if (!action->isEnabled())
            break;
        menu.setActiveAction(action);
        if (!action->menu())
            QTest::keyClick(&menu, Qt::Key_Return);
        return;
    }
    fail(QStringLiteral("no enabled entry \"%1\" in %2").arg(text, describe(&menu)));
    menu.close();
}

} // namespace support
