// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/fakelandlock.h"

#include <cerrno>
#include <cstddef>
#include <future>
#include <iterator>
#include <thread>

#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

const char noLandlockWarning[] =
    "WARNING: This kernel offers no Landlock, so the Verilog engine runs without it and could write your files if a "
    "design exploited it; Linux 5.13 or later with Landlock enabled confines it";

long landlockVersion()
{
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    return version < 0 ? 0 : version;
}

/// Installs a filter that gives every call of landlock_create_ruleset with the given third argument to `action`.
static int filterRuleSets(quint32 mask, quint32 action, unsigned flags)
{
    sock_filter code[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_landlock_create_ruleset, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, mask, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, action),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    sock_fprog program{quint16(std::size(code)), code};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return -1;
    return int(syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, flags, &program));
}

bool hideLandlock()
{
    const quint32 missing = SECCOMP_RET_ERRNO | ENOSYS;
    return filterRuleSets(LANDLOCK_CREATE_RULESET_VERSION, missing, 0) == 0 && filterRuleSets(0, missing, 0) == 0;
}

/// Answers the calls that come to `listener` until the process ends.
static void answerAlways(int listener, long answer)
{
    for (;;) {
        seccomp_notif call{};
        if (ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &call) != 0)
            return;
        seccomp_notif_resp response{};
        response.id = call.id;
        response.val = answer;
        ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &response);
    }
}

bool claimLandlockVersion(long version)
{
    if (version == 0)
        return hideLandlock();
    // The thread is older than the filter, which therefore does not hold for it.
    std::promise<int> listener;
    std::thread([future = listener.get_future(), version]() mutable { answerAlways(future.get(), version); }).detach();
    const int made =
        filterRuleSets(LANDLOCK_CREATE_RULESET_VERSION, SECCOMP_RET_USER_NOTIF, SECCOMP_FILTER_FLAG_NEW_LISTENER);
    listener.set_value(made);
    return made >= 0;
}

void exhaustLandlock()
{
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    const quint64 handled = LANDLOCK_ACCESS_FS_MAKE_SOCK;
    const int ruleSet = int(syscall(SYS_landlock_create_ruleset, &handled, sizeof handled, 0));
    while (ruleSet >= 0 && syscall(SYS_landlock_restrict_self, ruleSet, 0) == 0) {
    }
    close(ruleSet);
}

QByteArray inChild(const std::function<QByteArray()> &function)
{
    int channel[2];
    if (pipe(channel) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        const QByteArray answer = function();
        const bool isSent = write(channel[1], answer.constData(), std::size_t(answer.size())) == answer.size();
        _exit(isSent ? 0 : 1);
    }
    close(channel[1]);
    QByteArray answer("");
    char buffer[4096];
    for (ssize_t size = 0; (size = read(channel[0], buffer, sizeof buffer)) > 0;)
        answer.append(buffer, int(size));
    close(channel[0]);
    int status = -1;
    waitpid(child, &status, 0);
    return status == 0 ? answer : QByteArray();
}

} // namespace support
