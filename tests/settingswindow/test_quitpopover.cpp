// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/stage.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Popover
{
    Popover()
    {
        view = stage.show("QuitPopoverView {}");
        buttons = test::itemsOfType(view, "ProminentButton");
    }
    void click(int index)
    {
        const QPointF middle = buttons[index]->mapToScene(buttons[index]->boundingRect().center());
        QTest::mouseClick(&stage.window, Qt::LeftButton, {}, middle.toPoint());
    }

    test::SettingsStage stage;
    QQuickItem *view = nullptr;
    QList<QQuickItem *> buttons;
};

} // namespace

class TestQuitPopover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksWithTwoAnswers()
    {
        const Popover f;
        QCOMPARE(test::textsOf(f.view),
                 (QStringList { u"Do you want quit Ferrin?"_s, u"Yes"_s, u"No"_s }));
        QCOMPARE(f.view->size(), QSizeF(180, 80));
    }

    void alignsTheQuestionWithTheLeadingEdge()
    {
        const Popover f;
        const QQuickItem *const question = test::itemsOfType(f.view, "QQuickText").constFirst();
        QCOMPARE(question->property("horizontalAlignment").toInt(), int(Qt::AlignLeft));
        QCOMPARE(question->mapToItem(f.view, {}).x(), 10);
        QCOMPARE(question->width(), 160);
    }

    void noClosesItAndLeavesTheProgramRunning()
    {
        Popover f;
        const QSignalSpy confirmed(f.view, SIGNAL(quitConfirmed()));
        f.click(1);
        QVERIFY(!f.view->property("isShown").toBool());
        QCOMPARE(confirmed.count(), 0);
    }

    void yesEndsTheProgram()
    {
        Popover f;
        const QSignalSpy confirmed(f.view, SIGNAL(quitConfirmed()));
        f.click(0);
        QCOMPARE(confirmed.count(), 1);
    }

    void answersNoToAReturnKeyPressedInHaste()
    {
        Popover f;
        const QSignalSpy confirmed(f.view, SIGNAL(quitConfirmed()));
        f.view->forceActiveFocus();
        QTest::keyClick(&f.stage.window, Qt::Key_Return);
        QVERIFY(!f.view->property("isShown").toBool());
        QCOMPARE(confirmed.count(), 0);
    }
};

FERRIN_TEST(QGuiApplication, TestQuitPopover)
#include "test_quitpopover.moc"
