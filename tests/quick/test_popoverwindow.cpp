// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/popoverdesktop.h"
#include "quick/framedwindow.h"
#include "quick/popoverwindow.h"
#include "quick/quickengine.h"
#include "tests/support/chosenappearance.h"
#include "tests/support/testmain.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainterPath>
#include <QQmlComponent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <cstdlib>
#include <memory>

using namespace ferrin;

namespace {

// A window with two parts, each of which has something to explain.
constexpr auto twoParts = R"(
    import QtQuick
    import Ferrin.Quick

    Item {
        width: 300; height: 200

        Item {
            id: one
            objectName: "one"
            x: 10; y: 10; width: 100; height: 100
            PopoverWindow {
                objectName: "explanation of one"
                anchor: one
                Item { objectName: "content"; width: 200; height: 80 }
            }
        }
        Item {
            id: other
            x: 120; y: 10; width: 100; height: 100
            PopoverWindow {
                objectName: "explanation of the other"
                anchor: other
                Item { width: 200; height: 80 }
            }
        }
        PopoverWindow { objectName: "of nothing"; Item { width: 10; height: 10 } }
    })";

/// A desktop that remembers what it was told.
struct FakeDesktop final : PopoverDesktop
{
    [[nodiscard]] bool blends() const override { return isBlending; }
    void setOutline(QWindow &, const QPainterPath &given) override { outline = given; }

    bool isBlending = true;
    QPainterPath outline;
};

class Stage
{
public:
    explicit Stage(bool isBlending = true)
    {
        desktop.isBlending = isBlending;
        QQmlComponent component(&engine);
        component.setData(twoParts, {});
        std::unique_ptr<QQuickItem> root(qobject_cast<QQuickItem *>(component.create()));
        if (!root)
            qFatal("%s", qPrintable(component.errorString()));
        content = root.get();
        window = std::make_unique<FramedWindow>(engine);
        window->setContent(std::move(root));
        window->place({ .frame { 200, 100, 300, 200 }, .bounds { 0, 0, 800, 800 } },
                      FramedWindow::ArrowUse::Without);
        window->show();
    }

    [[nodiscard]] PopoverWindow &explanation(const char *name) const
    {
        return *content->findChild<PopoverWindow *>(QString::fromLatin1(name));
    }

    [[nodiscard]] QList<FramedWindow *> explanations() const
    {
        QList<FramedWindow *> found;
        for (QWindow *const each : QGuiApplication::allWindows()) {
            if (each->isVisible() && each->transientParent() == window.get())
                found.append(qobject_cast<FramedWindow *>(each));
        }
        return found;
    }

    FakeDesktop desktop;
    QuickEngine engine { desktop };
    QQuickItem *content = nullptr;
    std::unique_ptr<FramedWindow> window;
};

/// The keys that reach a window past later filters.
struct KeyLog final : QObject
{
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            heard.append(static_cast<QKeyEvent *>(event)->key());
        return false;
    }

    QList<int> heard;
};

} // namespace

class PopoverWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensAWindowOfItsOwnThatTakesNoFocus();
    void makesItsContentWhenItOpensAndDropsItWhenItCloses();
    void isAsLargeAsItsContent();
    void followsTheSizeOfItsContent();
    void growsWithTheSizeOfTextsAsFarAsTheScreenHasRoom();
    void pointsAtItsAnchor();
    void isTheOnlyOneOpen();
    void saysThatItOpensAndCloses();
    void closesAtAPressBesideItAndSaysSoFirst();
    void closesAtEscapeBeforeItsParent();
    void closesWithItsParent();
    void closesWhenItsAnchorIsHidden();
    void goesWithItsAnchor();
    void opensAgain();
    void doesNotOpenWithoutAnAnchor();
    void doesNotOpenBesideAHiddenWindow();
    void hasAShadowWhereWindowsAreBlended();
    void endsAtItsFrameWhereWindowsAreNotBlended();
};

