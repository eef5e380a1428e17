// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

namespace TE {

class DesignManager;

/// The door to the open project.
class HOST_EXPORT TaskEngine
{
public:
    /// The one task engine; created on first use, never null.
    static TaskEngine *instance();

    /// Never null, also with no project open. Belongs to the task engine.
    TE::DesignManager *designManager() const;

private:
    TaskEngine();
    ~TaskEngine();
};

} // namespace TE
