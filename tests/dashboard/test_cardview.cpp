// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QJSValue>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

/// What every card does, seen on those of the health section.
class CardViewTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithAllOfItsStateFalse();
    void isATileOfAHundredPixels();
    void hasItsTitleInTheTitleFont();
    void putsEveryTextOnTheSameLines();
    void hasNoButtonForAnUnknownValueAndTapsDoNothing();
    void opensOnlyThroughItsButton();
    void showsACrossWhileItsPopoverIsOpen();
    void closesAtASecondClickOnItsButton();
    void closesAtAClickOnTheCardAndDoesNotReopen();
    void closesAtAClickElsewhere();
    void opensAgainAfterTheClosingClick();
    void doesNotReopenHoweverLongTheClosingPressTakes();
    void opensOnePopoverAtATime();
    void closesAHalfOpenCardAMomentLater();
    void knowsWhetherThePointerIsOverIt();
    void opensAndClosesWithTheKeyboard();
    void reachesCardsAndButtonsWithTab();
    void movesBetweenCardsWithArrows();
    void tellsAScreenReaderOfItsButton();
    void hidesItsPartsFromAScreenReader();
    void shrinksLongTextsInsteadOfCuttingThem_data();
    void shrinksLongTextsInsteadOfCuttingThem();
    void drawsNoTextTooSmallToRead_data();
    void drawsNoTextTooSmallToRead();
    void keepsTitlesWholeInAWideFont();

private:
    [[nodiscard]] QQuickItem *cardOf(const char *type) { return card(m_stage->item.get(), type); }
    [[nodiscard]] QQuickItem *buttonOf(const char *type) { return moreInfoButton(cardOf(type)); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&m_stage->window, key, modifiers);
    }
    [[nodiscard]] QQuickItem *focused() { return m_stage->window.activeFocusItem(); }

    std::unique_ptr<Stage> m_stage;
};

namespace {

bool is(const QQuickItem *item, const char *flag)
{
    return item->property(flag).toBool();
}

} // namespace

void CardViewTest::init()
{
    m_stage = std::make_unique<Stage>();
    m_stage->show("HealthView {}");
    m_stage->data.setMaxCapacity(91);
    m_stage->data.setChargeCycles(312);
    m_stage->data.setDesignCycles(1000);
    m_stage->window.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&m_stage->window));
}

void CardViewTest::cleanup()
{
    m_stage.reset();
}

void CardViewTest::startsWithAllOfItsStateFalse()
{
    for (const char *flag : { "cardHovered", "showPopover", "isPopoverShown", "justTapped" })
        QVERIFY(!is(cardOf("CyclesView"), flag));
}

void CardViewTest::isATileOfAHundredPixels()
{
    const QQuickItem *const tile = cardOf("CyclesView");
    QCOMPARE(QSizeF(tile->width(), tile->height()), QSizeF(100, 100));
    const QQuickItem *const ground = tile->childItems().constFirst();
    QCOMPARE(ground->property("radius").toReal(), 10);
    QCOMPARE(ground->property("color").value<QColor>().name(), m_stage->colorNamed("cardColor"));
    QCOMPARE(ground->property("borderWidth").toReal(), 2);
    QCOMPARE(ground->property("borderColor").value<QColor>().name(),
             m_stage->colorNamed("greyIcon"));
}

void CardViewTest::hasItsTitleInTheTitleFont()
{
    const QQuickItem *const title
        = visibleItemsOfType(cardOf("CyclesView"), "QQuickText").constFirst();
    const auto font = title->property("font").value<QFont>();
    QCOMPARE(font.pixelSize(), 10);
    QCOMPARE(font.weight(), QFont::DemiBold);
    QCOMPARE(font.letterSpacing(), 0.5);
    QCOMPARE(title->property("topPadding").toReal(), 10);
    QCOMPARE(title->property("color").value<QColor>().name(),
             m_stage->colorNamed("cardTitleColor"));
}

