// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "readerversion.h"

#include "hostlibs/netcatcher/readresult.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace NETCATCHER {

class ReadManifest;
struct DesignSources;

/// What earlier reads of designs gave, one file each in a folder. The folder is bounded, may be used by several
/// programs at once, and may be emptied at any time; whatever goes wrong with it, the design is read afresh.
class NetlistCache
{
public:
    /// The user's, which the workbench and the command line share; empty when there is none.
    static QString defaultFolder();
    /// The name of the entry for a design read by `engines`, paths of programs, and by `reader`, a version of this
    /// library.
    static QByteArray keyOf(const DesignSources &sources, const QStringList &engines,
                            const QByteArray &reader = readerVersion());

    static constexpr qint64 defaultBytes = qint64(512) << 20;

    /// Works in `folder`, which is made when it is needed; not at all when that is empty. Entries together take at most
    /// `maxBytes`, one at most a quarter of that.
    explicit NetlistCache(const QString &folder = defaultFolder(), qint64 maxBytes = defaultBytes);

    /// Makes the folder unless it exists. False when nothing can be kept in it, or others can write there.
    bool makeFolder() const;
    /// The result stored under `key`, if every file that was looked at is still the same. `idle` is called often.
    std::optional<ReadResult> find(const QByteArray &key, const std::function<void()> &idle = {}) const;
    /// Keeps a result, unless a file changed while it was made. False when it is not kept.
    bool store(const QByteArray &key, const ReadManifest &manifest, const ReadResult &result) const;

private:
    QString pathOf(const QByteArray &key) const;
    bool isOurs() const;
    void tidy() const;

    const QString m_folder;
    const qint64 m_maxBytes;
};

} // namespace NETCATCHER
