// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/doubles.h"
#include "support/signallog.h"
#include "support/widgethelpers.h"
#include "widgets/reloadbanner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using RTLVAK::ReloadBanner;
using support::child;

class TestReloadBanner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void formIsLaidOutAsFixed();
    void changedAsksWhetherToReload();
    void removedAsksWhetherToKeep();
    void otherKindsKeepTheFormsTextsAndDoNothing_data();
    void otherKindsKeepTheFormsTextsAndDoNothing();
    void setTextReplacesTheQuestion();
    void pathsThatLookLikeMarkupAreShownAsTheyAre();
    void signalsInDeclaredOrder();
    void bannerStaysUntilItsMakerRemovesIt();
};

static void watchAll(support::SignalLog &log, ReloadBanner *banner)
{
    log.watch(banner, &ReloadBanner::reload, "reload");
    log.watch(banner, &ReloadBanner::cancel, "cancel");
    log.watch(banner, &ReloadBanner::keepIt, "keepIt");
    log.watch(banner, &ReloadBanner::closeIt, "closeIt");
}

void TestReloadBanner::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestReloadBanner::formIsLaidOutAsFixed()
{
    QWidget parent;
    ReloadBanner banner(0, "/x.rvk", &parent);
    QCOMPARE(banner.parentWidget(), &parent);
    QCOMPARE(banner.objectName(), QString("RTLVAK__ReloadBanner"));
    QCOMPARE(banner.size(), QSize(603, 68));
    auto &outer = child<QHBoxLayout>(banner, "horizontalLayout");
    QCOMPARE(banner.layout(), &outer);
    QCOMPARE(outer.count(), 3);
    QCOMPARE(outer.itemAt(0)->widget(), &child<QLabel>(banner, "label"));
    QCOMPARE(outer.itemAt(1)->widget(), &child<QLabel>(banner, "labelFile"));
    QCOMPARE(outer.itemAt(2)->widget(), &child<QWidget>(banner, "widget"));
    auto &inner = child<QVBoxLayout>(banner, "verticalLayout_2");
    QCOMPARE(child<QWidget>(banner, "widget").layout(), &inner);
    QCOMPARE(inner.itemAt(0)->widget(), &child<QPushButton>(banner, "btnA"));
    QCOMPARE(inner.itemAt(1)->widget(), &child<QPushButton>(banner, "btnB"));
    const QPixmap icon = child<QLabel>(banner, "label").pixmap(Qt::ReturnByValue);
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.toImage(), QPixmap(":/utils/image/attention.png").toImage());
}

void TestReloadBanner::changedAsksWhetherToReload()
{
    ReloadBanner banner(0, "/work dir/a.rvk", nullptr);
    support::SignalLog log;
    watchAll(log, &banner);
    QCOMPARE(child<QPushButton>(banner, "btnA").text(), QString("Reload"));
    QCOMPARE(child<QPushButton>(banner, "btnB").text(), QString("Cancel"));
    QCOMPARE(child<QLabel>(banner, "labelFile").text(),
             QString("The file '/work dir/a.rvk' changed on disk.\nDo you want to reload?"));
    support::clickButton(banner, "btnA");
    support::clickButton(banner, "btnB");
    QCOMPARE(log.names(), QStringList({"reload", "cancel"}));
}

void TestReloadBanner::removedAsksWhetherToKeep()
{
    ReloadBanner banner(1, "/a.rvk", nullptr);
    support::SignalLog log;
    watchAll(log, &banner);
    QCOMPARE(child<QPushButton>(banner, "btnA").text(), QString("Keep It"));
    QCOMPARE(child<QPushButton>(banner, "btnB").text(), QString("Close"));
    QCOMPARE(child<QLabel>(banner, "labelFile").text(),
             QString("The file '/a.rvk' has been removed on disk.\nDo you still want to keep it?"));
    support::clickButton(banner, "btnA");
    support::clickButton(banner, "btnB");
    QCOMPARE(log.names(), QStringList({"keepIt", "closeIt"}));
}

void TestReloadBanner::otherKindsKeepTheFormsTextsAndDoNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("two") << 2;
    QTest::newRow("negative") << -1;
}

void TestReloadBanner::otherKindsKeepTheFormsTextsAndDoNothing()
{
    QFETCH(int, kind);
    ReloadBanner banner(kind, "/a.rvk", nullptr);
    support::SignalLog log;
    watchAll(log, &banner);
    QCOMPARE(child<QPushButton>(banner, "btnA").text(), QString("Reload"));
    QCOMPARE(child<QPushButton>(banner, "btnB").text(), QString("Cancel"));
    QCOMPARE(child<QLabel>(banner, "labelFile").text(),
             QString("<html><head/><body><p>The file /home/somedir/some_file changed externaly.</p>"
                     "<p>Do you want to reload?</p></body></html>"));
    support::clickButton(banner, "btnA");
    support::clickButton(banner, "btnB");
    QCOMPARE(log.names(), QStringList());
}

void TestReloadBanner::setTextReplacesTheQuestion()
{
    ReloadBanner banner(0, QString(), nullptr);
    QCOMPARE(child<QLabel>(banner, "labelFile").text(),
             QString("The file '' changed on disk.\nDo you want to reload?"));
    banner.setText("Design files changed. Do you want to reload?");
    QCOMPARE(child<QLabel>(banner, "labelFile").text(), QString("Design files changed. Do you want to reload?"));
}

void TestReloadBanner::pathsThatLookLikeMarkupAreShownAsTheyAre()
{
    for (const int kind : {0, 1}) {
        ReloadBanner banner(kind, "/a<b>c</b>&amp;%1.rvk", nullptr);
        const auto &label = child<QLabel>(banner, "labelFile");
        QVERIFY(label.text().contains("'/a<b>c</b>&amp;%1.rvk'"));
        QCOMPARE(label.textFormat(), Qt::PlainText);
    }
    ReloadBanner banner(7, QString(), nullptr);
    banner.setText("<b>bold</b>");
    QCOMPARE(child<QLabel>(banner, "labelFile").textFormat(), Qt::PlainText);
}

void TestReloadBanner::signalsInDeclaredOrder()
{
    QCOMPARE(support::ownMethods(ReloadBanner::staticMetaObject),
             QStringList({"reload()", "cancel()", "keepIt()", "closeIt()"}));
}

void TestReloadBanner::bannerStaysUntilItsMakerRemovesIt()
{
    QWidget parent;
    auto *banner = new ReloadBanner(0, "/a.rvk", &parent);
    parent.show();
    const QPointer<ReloadBanner> guard(banner);
    support::clickButton(*banner, "btnB");
    support::runDeferredDeletes();
    QVERIFY(guard);
    QVERIFY(banner->isVisible());
}

QTEST_MAIN(TestReloadBanner)

#include "tst_reloadbanner.moc"
