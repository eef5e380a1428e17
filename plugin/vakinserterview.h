// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <IdeCore/iview.h>

#include <QString>

namespace RTLVAK {

/// The editor view of one analyzer configuration file, as the view manager keeps, shows and saves it.
class VAKINS_EXPORT VakInserterView : public Core::IView
{
    Q_OBJECT

public:
    explicit VakInserterView(QWidget *parent = nullptr);
    ~VakInserterView() override;

    /// The absolute path of the file being edited.
    virtual QString file() const = 0;
    /// Loads the file. On failure returns false and may put a text for the user into `*errorString`; an empty text
    /// means that the view has already reported. `extra` is not used.
    virtual bool open(const QString &fileName, const QString &extra, QString *errorString) = 0;
    /// Validates and writes the file; reports its own failures.
    virtual bool save() = 0;
    /// Whether the view holds unsaved changes.
    virtual bool isModified() const = 0;

    /// The name of the device that the view edits for; empty until set.
    QString device() const;
    void setDevice(const QString &name);

signals:
    /// The modified flag was set or cleared.
    void modificationStatusChanged(bool modified);

private:
    struct Target
    {
        QString device;
    };
    Target target;
};

} // namespace RTLVAK
