// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/engineswitch.h"

#include <QFile>
#include <QStandardPaths>

namespace support {

static const QString offName = QStringLiteral("off");

EngineSwitch::EngineSwitch()
    : searchPath(qgetenv("PATH"))
    , engine(QStandardPaths::findExecutable(QStringLiteral("verilator_bin")))
{
    if (engine.isEmpty())
        qFatal("the Verilog engine is not installed");
    replace({});
    qputenv("PATH", QFile::encodeName(dir.filePath(QStringLiteral("bin"))) + ':' + searchPath);
}

EngineSwitch::~EngineSwitch()
{
    qputenv("PATH", searchPath);
}

void EngineSwitch::turnOff() const
{
    dir.write(offName, {});
}

void EngineSwitch::turnOn() const
{
    dir.remove(offName);
}

QString EngineSwitch::program() const
{
    return dir.filePath(QStringLiteral("bin/verilator_bin"));
}

void EngineSwitch::replace(const QByteArray &before, const QByteArray &after) const
{
    const QByteArray off = QFile::encodeName(dir.filePath(offName));
    dir.write(QStringLiteral("bin/verilator_bin"), "#!/bin/sh\n[ ! -e '" + off + "' ] || exit 3\n" + before + "\n'" +
                                                       QFile::encodeName(engine) + "' \"$@\"\n" + after + "\n");
    if (!QFile::setPermissions(program(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        qFatal("cannot make %s a program", qPrintable(program()));
}

} // namespace support
