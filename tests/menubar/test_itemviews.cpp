// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "menubar/iconview.h"
#include "menubar/itemviews.h"
#include "menubar/stackviews.h"
#include "menubar/templateimageview.h"
#include "menubar/textview.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int barThickness = 22;
const AnyView icon = IconView { Icon::battery2H, 37, BatteryChargingStatus::discharging };

qreal widthOf(const QString &text, int pixelSize)
{
    return TextView { .text = text, .pixelSize = pixelSize }.idealSize(blackOnClear).width();
}

qreal idealWidth(const AnyView &view)
{
    return view.idealSize(blackOnClear).width();
}

/// The texts of a view from left to right and top to bottom, with their sizes.
QStringList textsOf(const AnyView &view)
{
    if (const auto *text = view.as<TextView>())
        return { u"%1@%2"_s.arg(text->text).arg(text->pixelSize) };
    QStringList texts;
    if (const auto *row = view.as<RowView>()) {
        for (const AnyView &child : row->children)
            texts += textsOf(child);
    } else if (const auto *column = view.as<ColumnView>()) {
        for (const AnyView &child : column->children)
            texts += textsOf(child);
    } else if (const auto *charge = view.as<MenuBarChargeView>()) {
        texts = textsOf(charge->body(blackOnClear));
    } else if (const auto *time = view.as<MenuBarTimeView>()) {
        texts = textsOf(time->body(blackOnClear));
    } else if (const auto *both = view.as<MenuBarChargeTimeView>()) {
        texts = textsOf(both->body(blackOnClear));
    }
    return texts;
}

} // namespace

class ItemViewsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePercentSignIsATextOfItsOwn()
    {
        const AnyView body = MenuBarChargeView { u"37"_s }.body(blackOnClear);
        QCOMPARE(textsOf(body), QStringList({ u"37@11"_s, u"%@11"_s }));
        QCOMPARE(idealWidth(body), widthOf(u"37"_s, 11) + 1 + widthOf(u"%"_s, 11));
    }

    void theTimeStandsAlone()
    {
        QCOMPARE(textsOf(MenuBarTimeView { u"4:29"_s }.body(blackOnClear)),
                 QStringList({ u"4:29@11"_s }));
    }

    void theIconStandsAlone() { QVERIFY(MenuBarIconView { icon }.body(blackOnClear) == icon); }

    void chargeStandsAboveTimeInTwoSmallLines()
    {
        const MenuBarChargeTimeView view { u"100"_s, u"4:29"_s };
        QCOMPARE(textsOf(view.body(blackOnClear)),
                 QStringList({ u"100@9"_s, u"%@9"_s, u"4:29@9"_s }));
        QCOMPARE(idealWidth(view), widthOf(u"100"_s, 9) + 1 + widthOf(u"%"_s, 9));
    }

    void textAndIconOverlapTheirSpacerByTwo()
    {
        const qreal spacer = SpacerView {}.idealLength;
        QCOMPARE(idealWidth(MenuBarChargeIconView { u"37"_s, icon }),
                 idealWidth(MenuBarChargeView { u"37"_s }) - 2 + spacer - 2 + idealWidth(icon));
        QCOMPARE(idealWidth(MenuBarTimeIconView { u"4:29"_s, icon }),
                 widthOf(u"4:29"_s, 11) - 2 + spacer - 2 + idealWidth(icon));
    }

    void twoLinesAndIconOverlapTheirSpacerByOne()
    {
        QCOMPARE(idealWidth(MenuBarChargeTimeIconView { u"37"_s, u"4:29"_s, icon }),
                 idealWidth(MenuBarChargeTimeView { u"37"_s, u"4:29"_s }) - 1
                     + SpacerView {}.idealLength - 1 + idealWidth(icon));
    }

    void theTextStandsLeftOfTheIcon()
    {
        for (const AnyView &view :
             { AnyView(MenuBarChargeIconView { u"37"_s, icon }),
               AnyView(MenuBarTimeIconView { u"4:29"_s, icon }),
               AnyView(MenuBarChargeTimeIconView { u"37"_s, u"4:29"_s, icon }) }) {
            const QImage image = painted(view, { idealWidth(view), barThickness });
            const QImage alone = painted(icon, { idealWidth(icon), barThickness });
            QCOMPARE(inkedRect(image).right(), image.width() - 1);
            QCOMPARE(inkedRect(image.copy(image.width() - alone.width() + 1, 0, alone.width(),
                                          barThickness))
                         .width(),
                     alone.width() - 1);
        }
    }

    void noTextTouchesTheIcon_data()
    {
        QTest::addColumn<AnyView>("view");
        QTest::newRow("charge") << AnyView(MenuBarChargeIconView { u"100"_s, icon });
        QTest::newRow("time") << AnyView(MenuBarTimeIconView { u"12:05"_s, icon });
        QTest::newRow("both") << AnyView(MenuBarChargeTimeIconView { u"100"_s, u"12:05"_s, icon });
    }

    void noTextTouchesTheIcon()
    {
        QFETCH(AnyView, view);
        const QImage image = painted(view, { std::ceil(idealWidth(view)), barThickness }, 2);
        const int iconLeft = image.width() - int(2 * idealWidth(icon));
        QCOMPARE(inkOfColumn(image, iconLeft - 3), 0.0);
        QCOMPARE(inkOfColumn(image, iconLeft - 4), 0.0);
    }

    void twoLinesStayInsideTheBar_data()
    {
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : { 1.0, 1.25, 1.5, 1.75, 2.0, 3.0 })
            QTest::addRow("%gx", scale) << scale;
    }

    void twoLinesStayInsideTheBar()
    {
        QFETCH(qreal, scale);
        const AnyView view = MenuBarChargeTimeView { u"??"_s, u"?:??"_s };
        QVERIFY(view.idealSize(blackOnClear).height() <= barThickness);
        const QImage image = painted(view, { 40, barThickness }, scale);
        const QRect ink = inkedRect(image);
        QVERIFY(ink.top() >= 1);
        QVERIFY(ink.bottom() <= image.height() - 2);
    }

    void twoLinesKeepApart()
    {
        const AnyView view = MenuBarChargeTimeView { u"88"_s, u"8:88"_s };
        const QImage image = painted(view, { 40, barThickness });
        QCOMPARE(inkOfRow(image, barThickness / 2), 0.0);
    }

    void theFaultImageCrossesTheBatteryOut()
    {
        const MenuBarBatteryFaultView fault { 50, BatteryChargingStatus::unknown };
        const AnyView battery = IconView { Icon::battery1V, 50, BatteryChargingStatus::unknown };
        QCOMPARE(AnyView(fault).idealSize(blackOnClear).height(), 16.5);
        const QImage crossed = painted(fault, { 22, 22 }, 2);
        const QImage plain = painted(battery, { 22, 22 }, 2);
        QVERIFY(inkedRect(crossed).contains(inkedRect(plain)));
        QVERIFY(inkedRect(crossed).width() > 2 * inkedRect(plain).width());
    }

    void theFaultImageIsTheBatteryAsItStandsBelowACross()
    {
        const MenuBarBatteryFaultView fault { 7, BatteryChargingStatus::discharging };
        const AnyView expected = OverlayView {
            .layers
            = { IconView { Icon::battery1V, 7, BatteryChargingStatus::discharging },
                TemplateImageView { .name = u"xmark"_s, .height = 16.5, .opacity = 0.875 } },
        };
        QVERIFY(fault.body(blackOnClear) == expected);
    }

    void theFaultImageFollowsTheCharge()
    {
        QVERIFY(painted(MenuBarBatteryFaultView { 20, BatteryChargingStatus::unknown }, 2)
                != painted(MenuBarBatteryFaultView { 90, BatteryChargingStatus::unknown }, 2));
    }
};

FERRIN_TEST(QGuiApplication, ItemViewsTest)
#include "test_itemviews.moc"
