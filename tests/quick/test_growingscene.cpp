// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/contrast.h"
#include "quick/windowsize.h"
#include "tests/quick/stage.h"
#include "tests/support/testmain.h"

#include <QPointingDevice>
#include <QScreen>
#include <QSignalSpy>
#include <QWheelEvent>

using namespace ferrin;

namespace {

constexpr auto lines = R"(
    GrowingScene {
        content: FocusScope {
            id: area
            implicitWidth: 300; implicitHeight: 200
            Item { objectName: "first"; width: 50; height: 50; activeFocusOnTab: true }
            Item { objectName: "last"; x: 200; y: 150; width: 50; height: 50; activeFocusOnTab: true }
            Pressable { objectName: "button"; x: 60; y: 60; width: 100; height: 40; spokenName: "" }
            Overlay { objectName: "overlay"; anchor: area; title: "" }
        }
    })";

/// Where the last letter of a text begins, which is enlarged twice.
int topOfLastLetter(const QByteArray &text)
{
    test::SceneStage stage { QByteArrayList() };
    stage.appearance.setTextScale(2);
    QQuickItem *const root
        = stage.show("GrowingScene { content: Item { implicitWidth: 60; implicitHeight: 30;"
                     "Text { anchors.right: parent.right; y: 5; font: Fonts.regular13;"
                     "color: \"black\"; text: \""
                     + text + "\" } } }");
    stage.window.resize(120, 60);
    root->setSize({ 120, 60 });
    const QImage picture = stage.picture();
    // The letter is at least so wide, with nothing at its right.
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 106; x < 118; ++x) {
            if (qGray(picture.pixel(x, y)) < 200)
                return y;
        }
    }
    return -1;
}

class Scene
{
public:
    Scene() { root = stage.show(lines); }

    [[nodiscard]] QQuickItem *part(const char *name) const
    {
        return root->findChild<QQuickItem *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QRectF placeOf(const char *name) const
    {
        return part(name)->mapRectToScene(part(name)->boundingRect());
    }
    /// Gives the window, and the scene with it, this size.
    void resize(const QSize &size)
    {
        stage.window.resize(size);
        root->setSize(size);
    }

    test::SceneStage stage { QByteArrayList() };
    QQuickItem *root = nullptr;
};

} // namespace

class GrowingSceneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOfTheSizeOfItsContentAtTheUsualSizeOfTexts()
    {
        const Scene scene;
        QCOMPARE(QSizeF(scene.root->implicitWidth(), scene.root->implicitHeight()),
                 QSizeF(300, 200));
        QCOMPARE(scene.placeOf("last"), QRectF(200, 150, 50, 50));
    }

    void growsLiveWithAllThatIsInIt()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(1.5);
        QCOMPARE(QSizeF(scene.root->implicitWidth(), scene.root->implicitHeight()),
                 QSizeF(450, 300));
        scene.resize({ 450, 300 });
        QCOMPARE(scene.placeOf("last"), QRectF(300, 225, 75, 75));
    }

    void losesNothingOfEnlargedLetters()
    {
        QVERIFY(topOfLastLetter("S") > 0);
        // Above the second one there is room for the first.
        QCOMPARE(topOfLastLetter("S"), topOfLastLetter("dS"));
    }

    void scrollsToWhatGetsTheFocusWhereTheWindowIsTooSmall()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 300, 200 });
        scene.part("first")->forceActiveFocus();
        QVERIFY(QRectF(0, 0, 300, 200).contains(scene.placeOf("first")));
        QVERIFY(!QRectF(0, 0, 300, 200).contains(scene.placeOf("last")));
        scene.part("last")->forceActiveFocus();
        QVERIFY(QRectF(0, 0, 300, 200).contains(scene.placeOf("last")));
    }

    void shrinksALittleRatherThanScrollSidewards()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 585, 300 });
        QCOMPARE(scene.placeOf("last").right(), 487.5);
        for (const QQuickItem *bar : test::visibleItemsOfType(scene.root, "ScrollBar"))
            QVERIFY(!bar->property("isHorizontal").toBool());
        // Not at the cost of much, and never below the usual size.
        scene.resize({ 500, 300 });
        QCOMPARE(scene.placeOf("first"), QRectF(0, 0, 100, 100));
        scene.stage.appearance.setTextScale(1);
        scene.resize({ 290, 200 });
        QCOMPARE(scene.placeOf("first"), QRectF(0, 0, 50, 50));
    }

    void scrollsAsFarAsItsBarIsDragged()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 300, 200 });
        const QPoint start = test::centreOf(scene.part("knob"));
        QTest::mousePress(&scene.stage.window, Qt::LeftButton, {}, start);
        QTest::mouseMove(&scene.stage.window, start + QPoint(0, 20));
        QTest::mouseMove(&scene.stage.window, start + QPoint(0, 40));
        // Half of the content is seen, and the knob has followed the pointer.
        QCOMPARE(scene.placeOf("first"), QRectF(0, -80, 100, 100));
        QCOMPARE(test::centreOf(scene.part("knob")), start + QPoint(0, 40));
        QTest::mouseMove(&scene.stage.window, { start.x(), 195 });
        QCOMPARE(scene.placeOf("first"), QRectF(0, -200, 100, 100));
        QTest::mouseRelease(&scene.stage.window, Qt::LeftButton, {}, { start.x(), 195 });
    }

    void scrollsByAFineWheelAsFarAsByACoarseOne_data()
    {
        QTest::addColumn<int>("turns");
        QTest::newRow("coarse") << 1;
        QTest::newRow("fine") << 8;
        QTest::newRow("finest") << 120;
    }
    void scrollsByAFineWheelAsFarAsByACoarseOne()
    {
        QFETCH(int, turns);
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 300, 200 });
        const QPointF at(100, 100);
        for (int i = 0; i < turns; ++i) {
            QWheelEvent turn(at, scene.stage.window.mapToGlobal(at), {}, QPoint(0, -120 / turns),
                             Qt::NoButton, {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&scene.stage.window, &turn);
        }
        // Three lines, enlarged.
        QTRY_COMPARE(qRound(scene.placeOf("first").top()), -144);
    }

    void isScrolledByAFingerThatPressesNothing()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 300, 200 });
        const QSignalSpy presses(scene.part("button"), SIGNAL(pressed()));
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        auto *const window = &scene.stage.window;
        const auto touch = [&] { return QTest::touchEvent(window, screen.get()); };
        touch().press(0, QPoint(150, 180));
        for (int y = 170; y >= 130; y -= 10) {
            QTest::qWait(10);
            touch().move(0, QPoint(150, y));
        }
        touch().release(0, QPoint(150, 130));
        QTRY_VERIFY(scene.placeOf("first").top() <= -30);
        QCOMPARE(presses.count(), 0);
    }

    void hasABarThatIsSeenInHighContrast()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 300, 200 });
        for (const bool isDark : { false, true }) {
            scene.stage.appearance.setAppearance(isDark ? Appearance::dark : Appearance::light);
            scene.stage.appearance.setHighContrast(true);
            QCOMPARE(scene.part("knob")->opacity(), 1.0);
            QVERIFY(contrast(scene.part("knob")->property("color").value<QColor>(),
                             isDark ? Qt::black : Qt::white)
                    >= 4.5);
        }
    }

    void turnsAPageAtAClickBesideTheKnob()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 300, 200 });
        QTest::mouseClick(&scene.stage.window, Qt::LeftButton, {}, { 290, 170 });
        QCOMPARE(scene.placeOf("first"), QRectF(0, -200, 100, 100));
        QTest::mouseClick(&scene.stage.window, Qt::LeftButton, {}, { 290, 20 });
        QCOMPARE(scene.placeOf("first"), QRectF(0, 0, 100, 100));
    }

    void hasItsOverlaysOverWhatIsSeen()
    {
        Scene scene;
        scene.stage.appearance.setTextScale(2);
        scene.resize({ 300, 200 });
        scene.part("last")->forceActiveFocus();
        QMetaObject::invokeMethod(scene.part("overlay"), "open");
        QCOMPARE(scene.placeOf("overlay"), QRectF(0, 0, 300, 200));
    }

    void isNoLargerThanTheScreen()
    {
        Scene scene;
        const QScreen &screen = *scene.stage.window.screen();
        QCOMPARE(windowSizeFor(*scene.root, screen), QSize(300, 200));
        scene.root->setProperty("implicitWidth", 100'000);
        scene.root->setProperty("implicitHeight", 100'000);
        const QSize most = windowSizeFor(*scene.root, screen);
        QCOMPARE(most.width(), screen.availableSize().width());
        QVERIFY(most.height() < screen.availableSize().height());
    }
};

FERRIN_TEST(QGuiApplication, GrowingSceneTest)
#include "test_growingscene.moc"
