// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinserterview.h"

/// An editor view that answers as it was told and counts its saves.
class ScriptedView : public RTLVAK::VakInserterView
{
    Q_OBJECT

public:
    using VakInserterView::VakInserterView;

    QString file() const override { return path; }
    bool open(const QString &fileName, const QString &, QString *) override
    {
        path = fileName;
        return true;
    }
    bool save() override
    {
        ++saves;
        return saveResult;
    }
    bool isModified() const override { return modified; }

    QString path;
    bool modified = false;
    bool saveResult = true;
    int saves = 0;
};
