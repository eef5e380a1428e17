// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <IdeCore/iview.h>

#include <QCloseEvent>
#include <QStringList>

#include <functional>

/// A view that writes down what happens to it and closes only when it may.
class ScriptedView : public Core::IView
{
    Q_OBJECT

public:
    ScriptedView(const QString &name, QStringList *log)
        : m_name(name)
        , m_log(log)
    {
        setWindowTitle(name);
    }
    ~ScriptedView() override { m_log->append(m_name + " destroyed"); }

    void onActivated() override { m_log->append(m_name + " activated"); }
    void onDeactivated() override { m_log->append(m_name + " deactivated"); }

    bool mayClose = true;
    std::function<void()> whenAsked;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        m_log->append(m_name + " asked");
        if (whenAsked)
            whenAsked();
        event->setAccepted(mayClose);
    }

private:
    QString m_name;
    QStringList *m_log;
};
