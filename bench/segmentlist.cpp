// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// How long it takes to open and show the pages of 16 cores, by storage size: the list of segments has a quarter of its
// entries. Beside it the same list in an ordinary combo box with the same style sheet.

#include "capture/aooptionwidget.h"

#include <VakUtils/aocore.h>

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

static constexpr int Pages = 16;
static constexpr int Rounds = 5;

static double bestMilliseconds(const std::function<void()> &run)
{
    double best = 1e9;
    for (int round = 0; round < Rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        run();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

static void showPages(int storage)
{
    std::vector<std::unique_ptr<VAK::AoCore>> cores;
    std::vector<std::unique_ptr<RTLVAK::AoOptionWidget>> pages;
    for (int i = 0; i < Pages; ++i) {
        cores.push_back(std::make_unique<VAK::AoCore>(i));
        cores.back()->setStorageSize(storage);
        cores.back()->setCaptureAmount(4);
        pages.push_back(std::make_unique<RTLVAK::AoOptionWidget>(cores.back().get(), nullptr));
        pages.back()->setCurrentIndex(1);
        pages.back()->show();
    }
    QCoreApplication::processEvents();
}

static void showOrdinaryBoxes(int storage)
{
    std::vector<std::unique_ptr<QComboBox>> boxes;
    for (int i = 0; i < Pages; ++i) {
        boxes.push_back(std::make_unique<QComboBox>());
        for (int number = 1; number <= storage / 4; ++number)
            boxes.back()->addItem(QString::number(number), number);
        boxes.back()->setStyleSheet(QStringLiteral("QComboBox{combobox-popup:0;}"));
        boxes.back()->show();
    }
    QCoreApplication::processEvents();
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    showPages(4); // loads what is loaded once
    const double small = bestMilliseconds([] { showPages(4); });
    const double large = bestMilliseconds([] { showPages(65536); });
    const double ordinary = bestMilliseconds([] { showOrdinaryBoxes(65536); });
    std::printf("pages of %d cores, storage 4:          %8.1f ms\n", Pages, small);
    std::printf("pages of %d cores, storage 65536:      %8.1f ms  (x%.2f)\n", Pages, large, large / small);
    std::printf("%d ordinary boxes of 16384 entries:    %8.1f ms  (x%.2f of the pages that hold such a list)\n", Pages,
                ordinary, ordinary / large);
    return 0;
}
