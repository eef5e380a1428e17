// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/signalmerge.h"

#include "rules/groupname.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace RTLVAK {

namespace private_impl {

static bool isGroup(const VAK::SignalItem &record)
{
    return record.kind != 1 && !record.members.isEmpty();
}

static QStringList memberNames(const VAK::SignalItem &record)
{
    QStringList names;
    names.reserve(record.members.size());
    for (const VAK::SignalItem &member : record.members)
        names.append(member.name);
    return names;
}

/// Records are the same signal exactly when their identities are equal.
struct Identity
{
    enum Sort { Single, Bus, Group };

    explicit Identity(const VAK::SignalItem &record)
        : sort(record.members.isEmpty() ? Single
               : isGroup(record)        ? Group
                                        : Bus)
        , name(sort == Group ? QString() : record.name)
        , members(memberNames(record))
    {
        if (sort == Bus) {
            members.sort();
            members.removeDuplicates();
        }
    }

    Sort sort;
    QString name;
    QStringList members;
};

static bool operator==(const Identity &a, const Identity &b)
{
    return a.sort == b.sort && a.name == b.name && a.members == b.members;
}

static uint qHash(const Identity &identity, uint seed = 0)
{
    const QStringList &members = identity.members;
    return ::qHash(identity.name, seed) ^ ::qHash(members.value(0), seed) ^ uint(members.size());
}

/// A signal that was found in the netlist again is there again; everything that the user gave it stays.
static void bringUpToDate(VAK::SignalItem &record, const VAK::SignalItem &found)
{
    record.present = true;
    record.enabled = found.enabled;
    QHash<QString, bool> usable;
    for (const VAK::SignalItem &member : found.members)
        usable.insert(member.name, member.enabled);
    for (VAK::SignalItem &member : record.members) {
        member.present = true;
        member.enabled = usable.value(member.name, member.enabled);
    }
}

/// A list that grows, with quick answers to "is it there already".
class KnownSignals
{
public:
    explicit KnownSignals(QList<VAK::SignalItem> &signalItems)
        : records(signalItems)
    {
        for (int i = 0; i < records.size(); ++i)
            insert(Identity(records.at(i)), i);
    }

    /// The new ones of `incoming`; positions of matched records go to `matched`.
    QList<VAK::SignalItem> takeNew(const QList<VAK::SignalItem> &incoming, QList<int> *matched)
    {
        QList<VAK::SignalItem> added;
        for (const VAK::SignalItem &record : incoming) {
            const Identity identity(record);
            const int position = positions.value(identity, -2);
            if (position >= 0) {
                bringUpToDate(records[position], record);
                if (matched && !seen.contains(position))
                    matched->append(position);
                seen.insert(position);
            } else if (position == -2) {
                insert(identity, Added);
                added.append(record);
            }
        }
        return added;
    }

private:
    static constexpr int Added = -1; ///< came with this very list

    void insert(const Identity &identity, int position)
    {
        if (!positions.contains(identity))
            positions.insert(identity, position);
    }

    QList<VAK::SignalItem> &records;
    QHash<Identity, int> positions;
    QSet<int> seen; ///< positions that were matched
};

static QStringList groupTexts(const QList<VAK::SignalItem> &records)
{
    QStringList texts;
    for (const VAK::SignalItem &record : records) {
        if (isGroup(record))
            texts << record.name << record.displayName;
    }
    return texts;
}

/// Gives groups whose name is taken another one.
static void makeGroupNamesUnique(QList<VAK::SignalItem> &groups, QStringList taken)
{
    for (VAK::SignalItem &group : groups) {
        if (!isGroup(group))
            continue;
        if (taken.contains(group.name))
            group.name = freeGroupName(taken) + groupRange(group.members.size());
        taken << group.name << group.displayName;
    }
}

} // namespace private_impl

bool isSameSignal(const VAK::SignalItem &a, const VAK::SignalItem &b)
{
    return private_impl::Identity(a) == private_impl::Identity(b);
}

SignalMerge mergeSignals(const QList<VAK::SignalItem> &existing, const QList<VAK::SignalItem> &incoming)
{
    SignalMerge merge;
    merge.existing = existing;
    QList<VAK::SignalItem> usable;
    std::copy_if(incoming.cbegin(), incoming.cend(), std::back_inserter(usable),
                 [](const VAK::SignalItem &record) { return record.enabled; });
    const QList<VAK::SignalItem> added = private_impl::KnownSignals(merge.existing).takeNew(usable, &merge.matched);
    for (const VAK::SignalItem &record : added)
        (record.members.isEmpty() ? merge.singles : merge.groups).append(record);
    private_impl::makeGroupNamesUnique(merge.groups, private_impl::groupTexts(existing));
    return merge;
}

QList<VAK::SignalItem> takeNewSignals(QList<VAK::SignalItem> &chosen, const QList<VAK::SignalItem> &incoming)
{
    return private_impl::KnownSignals(chosen).takeNew(incoming, nullptr);
}

} // namespace RTLVAK
