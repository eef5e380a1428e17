// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "showconfig.h"

#include "hostlibs/device/devicecatalogue.h"
#include "hostlibs/vakutils/matchunittext.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

namespace {

/// Collects indented lines; what a line says stands in a column of its own.
class Report
{
public:
    void line(const QString &text) { m_text += text + QLatin1Char('\n'); }
    void field(const QString &name, const QString &value)
    {
        line(QStringLiteral("  %1 %2").arg(name.leftJustified(16), value).trimmed().prepend(QStringLiteral("  ")));
    }
    QString text() const { return m_text; }

private:
    QString m_text;
};

} // namespace

static QString counted(int number, const QString &one)
{
    return QStringLiteral("%1 %2%3").arg(number).arg(one, number == 1 ? QString() : QStringLiteral("s"));
}

static QString onOff(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

/// What is to be known about a signal beside its name.
static QStringList notes(const VAK::SignalItem &signal)
{
    QStringList notes;
    if (!signal.members.isEmpty())
        notes.append(counted(signal.members.size(), QStringLiteral("bit")));
    if (!signal.displayName.isEmpty())
        notes.append(QStringLiteral("shown as \"%1\"").arg(signal.displayName));
    if (!signal.enabled)
        notes.append(QStringLiteral("unusable"));
    if (!signal.present)
        notes.append(QStringLiteral("missing in the design"));
    if (signal.active == 0)
        notes.append(QStringLiteral("inactive"));
    return notes;
}

static void showSignal(Report *report, const VAK::SignalItem &signal, const QString &indent)
{
    const QString text = notes(signal).join(QStringLiteral(", "));
    report->line(indent + signal.name + (text.isEmpty() ? QString() : QStringLiteral("  (%1)").arg(text)));
    for (const VAK::SignalItem &member : signal.members) {
        if (signal.kind != 1 || !notes(member).isEmpty()) // else the name of the bus says it all
            showSignal(report, member, indent + QStringLiteral("  "));
    }
}

static void showPorts(Report *report, const VAK::AoCore &core)
{
    for (const VAK::TriggerPort *port : core.availableTriggers()) {
        report->field(VAK::triggerPortName(*port), counted(port->width(), QStringLiteral("input")));
        for (const VAK::SignalItem &signal : port->getSignalNet())
            showSignal(report, signal, QStringLiteral("    "));
    }
}

/// Units that are switched on or say something.
static void showUnits(Report *report, const VAK::AoCore &core)
{
    for (const VAK::MatchUnit *unit : core.allMatchUnits()) {
        if (!unit->isEnabled() && !unit->triggerPort())
            continue;
        QString text = unit->triggerPort() ? VAK::triggerPortName(*unit->triggerPort()) : QStringLiteral("no port");
        text += QStringLiteral(" %1 %2").arg(VAK::matchFunctionText(unit->function()), VAK::matchValueText(*unit));
        if (unit->counterMode() != VAK::CounterMode::Off)
            text += QStringLiteral(", %1").arg(VAK::counterText(*unit).toLower());
        if (!unit->isEnabled())
            text += QStringLiteral("  (off)");
        report->field(VAK::matchUnitName(*unit), text);
    }
}

static void showTrigger(Report *report, const ShownConfig &config, const VAK::AoCore &core)
{
    const bool dynamic = core.triggerMode() == VAK::DynamicTrigger;
    report->field(QStringLiteral("Trigger"),
                  dynamic ? QStringLiteral("Dynamic, in %1").arg(implementationName(core.triggerImplementation()))
                          : QStringLiteral("Static"));
    const QString need = triggerNeed(core, config.device);
    if (!need.isEmpty())
        report->field(QStringLiteral("Trigger usage"), need);
    showPorts(report, core);
    showUnits(report, core);
    for (const QString &expression : core.expressions())
        report->field(QStringLiteral("Expression"), expression);
}

static QString usageText(const CaptureNeed &need, const DEV::Device &device)
{
    QString text =
        QStringLiteral("%1 %2/%3 of %4").arg(need.implementation).arg(need.need).arg(need.available).arg(device.name);
    if (need.ownBlocks > 0)
        text += QStringLiteral(" (%1 of its own blocks)").arg(need.ownBlocks);
    if (qMax(need.need, need.ownBlocks) > need.available)
        text += QStringLiteral(", exceeded");
    return text;
}

static QString captureText(const VAK::AoCore &core)
{
    return QStringLiteral("%1, %2 stored, %3 of %4, trigger at %5, force by falling edge %6, initial data %7")
        .arg(implementationName(core.captureImplementation()))
        .arg(core.storageSize())
        .arg(counted(core.segmentNumber(), QStringLiteral("segment")))
        .arg(core.captureAmount())
        .arg(core.triggerPosition())
        .arg(onOff(core.forceTriggerByFallingEdge()), onOff(core.captureInitialData()));
}

static QString captureText(const VAK::AOCore_Lite &core)
{
    return QStringLiteral("%1, %2 samples, input register %3, initial data %4")
        .arg(implementationName(core.captureImplementation()))
        .arg(core.captureAmount())
        .arg(onOff(core.enableInputRegister()), onOff(core.captureInitialData()));
}

template <class Core>
static void showCapture(Report *report, const ShownConfig &config, const Core &core)
{
    const CaptureNeed need = captureNeed(core, config.device);
    report->field(QStringLiteral("Capture"), captureText(core));
    if (config.device)
        report->field(QStringLiteral("Capture usage"), usageText(need, *config.device));
    report->field(QStringLiteral("Captured"), counted(need.width, QStringLiteral("bit")));
    for (const VAK::SignalItem &signal : core.getallCapSignal())
        showSignal(report, signal, QStringLiteral("    "));
}

template <class Core>
static void showHead(Report *report, const Core &core)
{
    report->line(QString());
    report->line(core.moduleName().isEmpty()
                     ? QStringLiteral("Core %1").arg(core.index())
                     : QStringLiteral("Core %1 in %2").arg(core.index()).arg(core.moduleName()));
    report->field(QStringLiteral("Sample clock"),
                  core.sampleClock().isEmpty()
                      ? QStringLiteral("none")
                      : QStringLiteral("%1, %2 edge").arg(core.sampleClock(), edgeName(core.sampleEdge())));
}

QString textReport(const ShownConfig &config)
{
    Report report;
    const bool lite = config.mode == VAK::VakMode::Lite;
    const int count = int(lite ? config.liteCores.size() : config.standardCores.size());
    report.line(QStringLiteral("%1: %2 mode, %3")
                    .arg(config.path, lite ? QStringLiteral("Lite") : QStringLiteral("Standard"),
                         counted(count, QStringLiteral("core"))));
    for (const auto &core : config.standardCores) {
        showHead(&report, *core);
        showTrigger(&report, config, *core);
        showCapture(&report, config, *core);
    }
    for (const auto &core : config.liteCores) {
        showHead(&report, *core);
        showCapture(&report, config, *core);
    }
    return report.text();
}
