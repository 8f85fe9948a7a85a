// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

#include <QMarginsF>

#include <vector>

namespace ferrin {

/// Room that a row gives away: as long as the toolkit's usual distance where there is space, and
/// nothing where there is none.
struct SpacerView
{
    /// Logical pixels.
    qreal idealLength = 8;

    bool operator==(const SpacerView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &) const { return { idealLength, 0 }; }
    void paint(QPainter &, const QRectF &, const ViewContext &) const { }
};

/// Views side by side, each at its ideal size and centred vertically, the first of them where the
/// application's texts begin. Spacers take what the bounds leave; without one the row stands in the
/// middle.
struct RowView
{
    /// Between neighbours, spacers included; negative makes them overlap.
    qreal spacing = 0;
    std::vector<AnyView> children;
    /// The first is leftmost in every application: parts of one text, such as "37" and "%".
    bool keepsOrder = false;

    bool operator==(const RowView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

/// Views one below the other, each at its ideal size and centred horizontally.
struct ColumnView
{
    qreal spacing = 2;
    std::vector<AnyView> children;

    bool operator==(const ColumnView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

/// Where the layers of an overlay meet.
enum class OverlayAlignment { Centre, Bottom, Leading };

/// Views on top of each other, the first undermost, as large as the largest. The whole stands on
/// device pixels, so that its layers stay in register wherever it is put.
struct OverlayView
{
    OverlayAlignment alignment = OverlayAlignment::Centre;
    std::vector<AnyView> layers;

    bool operator==(const OverlayView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

/// A view with room around it. Negative margins let it reach beyond the place that it takes up.
struct PaddedView
{
    AnyView content;
    QMarginsF margins;

    bool operator==(const PaddedView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

/// A view shrunk or enlarged as a whole, as large as its bounds allow and in the middle of them.
/// One without a size of its own gets the bounds as they are.
struct FittedView
{
    AnyView content;
    QSizeF size;

    bool operator==(const FittedView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &) const { return size; }
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

/// A view drawn beside the place that it takes up.
struct OffsetView
{
    AnyView content;
    QPointF offset;

    bool operator==(const OffsetView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

/// A view with the shape of another, centred on it, cut out: what lies below shows through.
struct CutOutView
{
    AnyView content;
    AnyView mask;

    bool operator==(const CutOutView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

} // namespace ferrin
