// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/iconstage.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;
using namespace ferrin::test;

namespace {

/// The whole settings window, which has the focus.
struct KeyStage : IconStage
{
    KeyStage()
    {
        window.requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(&window);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&window, key, modifiers);
    }
    [[nodiscard]] bool asksWhetherToQuit()
    {
        return !itemsOfType(window.contentItem(), "QuitPopoverView").isEmpty();
    }
};

} // namespace

class TestSettingsKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ctrlWClosesTheWindow()
    {
        KeyStage f;
        const QSignalSpy closings(&f.settings, &Settings::dismissRequested);
        f.press(Qt::Key_W);
        QCOMPARE(closings.count(), 0);
        f.press(Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(closings.count(), 1);
    }

    void escapeClosesTheWindow()
    {
        KeyStage f;
        const QSignalSpy closings(&f.settings, &Settings::dismissRequested);
        f.press(Qt::Key_Escape);
        QCOMPARE(closings.count(), 1);
    }

    void escapeClosesWhatLiesOverTheWindowFirst()
    {
        KeyStage f;
        const QSignalSpy closings(&f.settings, &Settings::dismissRequested);
        f.click(f.controlOf(0));
        QVERIFY(!f.iconButtons().isEmpty());
        f.press(Qt::Key_Escape);
        QVERIFY(f.iconButtons().isEmpty());
        QCOMPARE(closings.count(), 0);
        f.press(Qt::Key_Escape);
        QCOMPARE(closings.count(), 1);
    }

    void ctrlQAsksWhetherToQuit()
    {
        KeyStage f;
        const QSignalSpy ends(&f.settings, &Settings::quitRequested);
        f.press(Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(f.asksWhetherToQuit());
        QCOMPARE(ends.count(), 0);
        // Once more, it neither answers the question nor takes it back.
        f.press(Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(f.asksWhetherToQuit());
        QCOMPARE(ends.count(), 0);
    }

    void theQuestionIsAnsweredByItsMnemonics()
    {
        KeyStage f;
        const QSignalSpy ends(&f.settings, &Settings::quitRequested);
        f.press(Qt::Key_Q, Qt::ControlModifier);
        f.press(Qt::Key_N, Qt::AltModifier);
        QVERIFY(!f.asksWhetherToQuit());
        QCOMPARE(ends.count(), 0);
        f.press(Qt::Key_Q, Qt::ControlModifier);
        f.press(Qt::Key_Y, Qt::AltModifier);
        QCOMPARE(ends.count(), 1);
    }

    void f1OpensTheFrequentlyAskedQuestions()
    {
        KeyStage f;
        f.press(Qt::Key_F1);
        QCOMPARE(f.opener.opened, QList<QUrl> { QUrl(QStringLiteral("file:///faq.html")) });
    }
};

FERRIN_TEST(QGuiApplication, TestSettingsKeys)
#include "test_settingskeys.moc"
