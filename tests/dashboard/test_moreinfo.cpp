// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

QTextDocument *rendered(const QString &markdown)
{
    static QTextDocument document;
    document.setMarkdown(markdown);
    return &document;
}

/// What is bold in the toolkit's rendering.
QStringList boldSpansOf(const QString &markdown)
{
    QStringList spans;
    const QTextDocument *const document = rendered(markdown);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            if (part.fragment().charFormat().fontWeight() >= QFont::Bold)
                spans.append(part.fragment().text());
        }
    }
    return spans;
}

} // namespace

/// The explanatory popovers of the health section, each opened with its button.
class MoreInfoTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void explainsTheMaximumCapacity();
    void explainsTheCycles();
    void saysTheTotalAtExactlyTheDesignCycles();
    void explainsTooManyCyclesWithAnUnclosedMarker();
    void explainsTheCondition_data();
    void explainsTheCondition();
    void isEmptyForAnUnknownCondition();
    void explainsTheLifespan_data();
    void explainsTheLifespan();
    void rendersSpansBoldAndAnUnclosedMarkerAsTyped();
    void drawsAnUnclosedMarkerAsTyped();
    void standsWithPaddingAroundEachBlock();
    void growsInHeightToFit();
    void followsTheValueWhileOpen();
    void isReadAloudWithoutMarkers();

private:
    void setBattery(qint64 capacity, qint64 cycles, qint64 design);
    /// The content of the card's popover.
    [[nodiscard]] QQuickItem *opened(const char *type);
    /// Its symbol, its caption and its texts.
    [[nodiscard]] QStringList contentOf(const char *type);

    std::unique_ptr<Stage> m_stage;
};

void MoreInfoTest::init()
{
    m_stage = std::make_unique<Stage>();
    m_stage->show("HealthView {}");
    setBattery(91, 312, 1000);
    m_stage->data.setHealth(BatteryHealth::normal);
}

void MoreInfoTest::cleanup()
{
    m_stage.reset();
}

void MoreInfoTest::setBattery(qint64 capacity, qint64 cycles, qint64 design)
{
    m_stage->data.setMaxCapacity(capacity);
    m_stage->data.setChargeCycles(cycles);
    m_stage->data.setDesignCycles(design);
}

QQuickItem *MoreInfoTest::opened(const char *type)
{
    m_stage->click(moreInfoButton(card(m_stage->item.get(), type)));
    QQuickWindow *const popover = openPopover();
    return popover ? card(popover->contentItem(), "MoreInfoSummaryView") : nullptr;
}

QStringList MoreInfoTest::contentOf(const char *type)
{
    QQuickItem *const content = opened(type);
    if (!content)
        return {};
    return imagesOf(content) + QStringList { QString::number(content->width()) } + textsOf(content);
}

void MoreInfoTest::explainsTheMaximumCapacity()
{
    QCOMPARE(
        contentOf("MaxCapacityView"),
        QStringList(
            { u"bolt.circle 16 "_s + m_stage->colorNamed("greenIcon"), u"300"_s, u"YOUR BATTERY"_s,
              u"Your battery has a **91% maximum capacity**, meaning that it can retain 91% of charge compared to when it was new."_s,
              u"As lithium-ion batteries chemically age, the amount of charge they can hold diminishes, resulting in shorter amounts of time before a device needs to be recharged.\n\nThis can be referred to as the battery’s **maximum capacity** — the measure of battery capacity relative to when it was new."_s }));
}

void MoreInfoTest::explainsTheCycles()
{
    QCOMPARE(
        contentOf("CyclesView"),
        QStringList(
            { u"arrow.clockwise 16 "_s + m_stage->colorNamed("yellowIcon"), u"400"_s,
              u"YOUR BATTERY"_s,
              u"Your battery has a limited amount of 1000 charge cycles before their performance is expected to diminish. This value is known as **design cycles**.\n\nOnce the cycle count 1000 is reached, a replacement battery is recommended to maintain performance.\n\nYou can use your battery after it reaches 1000 cycle count, but you might notice a reduction in your battery life."_s,
              u"Your battery has gone through **312 charge cycles**, of a total amount of **1000 design cycles**."_s,
              u"When you use your laptop, its battery goes through **charge cycles**. A charge cycle happens when you use all of the battery’s power—but that doesn’t necessarily mean in a single charge.\n\nFor example, you could use half of your laptop's charge in one day, and then recharge it fully. If you did the same thing the next day, it would count as one charge cycle, not two. In this example, it might take several days to complete a cycle."_s }));
}

void MoreInfoTest::saysTheTotalAtExactlyTheDesignCycles()
{
    setBattery(91, 1000, 1000);
    QCOMPARE(
        contentOf("CyclesView").value(4),
        u"Your battery has gone through **1000 charge cycles**, of a total amount of **1000 design cycles**."_s);
}

