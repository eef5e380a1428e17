// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/doubles.h"
#include "support/widgethelpers.h"
#include "widgets/changedbanner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using RTLVAK::ChangedBanner;
using support::child;

class TestChangedBanner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void formIsLaidOutAsFixed();
    void buttonIsLeftToTheView();
};

void TestChangedBanner::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestChangedBanner::formIsLaidOutAsFixed()
{
    ChangedBanner banner;
    QCOMPARE(banner.objectName(), QString("Form"));
    QCOMPARE(banner.metaObject()->className(), "RTLVAK::ChangedBanner");
    auto &layout = child<QHBoxLayout>(banner, "horizontalLayout");
    QCOMPARE(banner.layout(), &layout);
    QCOMPARE(layout.count(), 3);
    QCOMPARE(layout.itemAt(0)->widget(), &child<QLabel>(banner, "warningIcon"));
    QCOMPARE(layout.itemAt(1)->widget(), &child<QLabel>(banner, "warningText"));
    QCOMPARE(layout.itemAt(2)->widget(), &child<QPushButton>(banner, "okBtn"));
    QCOMPARE(child<QLabel>(banner, "warningText").text(), QString("Netlist File has been changed."));
    QCOMPARE(child<QPushButton>(banner, "okBtn").text(), QString("OK"));
    const QPixmap icon = child<QLabel>(banner, "warningIcon").pixmap(Qt::ReturnByValue);
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.toImage(), QPixmap(":/fpgaprj/image/warning.png").toImage());
}

void TestChangedBanner::buttonIsLeftToTheView()
{
    QCOMPARE(support::ownMethods(ChangedBanner::staticMetaObject), QStringList());
    ChangedBanner banner;
    banner.show();
    QCOMPARE(banner.okButton(), &child<QPushButton>(banner, "okBtn"));
    QSignalSpy clicked(banner.okButton(), &QPushButton::clicked);
    support::clickButton(banner, "okBtn");
    QCOMPARE(clicked.count(), 1);
    QVERIFY(banner.isVisible());
}

QTEST_MAIN(TestChangedBanner)

#include "tst_changedbanner.moc"
