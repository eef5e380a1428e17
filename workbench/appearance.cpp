// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/appearance.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

namespace Workbench {

static QPalette lightPalette()
{
    const QColor window(0xf3, 0xf4, 0xf6);
    const QColor text(0x1c, 0x22, 0x2a);
    const QColor accent(0x1f, 0x6f, 0xb2);
    QPalette palette(QColor(0xe9, 0xeb, 0xee), window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf9, 0xfb));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfd, 0xf0));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xc9, 0xdf, 0xf0));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::PlaceholderText, QColor(0x8a, 0x93, 0x9d));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x9a, 0xa1, 0xa9));
    return palette;
}

void prepareHighDpi()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

void applyAppearance(QApplication &application)
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(lightPalette());
    // Without a desktop nobody has chosen a font, and the toolkit's own is larger than any desktop's.
    if (QGuiApplication::platformName() == "offscreen") {
        QFont font = QApplication::font();
        font.setPointSize(10);
        QApplication::setFont(font);
    }
    application.setStyleSheet(
        "QToolTip { color: #1c222a; background: #fffdf0; border: 1px solid #c9ccd1; padding: 2px; }");
}

} // namespace Workbench
