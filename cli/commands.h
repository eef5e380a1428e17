// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

/// Lists the device catalogue.
int runDevices(const QStringList &arguments);
/// Lists the nets and buses of a design.
int runNets(const QStringList &arguments);
/// Says what a configuration file holds.
int runShow(const QStringList &arguments);
