// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/tempdir.h"

#include <QByteArray>

namespace support {

/// The Verilog engine with a switch: while it is off, every run of it fails. Whatever succeeds then did without it. It
/// is the same program on and off, and is on the PATH while the object lives.
class EngineSwitch
{
public:
    EngineSwitch();
    ~EngineSwitch();
    EngineSwitch(const EngineSwitch &) = delete;
    EngineSwitch &operator=(const EngineSwitch &) = delete;

    void turnOff() const;
    void turnOn() const;
    /// The path that the engine is found under.
    QString program() const;
    /// Puts another program in its place, which runs `before`, then the engine, then `after`.
    void replace(const QByteArray &before, const QByteArray &after = {}) const;

private:
    TempDir dir;
    const QByteArray searchPath;
    const QString engine;
};

} // namespace support
