// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"
#include "state/icon.h"

#include <QString>

#include <optional>

namespace ferrin {

/// The stroke of a second-generation outline: 1.00, 1.25 or, lying, 1.50 logical pixels.
enum class VertBatt2BorderThickness { min, mid };
enum class HorzBatt2BorderThickness { min, mid, max };

/// The name of the outline's artwork.
[[nodiscard]] QString rawValue(VertBatt2BorderThickness thickness);
[[nodiscard]] QString rawValue(HorzBatt2BorderThickness thickness);

/// The battery glyphs: an outline and a fill whose length follows `percent`, 0 to 100. An absent
/// colour is the text colour.
struct VertBattery1View
{
    double percent = 0;
    std::optional<QColor> borderColor = {};
    std::optional<QColor> insideColor = {};

    bool operator==(const VertBattery1View &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct HorzBattery1View
{
    double percent = 0;
    std::optional<QColor> borderColor = {};
    std::optional<QColor> insideColor = {};

    bool operator==(const HorzBattery1View &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

/// The bolt stands in a gap of the battery.
struct HorzBattery1WithBoltView
{
    double percent = 0;

    bool operator==(const HorzBattery1WithBoltView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct VertBattery2View
{
    double percent = 0;
    BatteryStyle style = BatteryStyle::normal;
    VertBatt2BorderThickness border = VertBatt2BorderThickness::mid;
    std::optional<QColor> borderColor = {};
    std::optional<QColor> insideColor = {};

    bool operator==(const VertBattery2View &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct HorzBattery2View
{
    double percent = 0;
    BatteryStyle style = BatteryStyle::normal;
    HorzBatt2BorderThickness border = HorzBatt2BorderThickness::mid;
    std::optional<QColor> borderColor = {};
    std::optional<QColor> insideColor = {};

    bool operator==(const HorzBattery2View &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct HorzBattery2WithBoltView
{
    double percent = 0;
    BatteryStyle style = BatteryStyle::normal;

    bool operator==(const HorzBattery2WithBoltView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

/// Sizes the fill of HorzBattery2View and puts it inside the outline's left wall; a thicker outline
/// leaves it less height.
struct SizeForBorder
{
    double percent = 0;
    HorzBatt2BorderThickness border = HorzBatt2BorderThickness::mid;

    bool operator==(const SizeForBorder &) const = default;

    [[nodiscard]] AnyView applied(const std::optional<QColor> &color, qreal opacity) const;
};

} // namespace ferrin
