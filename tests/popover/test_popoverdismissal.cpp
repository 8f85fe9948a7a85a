// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/popoverdismissal.h"
#include "tests/popover/fakepresswatcher.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace std::chrono_literals;

namespace {

/// A popover of two windows, one of which is shown beside the other.
struct Stage
{
    FakePressWatcher presses;
    QWindow popover;
    QWindow other;
    PopoverDismissal dismissal { &presses,
                                 [this](const QWindow &window) { return &window == &popover; } };
    QSignalSpy dismissals { &dismissal, &PopoverDismissal::dismissed };

    Stage()
    {
        QObject::connect(&dismissal, &PopoverDismissal::dismissed, &dismissal,
                         [this] { dismissal.popoverHidden(); });
    }
};

} // namespace

class PopoverDismissalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listensOnlyWhileThePopoverIsShown();
    void dismissesAtAPressElsewhere();
    void dismissesAtAPressOnAnotherOfOurWindows();
    void staysAtAPressInside();
    void swallowsTheClickThatBelongsToTheDismissingPress();
    void heedsEveryClickWherePressesReachNobodyElse();
    void swallowsItOnce();
    void heedsTheClickOfALaterPress();
    void heedsTheClickOfAPressThatWasNotReadYet();
    void heedsAClickWhenTheOtherHasNotComeInTime();
    void heedsTheClickThatClosesByItself();
    void takesALossOfFocusForThePressThatCausedIt();
    void heedsAnyClickAfterALossOfFocusWithoutAPress();
    void swallowsTheClickAfterALossOfFocusWherePressesAreNotHeard();
    void heedsALateClickWherePressesAreNotHeard();
    void saysNothingOfAPopoverThatIsGone();
    void worksWithoutAWatcher();
};

void PopoverDismissalTest::listensOnlyWhileThePopoverIsShown()
{
    Stage stage;
    QVERIFY(!stage.presses.listens);
    stage.dismissal.popoverShown();
    QVERIFY(stage.presses.listens);
    stage.dismissal.popoverHidden();
    QVERIFY(!stage.presses.listens);
}

void PopoverDismissalTest::dismissesAtAPressElsewhere()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.press(nullptr);
    QCOMPARE(stage.dismissals.size(), 1);
}

void PopoverDismissalTest::dismissesAtAPressOnAnotherOfOurWindows()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.press(&stage.other);
    QCOMPARE(stage.dismissals.size(), 1);
}

void PopoverDismissalTest::staysAtAPressInside()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.press(&stage.popover);
    QCOMPARE(stage.dismissals.size(), 0);
    QVERIFY(stage.dismissal.isNewClick());
}

void PopoverDismissalTest::swallowsTheClickThatBelongsToTheDismissingPress()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.press(nullptr);
    QVERIFY(!stage.dismissal.isNewClick());
    QVERIFY(!stage.presses.listens);
}

void PopoverDismissalTest::heedsEveryClickWherePressesReachNobodyElse()
{
    Stage stage;
    stage.presses.isGreedy = true;
    stage.dismissal.popoverShown();
    stage.presses.press(nullptr);
    QCOMPARE(stage.dismissals.size(), 1);
    QVERIFY(stage.dismissal.isNewClick());
    QVERIFY(!stage.presses.listens);
}

void PopoverDismissalTest::swallowsItOnce()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.press(nullptr);
    QVERIFY(!stage.dismissal.isNewClick());
    QVERIFY(stage.dismissal.isNewClick());
}

void PopoverDismissalTest::heedsTheClickOfALaterPress()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.press(nullptr);
    stage.presses.press(nullptr);
    QVERIFY(stage.dismissal.isNewClick());
    QCOMPARE(stage.dismissals.size(), 1);
    QVERIFY(!stage.presses.listens);
}

void PopoverDismissalTest::heedsTheClickOfAPressThatWasNotReadYet()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.press(nullptr);
    stage.presses.unread = { nullptr };
    QVERIFY(stage.dismissal.isNewClick());
}

void PopoverDismissalTest::heedsAClickWhenTheOtherHasNotComeInTime()
{
    Stage stage;
    stage.dismissal.setTimeouts({ .afterPress = 1ms });
    stage.dismissal.popoverShown();
    stage.presses.press(nullptr);
    QTRY_VERIFY(!stage.presses.listens);
    QVERIFY(stage.dismissal.isNewClick());
}

void PopoverDismissalTest::heedsTheClickThatClosesByItself()
{
    Stage stage;
    stage.dismissal.popoverShown();
    QVERIFY(stage.dismissal.isNewClick());
    stage.dismissal.popoverHidden();
    QVERIFY(stage.dismissal.isNewClick());
    QCOMPARE(stage.dismissals.size(), 0);
}

void PopoverDismissalTest::takesALossOfFocusForThePressThatCausedIt()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.presses.unread = { nullptr };
    stage.dismissal.focusLost();
    QCOMPARE(stage.dismissals.size(), 1);
    QVERIFY(!stage.dismissal.isNewClick());
}

void PopoverDismissalTest::heedsAnyClickAfterALossOfFocusWithoutAPress()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.dismissal.focusLost();
    QCOMPARE(stage.dismissals.size(), 1);
    QVERIFY(stage.dismissal.isNewClick());
    QVERIFY(!stage.presses.listens);
}

void PopoverDismissalTest::swallowsTheClickAfterALossOfFocusWherePressesAreNotHeard()
{
    Stage stage;
    stage.presses.isDeaf = true;
    stage.dismissal.setTimeouts({ .afterFocus = 1h });
    stage.dismissal.popoverShown();
    stage.dismissal.focusLost();
    QCOMPARE(stage.dismissals.size(), 1);
    QVERIFY(!stage.dismissal.isNewClick());
    QVERIFY(stage.dismissal.isNewClick());
}

void PopoverDismissalTest::heedsALateClickWherePressesAreNotHeard()
{
    Stage stage;
    stage.presses.isDeaf = true;
    stage.dismissal.setTimeouts({ .afterFocus = 0ms });
    stage.dismissal.popoverShown();
    stage.dismissal.focusLost();
    QVERIFY(stage.dismissal.isNewClick());
}

void PopoverDismissalTest::saysNothingOfAPopoverThatIsGone()
{
    Stage stage;
    stage.dismissal.popoverShown();
    stage.dismissal.popoverHidden();
    stage.presses.press(nullptr);
    stage.dismissal.focusLost();
    QCOMPARE(stage.dismissals.size(), 0);
}

void PopoverDismissalTest::worksWithoutAWatcher()
{
    PopoverDismissal dismissal(nullptr, [](const QWindow &) { return false; });
    const QSignalSpy dismissals(&dismissal, &PopoverDismissal::dismissed);
    dismissal.popoverShown();
    dismissal.focusLost();
    QCOMPARE(dismissals.size(), 1);
    QVERIFY(!dismissal.isNewClick());
    QVERIFY(dismissal.isNewClick());
}

FERRIN_TEST(QGuiApplication, PopoverDismissalTest)
#include "test_popoverdismissal.moc"
