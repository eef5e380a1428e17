// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "triggerpage.h"

#include "trigger/muexpressiondialog.h"

#include "tests/fakes/fakedesign.h"
#include "tests/fakes/fakeevents.h"
#include "tests/support/scriptedresources.h"

#include <QTest>

void composeExpression(support::DialogDriver &driver, const QStringList &buttons)
{
    driver.answerDialogOf<RTLVAK::MuExpressionDialog>([buttons](RTLVAK::MuExpressionDialog &dialog) {
        for (const QString &name : buttons)
            support::clickButton(dialog, qPrintable(name));
        dialog.accept();
    });
}

void cancelDialog(support::DialogDriver &driver)
{
    driver.answerDialog([](QDialog &dialog) { dialog.reject(); });
}

TriggerBench::TriggerBench()
    : netlist(makeDesign())
{
    fakes::resetEvents();
    fakes::resetDesign();
    fakes::setCurrentDevice(QStringLiteral("KXB-S4"));
    support::resetResources();
    support::setCapacity({12, 48, 1000});
}

TriggerBench::~TriggerBench()
{
    widget.reset(); // before the core that it borrows
}

RTLVAK::TriggerOptionWidget &TriggerBench::page()
{
    if (!widget) {
        widget = std::make_unique<RTLVAK::TriggerOptionWidget>(&core, netlist.get());
        widget->resize(900, 560);
        widget->show();
    }
    return *widget;
}

QStringList TriggerBench::expressionTexts()
{
    return support::modelTexts(*expressions().model());
}

QStringList TriggerBench::expressionColours()
{
    QStringList colours;
    for (int row = 0; row < expressions().count(); ++row) {
        const QColor colour = expressions().item(row)->foreground().color();
        colours.append(colour == QColor(Qt::black)  ? QStringLiteral("black")
                       : colour == QColor(Qt::gray) ? QStringLiteral("grey")
                                                    : colour.name());
    }
    return colours;
}

void TriggerBench::askForMenu()
{
    emit expressions().customContextMenuRequested(QPoint(5, 5));
}

static void doubleClick(QAbstractItemView &view, const QPoint &position)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
}

void TriggerBench::doubleClickEmptyPlace()
{
    const QRect area = expressions().viewport()->rect();
    doubleClick(expressions(), area.bottomLeft() + QPoint(5, -2));
}

void TriggerBench::doubleClickExpression(int row)
{
    expressions().scrollToItem(expressions().item(row));
    doubleClick(expressions(), expressions().visualItemRect(expressions().item(row)).center());
}

void TriggerBench::doubleClickUnit(int row)
{
    doubleClick(units(), units().visualRect(units().model()->index(row, 2)).center());
}

void TriggerBench::toggleUnit(int row)
{
    const QRect cell = units().visualRect(units().model()->index(row, 0));
    QTest::mouseClick(units().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(cell.left() + 10, cell.center().y()));
}