void MoreInfoTest::explainsTooManyCyclesWithAnUnclosedMarker()
{
    setBattery(80, 1200, 1000);
    QCOMPARE(
        contentOf("CyclesView").value(4),
        u"Your battery has gone through **1200 charge cycles**, exceeding the **1000 design cycles."_s);
}

void MoreInfoTest::explainsTheCondition_data()
{
    QTest::addColumn<BatteryHealth>("health");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QByteArray>("color");
    QTest::addColumn<QString>("text");
    QTest::newRow("normal") << BatteryHealth::normal << u"checkmark.circle 16 "_s
                            << QByteArray("greenIcon")
                            << u"Your battery health is **normal** and it's working correctly."_s;
    QTest::newRow("service")
        << BatteryHealth::service << u"exclamationmark.triangle 16 "_s << QByteArray("redIcon")
        << u"**Service is recommended** for your battery. Contact Apple Inc. or an Apple Inc. Authorized Service Provider."_s;
}

void MoreInfoTest::explainsTheCondition()
{
    QFETCH(BatteryHealth, health);
    QFETCH(QString, symbol);
    QFETCH(QByteArray, color);
    QFETCH(QString, text);
    m_stage->data.setHealth(health);
    QCOMPARE(
        contentOf("HealthStatusView"),
        QStringList(
            { symbol + m_stage->colorNamed(color), u"300"_s, u"YOUR BATTERY"_s, text,
              u"You may see any of the following conditions:\n\n**Normal**: The battery is functioning normally.\n\n**Service recommended**: The battery is performing normally, but its ability to hold a charge is less than when it was new. You may want to consider replacing the battery."_s }));
}

void MoreInfoTest::isEmptyForAnUnknownCondition()
{
    QQuickItem *const view
        = m_stage->show("HealthStatusMoreInfoView { status: Battery.Health.Unknown }");
    QCOMPARE(view->property("text").toString(), QString());
    QCOMPARE(view->property("imageName").toString(), QString());
    QCOMPARE(view->property("imageColor").value<QColor>().name(), m_stage->colorNamed("redIcon"));
}

void MoreInfoTest::explainsTheLifespan_data()
{
    QTest::addColumn<QList<qint64>>("battery");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QByteArray>("color");
    QTest::addColumn<QString>("text");
    const QString check = u"checkmark.circle 16 "_s;
    const QString warning = u"exclamationmark.triangle 16 "_s;
    QTest::newRow("good")
        << QList<qint64> { 91, 312, 1000 } << check << QByteArray("greenIcon")
        << u"As your maximum capacity is still 91% and you have done less than 1000 charge cycles, the lifespan of your battery is **good**."_s;
    QTest::newRow("reduced by capacity")
        << QList<qint64> { 79, 500, 1000 } << warning << QByteArray("redIcon")
        << u"As you have done less than 1000 charge cycles but your maximum capacity is 79% (less than 80%), the lifespan of your battery is **reduced**. You may want to consider replacing the battery."_s;
    QTest::newRow("reduced by cycles")
        << QList<qint64> { 80, 1200, 1000 } << check << QByteArray("greenIcon")
        << u"As your maximum capacity is still 80% and you have done more than 1000 charge cycles, the lifespan of your battery is still **good**."_s;
    QTest::newRow("reduced by both")
        << QList<qint64> { 70, 1200, 1000 } << warning << QByteArray("redIcon")
        << u"As your maximum capacity is 70% (less than 80%) and you have done more than 1000 charge cycles, the lifespan of your battery is reduced. You may want to consider replacing the battery."_s;
    QTest::newRow("exactly the design cycles")
        << QList<qint64> { 70, 1000, 1000 } << check << QByteArray("greenIcon")
        << u"As your maximum capacity is still 70% and you have done less than 1000 charge cycles, the lifespan of your battery is **good**."_s;
}

void MoreInfoTest::explainsTheLifespan()
{
    QFETCH(QList<qint64>, battery);
    QFETCH(QString, symbol);
    QFETCH(QByteArray, color);
    QFETCH(QString, text);
    setBattery(battery[0], battery[1], battery[2]);
    QCOMPARE(
        contentOf("LifespanView"),
        QStringList(
            { symbol + m_stage->colorNamed(color), u"400"_s, u"YOUR BATTERY"_s, text,
              u"All rechargeable batteries are consumables and have a limited lifespan. Knowing how many charge cycles your battery has and how many are left can help you determine when a battery replacement is required.\n\nYour battery is designed to retain up to 80% of its original charge capacity and up to 1000 charge cycles.\n\nYou may see any of the following conditions:\n\n**Good**: Your battery maximum capacity is equal or above 80%.\n        \n**Reduced**: Your battery maximum capacity is below 80%."_s }));
}

