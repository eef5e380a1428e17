// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>

#include <QRandomGenerator>

#include <memory>
#include <vector>

/// A list of cores with its owner.
template <class Core>
struct OwnedCores
{
    OwnedCores() = default;
    explicit OwnedCores(const QList<Core *> &list)
        : cores(list)
    {
        for (Core *core : list)
            owner.emplace_back(core);
    }

    QList<Core *> cores;
    std::vector<std::unique_ptr<Core>> owner;
};
using StandardCores = OwnedCores<VAK::AoCore>;
using LiteCores = OwnedCores<VAK::AOCore_Lite>;

VAK::SignalItem netSignal(const QString &name);
/// A bus of the netlist with members base[first] .. base[last].
VAK::SignalItem busSignal(const QString &base, int first, int last);

/// The first thing in which the two differ, field by field; empty when they are equal.
QString difference(const VAK::AoCore &a, const VAK::AoCore &b);
QString difference(const VAK::AOCore_Lite &a, const VAK::AOCore_Lite &b);
template <class Core>
QString difference(const QList<Core *> &a, const QList<Core *> &b)
{
    if (a.size() != b.size())
        return QStringLiteral("%1 cores, %2 cores").arg(a.size()).arg(b.size());
    for (int i = 0; i < a.size(); ++i) {
        const QString found = difference(*a.at(i), *b.at(i));
        if (!found.isEmpty())
            return QStringLiteral("core %1: %2").arg(i).arg(found);
    }
    return {};
}

/// Cores that make use of everything that the model can hold; the same for the same generator state.
StandardCores randomStandardCores(QRandomGenerator *random);
LiteCores randomLiteCores(QRandomGenerator *random);

/// The path of a file of the test data's folder `config`.
QString goldenFile(const QString &name);
/// The names of all of them, in order.
QStringList goldenFiles();
QByteArray fileContent(const QString &path);
bool writeContent(const QString &path, const QByteArray &content);
