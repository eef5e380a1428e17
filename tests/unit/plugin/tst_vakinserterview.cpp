// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "scriptedview.h"

#include "support/doubles.h"
#include "support/widgethelpers.h"

#include <QSignalSpy>
#include <QTest>

class TestVakInserterView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void parentIsHandedToTheHostsBase();
    void deviceIsEmptyUntilSet();
    void onlyMetaMethodIsTheModificationSignal();
    void modificationSignalCarriesTheFlag();
};

void TestVakInserterView::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestVakInserterView::parentIsHandedToTheHostsBase()
{
    QWidget parent;
    auto *view = new ScriptedView(&parent);
    QCOMPARE(view->parentWidget(), &parent);
    QVERIFY(qobject_cast<Core::IView *>(static_cast<QObject *>(view)));
    ScriptedView alone;
    QCOMPARE(alone.parentWidget(), nullptr);
}

void TestVakInserterView::deviceIsEmptyUntilSet()
{
    ScriptedView view;
    QVERIFY(view.device().isEmpty());
    view.setDevice("KX-20");
    QCOMPARE(view.device(), QString("KX-20"));
}

void TestVakInserterView::onlyMetaMethodIsTheModificationSignal()
{
    const QMetaObject &metaObject = RTLVAK::VakInserterView::staticMetaObject;
    QCOMPARE(metaObject.className(), "RTLVAK::VakInserterView");
    QCOMPARE(metaObject.superClass()->className(), "Core::IView");
    QCOMPARE(support::ownMethods(metaObject), QStringList("modificationStatusChanged(bool)"));
    QCOMPARE(support::ownSignals(metaObject), QStringList("modificationStatusChanged(bool)"));
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
}

void TestVakInserterView::modificationSignalCarriesTheFlag()
{
    ScriptedView view;
    QSignalSpy spy(&view, &RTLVAK::VakInserterView::modificationStatusChanged);
    emit view.modificationStatusChanged(true);
    emit view.modificationStatusChanged(false);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
}

QTEST_MAIN(TestVakInserterView)

#include "tst_vakinserterview.moc"
