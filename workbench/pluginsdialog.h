// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>

namespace Workbench {

class PluginHost;

/// Lists the plug-ins that were found and whether they work.
class PluginsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PluginsDialog(const PluginHost &host, QWidget *parent = nullptr);
};

} // namespace Workbench