void MoreInfoTest::rendersSpansBoldAndAnUnclosedMarkerAsTyped()
{
    setBattery(80, 1200, 1000);
    const QList<QQuickItem *> texts = visibleItemsOfType(opened("CyclesView"), "MoreInfoText");
    QCOMPARE(texts.size(), 3);
    for (const QQuickItem *text : texts)
        QCOMPARE(text->property("textFormat").toInt(), int(Qt::MarkdownText));
    const auto bold
        = [&texts](int i) { return boldSpansOf(texts[i]->property("text").toString()); };
    QCOMPARE(bold(0), QStringList { u"design cycles"_s });
    QCOMPARE(bold(1), QStringList { u"1200 charge cycles"_s });
    QCOMPARE(bold(2), QStringList { u"charge cycles"_s });
    QCOMPARE(
        rendered(texts[1]->property("text").toString())->toPlainText(),
        u"Your battery has gone through 1200 charge cycles, exceeding the **1000 design cycles."_s);
}

void MoreInfoTest::drawsAnUnclosedMarkerAsTyped()
{
    const auto drawn = [this](const QByteArray &text, const QByteArray &more) {
        m_stage->show("MoreInfoText { width: 300; text: \"" + text + "\"; " + more + " }");
        return m_stage->picture();
    };
    const QByteArray unclosed = "exceeding the **1000 design cycles.";
    const QImage asMarkdown = drawn(unclosed, "");
    QCOMPARE(asMarkdown, drawn(unclosed, "textFormat: Text.PlainText"));
    QVERIFY(asMarkdown != drawn("exceeding the 1000 design cycles.", ""));
    QVERIFY(drawn("**1000**", "") != drawn("**1000**", "textFormat: Text.PlainText"));
    QVERIFY(drawn("**1000**", "") != drawn("1000", ""));
}

void MoreInfoTest::standsWithPaddingAroundEachBlock()
{
    QQuickItem *const content = opened("MaxCapacityView");
    const QList<QQuickItem *> texts = visibleItemsOfType(content, "MoreInfoText");
    for (const QQuickItem *text : texts) {
        QCOMPARE(text->property("padding").toReal(), 10);
        QCOMPARE(text->width(), 300);
    }
    const QQuickItem *const divider = visibleItemsOfType(content, "QQuickRectangle").constFirst();
    QCOMPARE(divider->width(), 280);
    QCOMPARE(divider->mapToItem(content, {}), QPointF(10, 36 + 10));
    QCOMPARE(texts.constFirst()->y(), 36 + 10 + 1 + 10);
    const QQuickItem *const symbol = visibleItemsOfType(content, "ferrin::Symbol").constFirst();
    QCOMPARE(symbol->height(), 36);
    QCOMPARE(symbol->width(), qMax(symbol->implicitWidth(), 16.0) + 20);
}

void MoreInfoTest::growsInHeightToFit()
{
    for (const char *type : { "MaxCapacityView", "CyclesView", "LifespanView" }) {
        QQuickItem *const content = opened(type);
        const QQuickItem *const last = visibleItemsOfType(content, "MoreInfoText").constLast();
        QCOMPARE(last->y() + last->height(), content->height());
        QVERIFY(last->height() > 60);
        QVERIFY(content->window()->height() >= content->height());
    }
}

void MoreInfoTest::followsTheValueWhileOpen()
{
    QQuickItem *const content = opened("MaxCapacityView");
    m_stage->data.setMaxCapacity(90);
    QVERIFY(textsOf(content).at(1).startsWith(u"Your battery has a **90% maximum capacity**"_s));
    m_stage->data.setMaxCapacity({});
    QVERIFY(!openPopover());
}

void MoreInfoTest::isReadAloudWithoutMarkers()
{
    setBattery(80, 1200, 1000);
    const QList<QQuickItem *> texts = visibleItemsOfType(opened("CyclesView"), "MoreInfoText");
    QVERIFY(spokenNameOf(texts[0]).contains(u" known as design cycles."));
    // The lone one is read as it is shown.
    QCOMPARE(
        spokenNameOf(texts[1]),
        u"Your battery has gone through 1200 charge cycles, exceeding the **1000 design cycles."_s);
    for (QQuickItem *text : texts) {
        const QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(text);
        QCOMPARE(spoken->role(), QAccessible::StaticText);
        QVERIFY(!spoken->state().invisible);
    }
}

FERRIN_TEST(QGuiApplication, MoreInfoTest)
#include "test_moreinfo.moc"