void CardViewTest::putsEveryTextOnTheSameLines()
{
    m_stage->data.setHealth(BatteryHealth::normal);
    QList<qreal> titles;
    QList<qreal> values;
    for (const char *type :
         { "MaxCapacityView", "CyclesView", "HealthStatusView", "LifespanView" }) {
        QQuickItem *const tile = cardOf(type);
        const QList<QQuickItem *> texts = visibleItemsOfType(tile, "QQuickText");
        const auto baselineOf = [tile](const QQuickItem *text) {
            return text->mapToItem(tile, QPointF(0, text->baselineOffset())).y();
        };
        titles.append(baselineOf(texts[0]));
        values.append(baselineOf(texts[1]));
    }
    for (int i = 1; i < 4; ++i) {
        QCOMPARE(titles[i], titles[0]);
        QVERIFY2(qAbs(values[i] - values[0]) <= 1, qPrintable(QString::number(values[i])));
    }
}

void CardViewTest::hasNoButtonForAnUnknownValueAndTapsDoNothing()
{
    QVERIFY(!buttonOf("HealthStatusView"));
    m_stage->click(cardOf("HealthStatusView"));
    QTest::qWait(150);
    QVERIFY(!openPopover());
    QVERIFY(!is(cardOf("HealthStatusView"), "showPopover"));
}

void CardViewTest::opensOnlyThroughItsButton()
{
    m_stage->click(cardOf("CyclesView"));
    QTest::qWait(150);
    QVERIFY(!openPopover());
    m_stage->click(buttonOf("CyclesView"));
    QVERIFY(openPopover());
    QVERIFY(is(cardOf("CyclesView"), "showPopover"));
    QVERIFY(is(cardOf("CyclesView"), "isPopoverShown"));
}

void CardViewTest::showsACrossWhileItsPopoverIsOpen()
{
    QQuickItem *const button = buttonOf("CyclesView");
    const QQuickItem *const symbol = itemsOfType(button, "ferrin::Symbol").constFirst();
    QCOMPARE(QSizeF(button->width(), button->height()), QSizeF(15, 15));
    QCOMPARE(symbol->property("size").toReal(), 10);
    QCOMPARE(symbol->property("name").toString(), u"chevron.down"_s);
    m_stage->click(button);
    QCOMPARE(symbol->property("name").toString(), u"xmark"_s);
    m_stage->click(button);
    QCOMPARE(symbol->property("name").toString(), u"chevron.down"_s);
}

void CardViewTest::closesAtASecondClickOnItsButton()
{
    m_stage->click(buttonOf("CyclesView"));
    m_stage->click(buttonOf("CyclesView"));
    QVERIFY(!openPopover());
    QTest::qWait(150);
    QVERIFY(!openPopover());
    for (const char *flag : { "showPopover", "isPopoverShown", "justTapped" })
        QVERIFY(!is(cardOf("CyclesView"), flag));
}

void CardViewTest::closesAtAClickOnTheCardAndDoesNotReopen()
{
    m_stage->click(buttonOf("CyclesView"));
    m_stage->click(cardOf("CyclesView"));
    QVERIFY(!openPopover());
    QTest::qWait(150);
    QVERIFY(!openPopover());
    QVERIFY(!is(cardOf("CyclesView"), "justTapped"));
}

void CardViewTest::closesAtAClickElsewhere()
{
    m_stage->click(buttonOf("CyclesView"));
    QTest::mouseClick(&m_stage->window, Qt::LeftButton, {}, QPoint(105, 105));
    QVERIFY(!openPopover());
    QVERIFY(!is(cardOf("CyclesView"), "isPopoverShown"));
}

void CardViewTest::opensAgainAfterTheClosingClick()
{
    m_stage->click(buttonOf("CyclesView"));
    m_stage->click(buttonOf("CyclesView"));
    QTRY_VERIFY(!is(cardOf("CyclesView"), "justTapped"));
    m_stage->click(buttonOf("CyclesView"));
    QVERIFY(openPopover());
}

