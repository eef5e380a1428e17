// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/numberrangemodel.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QSignalSpy>
#include <QtTest>

using RTLVAK::private_impl::NumberRangeModel;

class tst_NumberRangeModel : public QObject
{
    Q_OBJECT

private slots:
    void staysConsistent();
    void numbersAreTextAndUserData();
    void findsWithoutLooking_data();
    void findsWithoutLooking();
    void insertsAndRemovesAtTheEndOnly();
    void comboBoxTellsTheSameAsWithAnOrdinaryList();
};

void tst_NumberRangeModel::staysConsistent()
{
    NumberRangeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(model.insertRows(0, 3));
    QVERIFY(model.insertRows(3, 2));
    QCOMPARE(model.rowCount(), 5);
    QVERIFY(model.removeRows(2, 3));
    QCOMPARE(model.rowCount(), 2);
    QVERIFY(model.removeRows(0, 2));
    QCOMPARE(model.rowCount(), 0);
}

void tst_NumberRangeModel::numbersAreTextAndUserData()
{
    NumberRangeModel model;
    model.insertRows(0, 16384);
    QCOMPARE(model.index(16383).data(), QVariant(QStringLiteral("16384")));
    QCOMPARE(model.index(0).data(Qt::EditRole), QVariant(QStringLiteral("1")));
    QCOMPARE(model.index(41).data(Qt::UserRole), QVariant(42));
    QVERIFY(!model.index(0).data(Qt::DecorationRole).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
}

void tst_NumberRangeModel::findsWithoutLooking_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("row");
    QTest::newRow("text") << QVariant(QStringLiteral("7")) << int(Qt::DisplayRole) << 6;
    QTest::newRow("last") << QVariant(QStringLiteral("10")) << int(Qt::DisplayRole) << 9;
    QTest::newRow("above") << QVariant(QStringLiteral("11")) << int(Qt::DisplayRole) << -1;
    QTest::newRow("zero") << QVariant(QStringLiteral("0")) << int(Qt::DisplayRole) << -1;
    QTest::newRow("empty") << QVariant(QString()) << int(Qt::DisplayRole) << -1;
    QTest::newRow("leading zero") << QVariant(QStringLiteral("07")) << int(Qt::DisplayRole) << -1;
    QTest::newRow("number") << QVariant(7) << int(Qt::UserRole) << 6;
    QTest::newRow("number above") << QVariant(70) << int(Qt::UserRole) << -1;
    QTest::newRow("negative number") << QVariant(-1) << int(Qt::UserRole) << -1;
    QTest::newRow("another role") << QVariant(7) << int(Qt::DecorationRole) << -1;
}

void tst_NumberRangeModel::findsWithoutLooking()
{
    QFETCH(QVariant, value);
    QFETCH(int, role);
    QFETCH(int, row);
    QComboBox combo;
    combo.setModel(new NumberRangeModel(&combo));
    combo.model()->insertRows(0, 10);
    QCOMPARE(combo.findData(value, role), row);
}

void tst_NumberRangeModel::insertsAndRemovesAtTheEndOnly()
{
    NumberRangeModel model;
    QVERIFY(model.insertRows(0, 3));
    QVERIFY(!model.insertRows(1, 1));
    QVERIFY(!model.removeRows(0, 1));
    QVERIFY(!model.insertRows(3, 0));
    QVERIFY(!model.insertRows(0, 1, model.index(0)));
    QCOMPARE(model.rowCount(), 3);
}

static QList<int> emissionsOfARefill(QComboBox &combo, const std::function<void()> &refill)
{
    QList<int> indexes;
    QObject::connect(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged), &combo,
                     [&indexes](int index) { indexes.append(index); });
    refill();
    combo.setCurrentIndex(2);
    combo.clear();
    refill();
    combo.setCurrentIndex(combo.count() - 1);
    return indexes;
}

void tst_NumberRangeModel::comboBoxTellsTheSameAsWithAnOrdinaryList()
{
    QComboBox ordinary;
    const QList<int> expected = emissionsOfARefill(ordinary, [&ordinary] {
        for (int number = 1; number <= 5; ++number)
            ordinary.addItem(QString::number(number), number);
    });
    QComboBox light;
    light.setModel(new NumberRangeModel(&light));
    const QList<int> actual = emissionsOfARefill(light, [&light] { light.model()->insertRows(0, 5); });
    QCOMPARE(expected, QList<int>({0, 2, -1, 0, 4}));
    QCOMPARE(actual, expected);
}

QTEST_MAIN(tst_NumberRangeModel)
#include "tst_numberrangemodel.moc"
