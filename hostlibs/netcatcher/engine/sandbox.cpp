// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "sandbox.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace NETCATCHER {

namespace {

/// The attributes of a rule set as later kernels know them; Debian's header knows the first member only.
struct RuleSetAttributes
{
    quint64 handledFiles;
    quint64 handledNetwork;
    quint64 scoped;
};

} // namespace

constexpr quint64 truncateFiles = 1ull << 14;                // from version 3 of the interface
constexpr quint64 bindAndConnect = 1ull << 0 | 1ull << 1;    // from version 4
constexpr quint64 socketsAndSignals = 1ull << 0 | 1ull << 1; // from version 6

/// Everything that changes files, as far as `version` of the interface knows it.
static quint64 writingRights(long version)
{
    quint64 rights = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE |
                     LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                     LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK |
                     LANDLOCK_ACCESS_FS_MAKE_SYM;
    if (version >= 2)
        rights |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3)
        rights |= truncateFiles;
    return rights;
}

static long createRuleSet(long version)
{
    RuleSetAttributes attributes{writingRights(version) | LANDLOCK_ACCESS_FS_READ_FILE, 0, 0};
    std::size_t size = sizeof attributes.handledFiles;
    if (version >= 4) {
        attributes.handledNetwork = bindAndConnect;
        size += sizeof attributes.handledNetwork;
    }
    if (version >= 6) {
        attributes.scoped = socketsAndSignals;
        size += sizeof attributes.scoped;
    }
    return syscall(SYS_landlock_create_ruleset, &attributes, size, 0);
}

static bool allow(int ruleSet, const QString &path, quint64 rights)
{
    const int place = open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
    landlock_path_beneath_attr rule{};
    rule.allowed_access = rights;
    rule.parent_fd = place;
    const bool isDone =
        place >= 0 && syscall(SYS_landlock_add_rule, ruleSet, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
    if (place >= 0)
        close(place);
    return isDone;
}

/// Lets everything be read but devices, which may never end, and what the kernel tells about processes: a source can
/// include a file by its absolute path. What cannot be opened here cannot be read later either.
static void allowReading(int ruleSet)
{
    static const QStringList closed{QStringLiteral("dev"), QStringLiteral("proc"), QStringLiteral("sys")};
    const QStringList names = QDir::root().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (!closed.contains(name))
            allow(ruleSet, QLatin1Char('/') + name, LANDLOCK_ACCESS_FS_READ_FILE);
    }
    allow(ruleSet, QStringLiteral("/dev/shm"), LANDLOCK_ACCESS_FS_READ_FILE);
}

Sandbox::Sandbox(const QString &writableFolder)
{
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return;
    m_ruleSet = int(createRuleSet(version));
    const bool isComplete =
        m_ruleSet >= 0 && allow(m_ruleSet, writableFolder, writingRights(version) | LANDLOCK_ACCESS_FS_READ_FILE) &&
        allow(m_ruleSet, QStringLiteral("/dev/null"), LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE);
    if (isComplete) {
        allowReading(m_ruleSet);
    } else if (m_ruleSet >= 0) {
        close(m_ruleSet);
        m_ruleSet = -1;
    }
}

Sandbox::~Sandbox()
{
    if (m_ruleSet >= 0)
        close(m_ruleSet);
}

bool Sandbox::enter() const
{
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && syscall(SYS_landlock_restrict_self, m_ruleSet, 0) == 0;
}

} // namespace NETCATCHER
