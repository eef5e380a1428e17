// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/recoveredwork.h"

#include "rules/backupname.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

namespace Workbench {

static QString text(const char *source)
{
    return QCoreApplication::translate("Workbench::RecoveredWork", source);
}

static bool move(const QString &from, const QString &to, QString *error)
{
    QFile file(from);
    if (file.rename(to))
        return true;
    *error = text("Can not move %1 to %2:\n%3")
                 .arg(QDir::toNativeSeparators(from), QDir::toNativeSeparators(to), file.errorString());
    return false;
}

static bool remove(const QString &name, QString *error)
{
    QFile file(name);
    if (file.remove())
        return true;
    *error = text("Can not delete %1:\n%2").arg(QDir::toNativeSeparators(name), file.errorString());
    return false;
}

static int ask(const QString &analyzerFile, const QString &savedFile, QWidget *parent)
{
    QMessageBox box(QMessageBox::Question, text("Recovered Work"),
                    text("Unsaved work on \"%1\" was kept when its design could not be read.\n"
                         "Do you want to continue with it?")
                        .arg(QDir::toNativeSeparators(analyzerFile)),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Discard, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(text("Yes puts it in the file's place; the file as it is stays in %1.\n"
                                "No opens the file as it is and asks again the next time.\n"
                                "Discard deletes the unsaved work.")
                               .arg(QFileInfo(savedFile).fileName()));
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    return box.exec();
}

bool settleRecoveredWork(const QString &analyzerFile, QWidget *parent, QString *error)
{
    QString recovered;
    while (!(recovered = RTLVAK::latestBackup(analyzerFile, "recovered")).isEmpty()) {
        const QString saved = RTLVAK::freeBackupName(analyzerFile, "saved");
        switch (ask(analyzerFile, saved, parent)) {
        case QMessageBox::Yes:
            return move(analyzerFile, saved, error) && move(recovered, analyzerFile, error);
        case QMessageBox::Discard:
            if (!remove(recovered, error))
                return false;
            break;
        default:
            return true;
        }
    }
    return true;
}

} // namespace Workbench
