// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/designevents.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskevents.h>
#include <QUtility/ievent.h>

#include <algorithm>
#include <iterator>

namespace RTLVAK {

static QVariant valueOf(const QUtil::IEvent &event, const char *key)
{
    return event.get(QLatin1String(key));
}

static bool carriesSource(const QUtil::IEvent &event, const char *key)
{
    return isNetlistSource(valueOf(event, key).toInt());
}

static DesignPrompt promptIf(bool stale)
{
    return stale ? DesignPrompt::DesignFiles : DesignPrompt::None;
}

static DesignPrompt promptForFile(const QUtil::IEvent &event, const FileLookup &fileInfo)
{
    const TE::DesignFile file = fileInfo(valueOf(event, TE::EventKey::File).toString());
    return promptIf(isNetlistSource(file.type) && file.enabled);
}

static DesignPrompt promptForRemoval(const QUtil::IEvent &event, const FileLookup &)
{
    return promptIf(carriesSource(event, TE::EventKey::Type) && valueOf(event, TE::EventKey::Enable).toBool());
}

static DesignPrompt promptForEnabling(const QUtil::IEvent &event, const FileLookup &)
{
    return promptIf(carriesSource(event, TE::EventKey::Type));
}

static DesignPrompt promptForRetyping(const QUtil::IEvent &event, const FileLookup &)
{
    return promptIf(carriesSource(event, TE::EventKey::Type) || carriesSource(event, TE::EventKey::Previous));
}

static DesignPrompt promptForOption(const QUtil::IEvent &event, const FileLookup &)
{
    const QString option = valueOf(event, TE::EventKey::Option).toString();
    if (option == QLatin1String(TE::OptionName::TopModule))
        return DesignPrompt::TopModule;
    return promptIf(option == QLatin1String(TE::OptionName::IncludePath) ||
                    option == QLatin1String(TE::OptionName::VerilogStandard));
}

namespace {

struct EventRule
{
    const char *type;
    DesignPrompt (*prompt)(const QUtil::IEvent &, const FileLookup &);
};

constexpr EventRule Rules[] = {
    {TE::EventType::FileAdd, promptForFile},
    {TE::EventType::FileRemove, promptForRemoval},
    {TE::EventType::FileChangeEnable, promptForEnabling},
    {TE::EventType::FileChangeType, promptForRetyping},
    {TE::EventType::FileModified, promptForFile},
    {TE::EventType::OptionChange, promptForOption},
};

} // namespace

QStringList designEventTypes()
{
    QStringList types;
    for (const EventRule &rule : Rules)
        types += QLatin1String(rule.type);
    return types;
}

bool isNetlistSource(int fileType)
{
    return fileType == TE::VerilogFile || fileType == TE::SystemVerilogFile || fileType == TE::VhdlFile;
}

DesignPrompt promptFor(const QUtil::IEvent &event, const FileLookup &fileInfo)
{
    const QString type = event.type();
    const auto rule = std::find_if(std::begin(Rules), std::end(Rules),
                                   [&type](const EventRule &each) { return type == QLatin1String(each.type); });
    return rule == std::end(Rules) ? DesignPrompt::None : rule->prompt(event, fileInfo);
}

} // namespace RTLVAK
