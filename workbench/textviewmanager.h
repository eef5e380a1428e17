// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

class QAction;

namespace Core {
class IView;
}

namespace Workbench {

class TextView;

/// Opens text files in views and owns what the host's Save, Find and Go-to-line commands do there.
class TextViewManager : public QObject
{
    Q_OBJECT

public:
    explicit TextViewManager(QObject *parent = nullptr);

    /// Shows `path` (absolute), opening it if need be, with the cursor on line `line` when that is above 0.
    bool open(const QString &path, int line, QString *error);
    TextView *viewOf(const QString &path) const;

signals:
    void fileSaved(const QString &path);

private:
    QAction *addAction(const char *id, const QString &text, const std::function<void(Workbench::TextView &)> &act);
    void onViewActivated(Core::IView *view);
    void onViewClosed(Core::IView *view);
    void updateSave();

    QList<TextView *> m_views; ///< owned by the view manager
    QPointer<TextView> m_current;
    QAction *m_save;
};

} // namespace Workbench