void CardViewTest::doesNotReopenHoweverLongTheClosingPressTakes()
{
    m_stage->click(buttonOf("CyclesView"));
    const QPoint at = centreOf(buttonOf("CyclesView"));
    QTest::mousePress(&m_stage->window, Qt::LeftButton, {}, at);
    QTest::qWait(250);
    QTest::mouseRelease(&m_stage->window, Qt::LeftButton, {}, at);
    QVERIFY(!openPopover());
}

void CardViewTest::opensOnePopoverAtATime()
{
    m_stage->click(buttonOf("CyclesView"));
    m_stage->click(buttonOf("MaxCapacityView"));
    QVERIFY(!is(cardOf("CyclesView"), "isPopoverShown"));
    QVERIFY(is(cardOf("MaxCapacityView"), "isPopoverShown"));
    int open = 0;
    const QWindowList windows = QGuiApplication::allWindows();
    for (const QWindow *window : windows)
        open += window->isVisible() && window->transientParent() ? 1 : 0;
    QCOMPARE(open, 1);
}

void CardViewTest::closesAHalfOpenCardAMomentLater()
{
    QQuickItem *const tile = cardOf("CyclesView");
    m_stage->click(buttonOf("CyclesView"));
    tile->setProperty("showPopover", false);
    QVERIFY(QMetaObject::invokeMethod(tile, "tap"));
    QVERIFY(is(tile, "isPopoverShown"));
    QTRY_VERIFY(!is(tile, "isPopoverShown"));
    QVERIFY(!openPopover());
}

void CardViewTest::knowsWhetherThePointerIsOverIt()
{
    QQuickItem *const tile = cardOf("CyclesView");
    const QQuickItem *const symbol
        = itemsOfType(buttonOf("CyclesView"), "ferrin::Symbol").constFirst();
    const auto color = [symbol] { return symbol->property("color").value<QColor>().name(); };
    QTest::mouseMove(&m_stage->window, QPoint(20, 20));
    QVERIFY(!is(tile, "cardHovered"));
    QCOMPARE(color(), m_stage->colorNamed("unknownColor"));
    QTest::mouseMove(&m_stage->window, centreOf(tile));
    QTRY_VERIFY(is(tile, "cardHovered"));
    QCOMPARE(color(), m_stage->colorNamed("cardTextColor"));
    QTest::mouseMove(&m_stage->window, QPoint(20, 20));
    QTRY_VERIFY(!is(tile, "cardHovered"));
}

void CardViewTest::opensAndClosesWithTheKeyboard()
{
    for (const Qt::Key pressed : { Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter }) {
        buttonOf("CyclesView")->forceActiveFocus(Qt::TabFocusReason);
        key(pressed);
        QVERIFY(openPopover());
        key(pressed);
        QVERIFY(!openPopover());
    }
    key(Qt::Key_Space);
    key(Qt::Key_Escape);
    QVERIFY(!openPopover());
    QVERIFY(!is(cardOf("CyclesView"), "showPopover"));
    key(Qt::Key_Space);
    QVERIFY(openPopover());
}

void CardViewTest::reachesCardsAndButtonsWithTab()
{
    cardOf("MaxCapacityView")->forceActiveFocus(Qt::TabFocusReason);
    QList<QQuickItem *> reached { focused() };
    for (int i = 0; i < 6; ++i) {
        key(Qt::Key_Tab);
        reached.append(focused());
    }
    QCOMPARE(reached,
             QList<QQuickItem *>({ cardOf("MaxCapacityView"), buttonOf("MaxCapacityView"),
                                   cardOf("CyclesView"), buttonOf("CyclesView"),
                                   cardOf("HealthStatusView"), cardOf("LifespanView"),
                                   buttonOf("LifespanView") }));
}

void CardViewTest::movesBetweenCardsWithArrows()
{
    buttonOf("MaxCapacityView")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    QCOMPARE(focused(), cardOf("CyclesView"));
    key(Qt::Key_Down);
    QCOMPARE(focused(), cardOf("LifespanView"));
    key(Qt::Key_Left);
    QCOMPARE(focused(), cardOf("HealthStatusView"));
    key(Qt::Key_Up);
    QCOMPARE(focused(), cardOf("MaxCapacityView"));
}

