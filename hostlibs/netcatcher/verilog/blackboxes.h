// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hdlscan.h"

#include "hostlibs/netcatcher/engine/enginemessages.h"

#include <QMap>
#include <QString>

namespace NETCATCHER {

/// Whether a name needs no escape in Verilog and can be part of a file's name.
bool isPlainName(const QByteArray &name);

/// Stand-ins for modules without source, which are normal in FPGA designs: vendor primitives, memories, clock
/// generators. The engine needs a declaration with every pin and parameter that an instance uses; all pins are inputs,
/// which any expression may be connected to.
class BlackBoxes
{
public:
    /// The plain name of the folder with the stand-ins. The engine looks there only for modules that no source
    /// declares.
    static QString folderName();
    static QString suffix();
    /// Whether a file that the engine names is a stand-in.
    static bool isStandIn(const QByteArray &plainName);

    /// The name of the stand-in that wrapTop() asks for.
    static QString wrapperName();
    /// What the engine says with the names of pins and parameters that have none instead of placeholders.
    static QString withoutPlaceholders(QString text);

    /// Asks for a module around `top`. Without it the engine loses every module of the design when the top has an
    /// escaped name, and the inner instances of a top that instantiates itself.
    void wrapTop(const QByteArray &top);
    bool wrapsTop() const { return !m_wrapped.isEmpty(); }
    /// Takes over how the sources use modules that they do not declare.
    void learn(const HdlScan &scan);
    /// Gives a stand-in to every escaped name that is used and not `declared`. The engine would look for a file of that
    /// name otherwise, which may be a path to anywhere.
    void standInForEscaped(const QVector<QByteArray> &declared);
    /// Takes over what the engine missed; false when there was nothing new in it.
    bool learn(const QVector<EngineMessage> &messages);
    /// Writes the stand-ins below `folder`; false when that fails.
    bool write(const QString &folder) const;
    /// Plain names of stand-ins that the engine has to be given, because it looks for no file under such a name.
    QStringList files() const;

private:
    bool learnModule(const QByteArray &name);
    bool learnPin(const QString &name);
    bool learnParameter(const QString &name);
    bool learnWidth(const QString &pin, int width);
    bool learnArray(const QString &pin);
    bool learnLoosePin(const QString &name);
    QList<QByteArray> pins(const ModuleUsage &usage) const;
    QByteArray pinDeclaration(const QByteArray &name) const;
    QByteArray standIn(const QByteArray &module, const ModuleUsage &usage) const;

    QMap<QByteArray, ModuleUsage> m_usages;
    ModuleUsage m_common; ///< pins and parameters that the engine missed somewhere: every stand-in gets them
    /// Named pins that the engine missed though `m_common` has them. Stand-ins with `.*` get only these, since each pin
    /// needs something of its name beside the instance.
    QSet<QByteArray> m_wildcardPins;
    QSet<QByteArray> m_loosePins; ///< placeholders that `.*` connects to something
    QMap<QByteArray, int> m_widths;
    QSet<QByteArray> m_arrays;  ///< pins that unpacked arrays are connected to
    QSet<QByteArray> m_escaped; ///< modules whose names are no plain identifiers
    QByteArray m_wrapped;       ///< the top that needs a module around it
};

} // namespace NETCATCHER
