// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "support/widgethelpers.h"
#include "widgets/messagedlg.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QVBoxLayout>

using RTLVAK::MessageDlg;
using support::child;

class TestMessageDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void formIsLaidOutAsFixed();
    void linesAreJoinedAndReplaced();
    void messagesThatLookLikeMarkupAreShownAsTheyAre();
    void longLinesAreNotWrapped();
    void okAcceptsByButtonAndByBox();
    void escapeRejects();
    void execIsModalAlthoughTheDialogIsNot();
    void derivedDialogsSeeTheTextsEvents();
};

void TestMessageDlg::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestMessageDlg::formIsLaidOutAsFixed()
{
    QWidget parent;
    MessageDlg dialog(&parent);
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.size(), QSize(400, 300));
    QCOMPARE(dialog.windowTitle(), QString("Dialog"));
    auto &layout = child<QVBoxLayout>(dialog, "verticalLayout");
    QCOMPARE(dialog.layout(), &layout);
    QCOMPARE(layout.itemAt(0)->widget(), &child<QTextEdit>(dialog, "textEdit"));
    QCOMPARE(layout.itemAt(1)->widget(), &child<QDialogButtonBox>(dialog, "buttonBox"));
    QVERIFY(child<QTextEdit>(dialog, "textEdit").isReadOnly());
    QCOMPARE(child<QDialogButtonBox>(dialog, "buttonBox").orientation(), Qt::Horizontal);
    QCOMPARE(child<QDialogButtonBox>(dialog, "buttonBox").standardButtons(),
             QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
}

void TestMessageDlg::linesAreJoinedAndReplaced()
{
    MessageDlg dialog(nullptr);
    dialog.setMessages({"first", "", "third"});
    QCOMPARE(child<QTextEdit>(dialog, "textEdit").toPlainText(), QString("first\n\nthird"));
    dialog.setMessages({"other"});
    QCOMPARE(child<QTextEdit>(dialog, "textEdit").toPlainText(), QString("other"));
}

void TestMessageDlg::messagesThatLookLikeMarkupAreShownAsTheyAre()
{
    MessageDlg dialog(nullptr);
    dialog.setMessages({"<b>ERROR</b>: a < b && c > d"});
    QCOMPARE(child<QTextEdit>(dialog, "textEdit").toPlainText(), QString("<b>ERROR</b>: a < b && c > d"));
}

void TestMessageDlg::longLinesAreNotWrapped()
{
    MessageDlg dialog(nullptr);
    dialog.setMessages({QString("word ").repeated(500)});
    dialog.show();
    const auto &text = child<QTextEdit>(dialog, "textEdit");
    QCOMPARE(text.lineWrapMode(), QTextEdit::NoWrap);
    QCOMPARE(text.wordWrapMode(), QTextOption::NoWrap);
    QCOMPARE(text.document()->firstBlock().layout()->lineCount(), 1);
}

void TestMessageDlg::okAcceptsByButtonAndByBox()
{
    MessageDlg dialog(nullptr);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.show();
    QTest::mouseClick(child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(accepted.count(), 2);
}

void TestMessageDlg::escapeRejects()
{
    MessageDlg dialog(nullptr);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
    emit child<QDialogButtonBox>(dialog, "buttonBox").rejected();
    QCOMPARE(rejected.count(), 2);
}

void TestMessageDlg::execIsModalAlthoughTheDialogIsNot()
{
    support::DialogDriver driver;
    MessageDlg dialog(nullptr);
    QCOMPARE(dialog.windowModality(), Qt::NonModal);
    bool modal = false;
    driver.answerDialogOf<MessageDlg>([&modal](MessageDlg &shown) {
        modal = shown.isModal();
        QTest::mouseClick(child<QDialogButtonBox>(shown, "buttonBox").button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(modal);
}

namespace {

class WatchingDlg : public MessageDlg
{
public:
    using MessageDlg::MessageDlg;

    QObject *pressed = nullptr;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            pressed = watched;
        return MessageDlg::eventFilter(watched, event);
    }
};

} // namespace

void TestMessageDlg::derivedDialogsSeeTheTextsEvents()
{
    WatchingDlg dialog(nullptr);
    dialog.show();
    QWidget *viewport = child<QTextEdit>(dialog, "textEdit").viewport();
    QTest::mouseClick(viewport, Qt::LeftButton);
    QCOMPARE(dialog.pressed, viewport);
}

QTEST_MAIN(TestMessageDlg)

#include "tst_messagedlg.moc"