void CardViewTest::tellsAScreenReaderOfItsButton()
{
    QAccessibleInterface *const spoken
        = QAccessible::queryAccessibleInterface(buttonOf("MaxCapacityView"));
    QCOMPARE(spoken->role(), QAccessible::Button);
    QCOMPARE(spoken->text(QAccessible::Name), u"More about Max capacity"_s);
    QVERIFY(spoken->state().focusable);
    QVERIFY(spoken->state().checkable);
    QVERIFY(!spoken->state().checked);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(openPopover());
    QVERIFY(spoken->state().checked);
}

void CardViewTest::hidesItsPartsFromAScreenReader()
{
    m_stage->data.setHealth(BatteryHealth::service);
    const auto *const tile = QAccessible::queryAccessibleInterface(cardOf("MaxCapacityView"));
    QCOMPARE(tile->role(), QAccessible::StaticText);
    QCOMPARE(tile->childCount(), 1);
    QCOMPARE(tile->child(0)->role(), QAccessible::Button);
}

void CardViewTest::shrinksLongTextsInsteadOfCuttingThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << u"Discharging"_s;
    QTest::newRow("two words") << u"Service recommended"_s;
    QTest::newRow("an adapter") << u"140W USB-C Power Adapter"_s;
    QTest::newRow("a maker") << u"Chicony Power Technology"_s;
    QTest::newRow("one long word") << u"HUNTKEYELECTRICCOMPANY"_s;
}

void CardViewTest::shrinksLongTextsInsteadOfCuttingThem()
{
    QFETCH(QString, text);
    QQuickItem *const view = m_stage->show("GenericTextView { width: 100; height: 40; text: \""
                                           + text.toUtf8() + "\" }");
    QVERIFY(!view->property("truncated").toBool());
    const qreal width = view->property("contentWidth").toReal();
    const qreal height = view->property("contentHeight").toReal();
    QVERIFY2(width <= 90, qPrintable(QString::number(width)));
    QVERIFY2(height <= 30, qPrintable(QString::number(height)));
    QVERIFY2(height >= 10, qPrintable(QString::number(height)));
}

void CardViewTest::drawsNoTextTooSmallToRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a maker") << u"Shenzhen Huntkey Electric Company Limited of Guangdong"_s;
    QTest::newRow("one long word") << u"SHENZHENHUNTKEYELECTRICCOMPANYLIMITED"_s;
    QTest::newRow("a novel") << u"no end "_s.repeated(60);
}

void CardViewTest::drawsNoTextTooSmallToRead()
{
    QFETCH(QString, text);
    const QQuickItem *const view = m_stage->show(
        "GenericTextView { width: 100; height: 40; text: \"" + text.toUtf8() + "\" }");
    QVERIFY(view->property("truncated").toBool());
    QVERIFY(view->property("fontInfo").value<QJSValue>().property(u"pixelSize"_s).toInt() >= 9);
    QVERIFY(view->property("contentWidth").toReal() <= 90);
    QVERIFY(view->property("contentHeight").toReal() <= 30);
}

void CardViewTest::keepsTitlesWholeInAWideFont()
{
    for (const char *section : { "StatusView {}", "HealthView {}", "PowerAdapterView {}" }) {
        m_stage->data.setChargingStatus(BatteryChargingStatus::charged);
        m_stage->data.setTimeRemaining({ 3, 0 });
        const QList<QQuickItem *> cards = itemsOfType(m_stage->show(section), "CardView");
        for (QQuickItem *tile : cards) {
            const QQuickItem *const title = visibleItemsOfType(tile, "QQuickText").constFirst();
            const qreal width = title->property("contentWidth").toReal();
            QVERIFY2(width <= 90, qPrintable(title->property("text").toString()));
            QVERIFY(!title->property("truncated").toBool());
        }
    }
}

FERRIN_TEST(QGuiApplication, CardViewTest)
#include "test_cardview.moc"
