// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/quick/stage.h"
#include "tests/support/testmain.h"

#include <QKeyEvent>
#include <QPointingDevice>
#include <QSignalSpy>

#include <algorithm>

using namespace ferrin;

namespace {

/// A window with one button that has the focus.
struct Button
{
    Button()
    {
        item = stage.show("ProminentButton { text: 'Done'; focus: true }");
        stage.window.requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(&stage.window);
    }

    void press(Qt::Key key, bool isRepeat)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), isRepeat);
        QCoreApplication::sendEvent(&stage.window, &event);
    }

    /// The line below the first letter is there.
    [[nodiscard]] bool isUnderlined() const
    {
        return std::ranges::any_of(test::visibleItemsOfType(item, "QQuickRectangle"),
                                   [](const QQuickItem *part) { return part->height() == 1; });
    }

    test::SceneStage stage { QByteArrayList() };
    QQuickItem *item = nullptr;
};

} // namespace

class TestPushButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isPressedByAClickHoweverLongItIsHeld()
    {
        Button f;
        const QSignalSpy presses(f.item, SIGNAL(pressed()));
        QTest::mousePress(&f.stage.window, Qt::LeftButton, {}, test::centreOf(f.item));
        QTest::mouseRelease(&f.stage.window, Qt::LeftButton, {}, test::centreOf(f.item), 1000);
        QCOMPARE(presses.count(), 1);
    }

    void isPressedByAClickThatSlidesWithinIt()
    {
        Button f;
        const QSignalSpy presses(f.item, SIGNAL(pressed()));
        const QPoint middle = test::centreOf(f.item);
        f.stage.window.resize(200, 200);
        for (const QPoint &end : { middle + QPoint(20, 0), middle + QPoint(0, 60) }) {
            QTest::mousePress(&f.stage.window, Qt::LeftButton, {}, middle - QPoint(20, 0));
            QTest::mouseMove(&f.stage.window, middle);
            QTest::mouseMove(&f.stage.window, end);
            QTest::mouseRelease(&f.stage.window, Qt::LeftButton, {}, end);
            // The second one was released below it.
            QCOMPARE(presses.count(), 1);
        }
    }

    void isPressedByAFinger()
    {
        Button f;
        const QSignalSpy presses(f.item, SIGNAL(pressed()));
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        QTest::touchEvent(&f.stage.window, screen.get()).press(0, test::centreOf(f.item));
        // No finger lies still.
        QTest::touchEvent(&f.stage.window, screen.get())
            .move(0, test::centreOf(f.item) + QPoint(3, 2));
        QTest::qWait(1000);
        QTest::touchEvent(&f.stage.window, screen.get())
            .release(0, test::centreOf(f.item) + QPoint(3, 2));
        QCOMPARE(presses.count(), 1);
    }

    void isPressedOnceByAHeldKey_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("Space") << Qt::Key_Space;
    }

    void isPressedOnceByAHeldKey()
    {
        QFETCH(Qt::Key, key);
        Button button;
        const QSignalSpy presses(button.item, SIGNAL(pressed()));
        button.press(key, false);
        button.press(key, true);
        button.press(key, true);
        QCOMPARE(presses.count(), 1);
        button.press(key, false);
        QCOMPARE(presses.count(), 2);
    }

    void isPressedByAltAndItsFirstLetter()
    {
        Button button;
        const QSignalSpy presses(button.item, SIGNAL(pressed()));
        QTest::keyClick(&button.stage.window, Qt::Key_D);
        QTest::keyClick(&button.stage.window, Qt::Key_O, Qt::AltModifier);
        QCOMPARE(presses.count(), 0);
        QTest::keyClick(&button.stage.window, Qt::Key_D, Qt::AltModifier);
        QCOMPARE(presses.count(), 1);
        button.item->setEnabled(false);
        QTest::keyClick(&button.stage.window, Qt::Key_D, Qt::AltModifier);
        QCOMPARE(presses.count(), 1);
    }

    void underlinesItsFirstLetterWhileAltIsHeld()
    {
        Button button;
        QVERIFY(!button.isUnderlined());
        QTest::keyPress(&button.stage.window, Qt::Key_Alt);
        QVERIFY(button.isUnderlined());
        QTest::keyRelease(&button.stage.window, Qt::Key_Alt);
        QVERIFY(!button.isUnderlined());
    }
};

FERRIN_TEST(QGuiApplication, TestPushButton)
#include "test_pushbutton.moc"
