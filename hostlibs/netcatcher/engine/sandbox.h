// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace NETCATCHER {

/// A Landlock rule set that lets a process write in one folder only, read neither devices nor the kernel's own files,
/// and use no network, whatever the kernel offers of that. It is made in the parent; the child only enters it.
class Sandbox
{
public:
    explicit Sandbox(const QString &writableFolder);
    ~Sandbox();
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    /// Whether the kernel offers Landlock and the rule set could be made.
    bool isOffered() const { return m_ruleSet >= 0; }
    /// Confines the calling process for good. Safe between fork and exec.
    bool enter() const;

private:
    int m_ruleSet = -1;
};

} // namespace NETCATCHER
