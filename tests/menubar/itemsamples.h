// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemform.h"

#include <QMetaType>
#include <QTest>

#include <optional>
#include <vector>

namespace ferrin::test {

using namespace Qt::StringLiterals;
using enum BatteryChargingStatus;

/// What the item may show: every mix of its elements, with the shortest and the longest texts.
inline ItemContent contentOf(std::optional<Icon> icon, std::optional<QString> charge,
                             std::optional<QString> time,
                             BatteryChargingStatus status = BatteryChargingStatus::discharging,
                             double level = 37)
{
    ItemContent content { .status = status, .charge = charge, .time = time };
    if (icon)
        content.icon = IconElement { .icon = *icon, .charge = level, .status = status };
    return content;
}

struct Sample
{
    const char *name;
    ItemContent content;
};

inline const std::vector<Sample> samples {
    { "all", contentOf(Icon::battery2H, u"37"_s, u"4:29"_s) },
    { "all, longest", contentOf(Icon::battery2HBlack, u"100"_s, u"12:05"_s) },
    { "all, unknown", contentOf(Icon::battery1V, u"??"_s, u"?:??"_s) },
    { "all, bolt", contentOf(Icon::battery2HWithBolt, u"78"_s, u"0:52"_s, charging) },
    { "all, bolt, longest", contentOf(Icon::battery1HWithBolt, u"100"_s, u"12:05"_s, charging) },
    { "all, symbol", contentOf(Icon::arrowUpCircle, u"100"_s, u"12:05"_s, charging) },
    { "icon and charge", contentOf(Icon::battery2V, u"100"_s, {}) },
    { "bolt and charge", contentOf(Icon::battery2HBlackWithBolt, u"100"_s, {}, charged) },
    { "symbol and charge", contentOf(Icon::poweroutletTypeC, u"100"_s, {}, charged) },
    { "icon and time", contentOf(Icon::battery2H, {}, u"12:05"_s) },
    { "charge and time", contentOf({}, u"100"_s, u"12:05"_s) },
    { "charge", contentOf({}, u"100"_s, {}) },
    { "time", contentOf({}, {}, u"12:05"_s) },
    { "icon", contentOf(Icon::battery2V, {}, {}) },
    { "symbol", contentOf(Icon::bolt, {}, {}) },
};

struct Size
{
    ItemForm form;
    int height;
    qreal scale;
};

inline const Size sizes[] = {
    { ItemForm::Wide, 20, 1 },    { ItemForm::Wide, 22, 1 },    { ItemForm::Wide, 30, 1 },
    { ItemForm::Wide, 22, 2 },    { ItemForm::Wide, 24, 1.5 },  { ItemForm::Wide, 22, 3 },
    { ItemForm::OneLine, 16, 1 }, { ItemForm::OneLine, 24, 1 }, { ItemForm::OneLine, 32, 1 },
    { ItemForm::OneLine, 48, 1 }, { ItemForm::OneLine, 16, 2 }, { ItemForm::Square, 16, 1 },
    { ItemForm::Square, 19, 1 },  { ItemForm::Square, 22, 1 },  { ItemForm::Square, 24, 1 },
    { ItemForm::Square, 32, 1 },  { ItemForm::Square, 48, 1 },  { ItemForm::Square, 22, 1.5 },
    { ItemForm::Square, 22, 2 },  { ItemForm::Square, 22, 3 },  { ItemForm::Glyph, 16, 1 },
    { ItemForm::Glyph, 22, 2 },
};

} // namespace ferrin::test

Q_DECLARE_METATYPE(ferrin::test::Size)

namespace ferrin::test {

/// The columns "size" and "content" of a test's data.
inline void addEveryFormOfEverySample()
{
    QTest::addColumn<Size>("size");
    QTest::addColumn<ItemContent>("content");
    for (const Size &size : sizes) {
        for (const Sample &sample : samples)
            QTest::addRow("form %d, %d at %g: %s", int(size.form), size.height, size.scale,
                          sample.name)
                << size << sample.content;
    }
}

} // namespace ferrin::test
