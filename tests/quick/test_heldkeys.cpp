// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/heldkeys.h"
#include "tests/support/testmain.h"

#include <QKeyEvent>
#include <QTest>
#include <QWindow>

using namespace ferrin;

namespace {

/// Counts what reaches it.
struct Window final : QWindow
{
    void keyPressEvent(QKeyEvent *) override { ++presses; }
    void keyReleaseEvent(QKeyEvent *) override { ++releases; }
    bool event(QEvent *event) override
    {
        shortcuts += event->type() == QEvent::ShortcutOverride;
        return QWindow::event(event);
    }

    int presses = 0;
    int releases = 0;
    int shortcuts = 0;
};

struct Key
{
    Window &window;
    int key;
    Qt::KeyboardModifiers modifiers {};

    /// At this time of the display server, whether Qt knows it for a repeat or not. True if it was
    /// accepted.
    bool send(QEvent::Type type, quint64 time, bool isKnownRepeat = false) const
    {
        QKeyEvent event(type, key, modifiers, {}, isKnownRepeat);
        event.setTimestamp(time);
        event.ignore();
        QCoreApplication::sendEvent(&window, &event);
        return event.isAccepted();
    }
    bool press(quint64 time, bool isKnownRepeat = false) const
    {
        return send(QEvent::KeyPress, time, isKnownRepeat);
    }
    void release(quint64 time) const { send(QEvent::KeyRelease, time); }
};

} // namespace

class HeldKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actOnce_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Return") << int(Qt::Key_Return) << Qt::KeyboardModifiers();
        QTest::newRow("Enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers(Qt::KeypadModifier);
        QTest::newRow("Space") << int(Qt::Key_Space) << Qt::KeyboardModifiers();
        QTest::newRow("Escape") << int(Qt::Key_Escape) << Qt::KeyboardModifiers();
        QTest::newRow("F1") << int(Qt::Key_F1) << Qt::KeyboardModifiers();
        QTest::newRow("Ctrl+W") << int(Qt::Key_W) << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Alt+Y") << int(Qt::Key_Y) << Qt::KeyboardModifiers(Qt::AltModifier);
    }

    void actOnce()
    {
        QFETCH(int, code);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        const HeldKeys held(true);
        Window window;
        const Key key { window, code, modifiers };
        key.press(1000);
        QVERIFY(key.press(1500, true));
        // A repeat that came in two parts.
        key.release(1540);
        QVERIFY(key.press(1540));
        QCOMPARE(window.presses, 1);
        key.release(1600);
        // Pressed again by the user.
        key.press(1700);
        QCOMPARE(window.presses, 2);
    }

    void triggerNoShortcutAgain()
    {
        const HeldKeys held(true);
        Window window;
        const Key key { window, Qt::Key_F1 };
        QVERIFY(!key.send(QEvent::ShortcutOverride, 1000));
        QVERIFY(key.send(QEvent::ShortcutOverride, 1500, true));
        key.release(1540);
        QVERIFY(key.send(QEvent::ShortcutOverride, 1540));
        QCOMPARE(window.shortcuts, 1);
    }

    void goOnWhereTheyMove()
    {
        const HeldKeys held(true);
        Window window;
        const Key key { window, Qt::Key_Down };
        key.press(1000);
        key.press(1500, true);
        key.release(1540);
        key.press(1540);
        QCOMPARE(window.presses, 3);
    }

    void doNotTakeAnotherKeyForTheirRepeat()
    {
        const HeldKeys held(true);
        Window window;
        const Key space { window, Qt::Key_Space };
        const Key enter { window, Qt::Key_Return };
        space.press(1000);
        space.release(1040);
        enter.press(1040);
        QCOMPARE(window.presses, 2);
        QCOMPARE(window.releases, 1);
    }

    void areToldByQtAloneElsewhere()
    {
        const HeldKeys held(false);
        Window window;
        const Key key { window, Qt::Key_Space };
        key.press(1000);
        key.release(1040);
        key.press(1040);
        QCOMPARE(window.presses, 2);
        key.press(1500, true);
        QCOMPARE(window.presses, 2);
    }

    void areNoMatterOfEventsWithoutATime()
    {
        const HeldKeys held(true);
        Window window;
        const Key key { window, Qt::Key_Space };
        key.press(0);
        key.release(0);
        key.press(0);
        QCOMPARE(window.presses, 2);
    }
};

FERRIN_TEST(QGuiApplication, HeldKeysTest)
#include "test_heldkeys.moc"
