// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <QIcon>
#include <QImage>
#include <QTest>

/// The icons that come with the shipped libraries; built once with the real host libraries and once with the doubles.
class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    void bothSizesAreBuiltIn_data();
    void bothSizesAreBuiltIn();
    void isDrawnOnTransparentGround_data() { bothSizesAreBuiltIn_data(); }
    void isDrawnOnTransparentGround();
};

void TestIcons::bothSizesAreBuiltIn_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");

    const QStringList module{"add",         "delete",     "module", "reverse",           "up_arrow",
                             "down_arrow",  "left_arrow", "plus",   "double_left_arrow", "cross",
                             "right_arrow", "tag",        "tags",   "double_right_arrow"};
    for (const QString &name : module)
        QTest::newRow(qPrintable(name)) << ":/vakins/image/" + name << 16;
    QTest::newRow("host warning") << ":/fpgaprj/image/warning" << 24;
    QTest::newRow("host attention") << ":/utils/image/attention" << 32;
    QTest::newRow("host magnifier") << ":/netlist/image/magnifier" << 16;
    QTest::newRow("host module") << ":/netlist/image/module" << 16;
}

void TestIcons::bothSizesAreBuiltIn()
{
    QFETCH(QString, path);
    QFETCH(int, size);

    QCOMPARE(QImage(path + ".png").size(), QSize(size, size));
    QCOMPARE(QImage(path + "@2x.png").size(), QSize(2 * size, 2 * size));
    QVERIFY(!QIcon(path + ".png").isNull());
}

void TestIcons::isDrawnOnTransparentGround()
{
    QFETCH(QString, path);

    const QImage image(path + ".png");
    QVERIFY(image.hasAlphaChannel());
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            opaque += qAlpha(image.pixel(x, y)) > 200 ? 1 : 0;
    QVERIFY2(opaque * 10 > image.width() * image.height(), "less than a tenth of the picture is drawn");
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