void PopoverWindowTest::opensAWindowOfItsOwnThatTakesNoFocus()
{
    const Stage stage;
    stage.explanation("explanation of one").open();
    QCOMPARE(stage.explanations().size(), 1);
    const QWindow *const opened = stage.explanations().first();
    QCOMPARE(opened->type(), Qt::ToolTip);
    QVERIFY(opened->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    QVERIFY(QTest::qWaitForWindowActive(stage.window.get()));
}

void PopoverWindowTest::makesItsContentWhenItOpensAndDropsItWhenItCloses()
{
    const Stage stage;
    PopoverWindow &explanation = stage.explanation("explanation of one");
    QVERIFY(!stage.content->findChild<QQuickItem *>(QStringLiteral("content")));
    QVERIFY(stage.explanations().isEmpty());
    explanation.open();
    QPointer<FramedWindow> window = stage.explanations().first();
    explanation.close();
    QVERIFY(!explanation.isShown());
    QTRY_VERIFY(window.isNull());
}

void PopoverWindowTest::isAsLargeAsItsContent()
{
    const Stage stage;
    stage.explanation("explanation of one").open();
    QCOMPARE(stage.explanations().first()->frame().size(), QSize(200, 80));
}

void PopoverWindowTest::followsTheSizeOfItsContent()
{
    const Stage stage;
    stage.explanation("explanation of one").open();
    FramedWindow *const opened = stage.explanations().first();
    for (QQuickItem *const item : opened->contentItem()->childItems()) {
        if (item->objectName() == u"content")
            item->setHeight(120);
    }
    QCOMPARE(opened->frame().size(), QSize(200, 120));
}

void PopoverWindowTest::growsWithTheSizeOfTextsAsFarAsTheScreenHasRoom()
{
    test::ChosenAppearance appearance;
    appearance.setTextScale(1.5);
    const Stage stage;
    stage.explanation("explanation of one").open();
    const FramedWindow &explanation = *stage.explanations().constFirst();
    QCOMPARE(explanation.frame().size(), QSize(300, 120));
    appearance.setTextScale(2);
    QCOMPARE(explanation.frame().size(), QSize(400, 160));

    QQuickItem *const content = explanation.contentItem()->childItems().constLast();
    const QSize screen = explanation.screen()->availableSize();
    content->setWidth(screen.width() * 0.75);
    QVERIFY(explanation.frame().width() > screen.width() * 0.75);
    QVERIFY(explanation.frame().width() < screen.width());
    QCOMPARE(content->scale(), explanation.frame().width() / content->width());
}

void PopoverWindowTest::pointsAtItsAnchor()
{
    const Stage stage;
    stage.explanation("explanation of one").open();
    // Below the anchor, which is at 210, 110 of the desktop, with an arrow up to it.
    const FramedWindow *const opened = stage.explanations().first();
    QVERIFY(opened->frame().top() > 210);
    QVERIFY(std::abs(opened->frame().center().x() - 260) <= 1);
    const QPointF aboveTheFrame = opened->frame().topLeft() - opened->position() + QPointF(100, -5);
    QVERIFY(stage.desktop.outline.contains(aboveTheFrame));
}

void PopoverWindowTest::isTheOnlyOneOpen()
{
    const Stage stage;
    stage.explanation("explanation of one").open();
    stage.explanation("explanation of the other").open();
    QVERIFY(!stage.explanation("explanation of one").isShown());
    QVERIFY(stage.explanation("explanation of the other").isShown());
    QCOMPARE(stage.explanations().size(), 1);
}

void PopoverWindowTest::saysThatItOpensAndCloses()
{
    const Stage stage;
    PopoverWindow &explanation = stage.explanation("explanation of one");
    const QSignalSpy shown(&explanation, &PopoverWindow::shownChanged);
    const QSignalSpy opened(&explanation, &PopoverWindow::opened);
    const QSignalSpy closed(&explanation, &PopoverWindow::closed);
    explanation.open();
    explanation.open();
    QCOMPARE(shown.size(), 1);
    QCOMPARE(opened.size(), 1);
    explanation.close();
    explanation.close();
    QCOMPARE(shown.size(), 2);
    QCOMPARE(closed.size(), 1);
}

void PopoverWindowTest::closesAtAPressBesideItAndSaysSoFirst()
{
    const Stage stage;
    PopoverWindow &explanation = stage.explanation("explanation of one");
    explanation.open();
    QList<bool> wasShown;
    connect(&explanation, &PopoverWindow::pressedElsewhere, this,
            [&] { wasShown.append(explanation.isShown()); });
    QTest::mousePress(stage.window.get(), Qt::LeftButton, {}, { 40, 40 });
    QCOMPARE(wasShown, QList { true });
    QVERIFY(!explanation.isShown());
    QTest::mouseRelease(stage.window.get(), Qt::LeftButton, {}, { 40, 40 });
}

void PopoverWindowTest::closesAtEscapeBeforeItsParent()
{
    const Stage stage;
    KeyLog keys;
    stage.window->installEventFilter(&keys);
    PopoverWindow &explanation = stage.explanation("explanation of one");
    explanation.open();
    QTest::keyPress(stage.window.get(), Qt::Key_A);
    QVERIFY(explanation.isShown());
    QTest::keyPress(stage.window.get(), Qt::Key_Escape);
    QVERIFY(!explanation.isShown());
    QTest::keyPress(stage.window.get(), Qt::Key_Escape);
    QCOMPARE(keys.heard, QList<int>({ Qt::Key_A, Qt::Key_Escape }));
}

void PopoverWindowTest::closesWithItsParent()
{
    const Stage stage;
    PopoverWindow &explanation = stage.explanation("explanation of one");
    explanation.open();
    stage.window->hide();
    QVERIFY(!explanation.isShown());
}

void PopoverWindowTest::closesWhenItsAnchorIsHidden()
{
    const Stage stage;
    PopoverWindow &explanation = stage.explanation("explanation of one");
    explanation.open();
    stage.content->setVisible(false);
    QVERIFY(!explanation.isShown());
}

void PopoverWindowTest::goesWithItsAnchor()
{
    const Stage stage;
    stage.explanation("explanation of one").open();
    delete stage.content->findChild<QQuickItem *>(QStringLiteral("one"));
    QTRY_VERIFY(stage.explanations().isEmpty());
}

void PopoverWindowTest::opensAgain()
{
    const Stage stage;
    PopoverWindow &explanation = stage.explanation("explanation of one");
    for (int time = 0; time < 3; ++time) {
        explanation.open();
        QCOMPARE(stage.explanations().size(), 1);
        explanation.close();
        QCOMPARE(stage.explanations().size(), 0);
    }
}

void PopoverWindowTest::doesNotOpenWithoutAnAnchor()
{
    const Stage stage;
    stage.explanation("of nothing").open();
    QVERIFY(!stage.explanation("of nothing").isShown());
}

void PopoverWindowTest::doesNotOpenBesideAHiddenWindow()
{
    const Stage stage;
    stage.window->hide();
    stage.explanation("explanation of one").open();
    QVERIFY(!stage.explanation("explanation of one").isShown());
}

void PopoverWindowTest::hasAShadowWhereWindowsAreBlended()
{
    const Stage stage;
    QVERIFY(stage.window->geometry().contains(stage.window->frame().adjusted(-10, -10, 10, 10)));
    const QRectF seen = stage.desktop.outline.boundingRect();
    QCOMPARE(seen.size().toSize(), stage.window->frame().size());
}

void PopoverWindowTest::endsAtItsFrameWhereWindowsAreNotBlended()
{
    const Stage stage(false);
    QCOMPARE(stage.window->geometry(), stage.window->frame());
}

FERRIN_TEST(QGuiApplication, PopoverWindowTest)
#include "test_popoverwindow.moc"
