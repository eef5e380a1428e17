// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>

namespace probe {

/// What is told of every design with VHDL where the kernel offers no Landlock.
extern const char vhdlRefusal[];

/// What holds for VHDL where the kernel offers no Landlock: nothing of it is elaborated.
class VhdlRefusal : public QObject
{
    Q_OBJECT

private slots:
    void vhdlIsRefused_data();
    void vhdlIsRefused();
};

/// Runs a test of VHDL, or that of its refusal where it is refused; for the function main.
int runVhdlTest(QObject *test, int argc, char **argv);

} // namespace probe

/// In place of QTEST_GUILESS_MAIN.
#define VHDL_TEST_MAIN(Test)                                                                                           \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        Test test;                                                                                                     \
        return probe::runVhdlTest(&test, argc, argv);                                                                  \
    }
