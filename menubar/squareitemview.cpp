// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/squareitemview.h"

#include "menubar/devicegrid.h"
#include "menubar/fittedtextview.h"
#include "menubar/glyphdrawing.h"
#include "menubar/squarebatteryview.h"
#include "menubar/stackviews.h"

#include <QPainter>

#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

bool isLyingBattery(const IconElement &icon)
{
    return !icon.fault && isGlyph(icon.icon) && !isUpright(icon.icon);
}

bool isUprightBattery(const IconElement &icon)
{
    return !icon.fault && isGlyph(icon.icon) && isUpright(icon.icon);
}

/// Places the elements in one cell. All lengths are device pixels.
class Cell
{
public:
    Cell(QPainter &painter, int side, const ViewContext &context)
        : m_painter(painter)
        , m_context(context)
        , m_side(side)
        , m_lower(0, side - part(8), side, part(8))
    {
    }

    void paint(const ItemContent &content)
    {
        if (content.icon && content.charge && content.time)
            paintThree(content);
        else if (content.icon && (content.charge || content.time))
            paintIconAndText(content);
        else if (content.charge && content.time)
            paintTwoTexts(*content.charge + u'%', *content.time);
        else if (content.icon)
            place(viewFor(*content.icon), QRect(0, 0, m_side, m_side));
        else
            place(FittedTextView { content.charge ? *content.charge + u'%'
                                                  : content.time.value_or(QString()) },
                  QRect(0, part(5), m_side, m_side - 2 * part(5)));
    }

private:
    /// Of a cell of 22 pixels, to whole ones.
    [[nodiscard]] int part(qreal of22) const { return int(std::lround(of22 * m_side / 22)); }

    void paintThree(const ItemContent &content)
    {
        const QRect upper(0, 0, m_side, part(12));
        if (isLyingBattery(*content.icon)) {
            place(SquareBatteryView { *content.icon, *content.charge, hasBolt(content.icon->icon) },
                  upper);
        } else if (isUprightBattery(*content.icon)) {
            placeUpright(*content.icon, *content.charge, QRect(0, 0, part(7), upper.height()));
        } else {
            const int icon = part(10);
            place(viewFor(*content.icon), QRect(0, 0, icon, upper.height()));
            place(FittedTextView { *content.charge },
                  QRect(icon + part(1), part(2), m_side - icon - part(1), part(8)));
        }
        place(FittedTextView { *content.time }, m_lower);
    }

    void paintIconAndText(const ItemContent &content)
    {
        // Three figures would be too small at its side.
        if (content.charge && content.charge->size() < 3 && isUprightBattery(*content.icon)) {
            placeUpright(*content.icon, *content.charge, QRect(0, part(3), part(8), part(16)));
            return;
        }
        const bool hasRoomInside = isLyingBattery(*content.icon) && !hasBolt(content.icon->icon);
        if (content.charge && hasRoomInside) {
            place(SquareBatteryView { *content.icon, *content.charge, false },
                  QRect(0, part(4), m_side, m_side - 2 * part(4)));
            return;
        }
        const QRect upper(0, 0, m_side, part(12));
        // Its bolt reaches beyond the battery: fitted in here, both would be half as large.
        if (isLyingBattery(*content.icon) && hasBolt(content.icon->icon))
            place(SquareBatteryView { *content.icon, {}, true }, upper);
        else
            place(viewFor(*content.icon), upper);
        place(FittedTextView { content.charge ? *content.charge + u'%' : *content.time }, m_lower);
    }

    /// The battery at that place and its charge at its right.
    void placeUpright(const IconElement &icon, const QString &charge, const QRect &battery)
    {
        place(SquareBatteryView { icon, {}, false }, battery);
        const int left = battery.right() + 1 + part(1);
        const int height = part(9);
        place(FittedTextView { charge },
              QRect(left, battery.center().y() + 1 - height / 2, m_side - left, height));
    }

    void paintTwoTexts(const QString &upper, const QString &lower)
    {
        const int height = part(8.5);
        place(FittedTextView { upper }, QRect(0, part(1), m_side, height));
        place(FittedTextView { lower }, QRect(0, m_side - part(1) - height, m_side, height));
    }

    /// In the middle of the rectangle, as large as it allows.
    void place(const AnyView &view, const QRectF &rect)
    {
        FittedView { .content = view, .size = rect.size() }.paint(m_painter, rect, m_context);
    }

    QPainter &m_painter;
    const ViewContext &m_context;
    int m_side;
    QRect m_lower;
};

} // namespace

void SquareItemView::paint(QPainter &painter, const QRectF &bounds,
                           const ViewContext &context) const
{
    const DeviceGrid grid(painter);
    const QPointF origin = grid.toDevice(grid.snapped(bounds.topLeft()));
    const int side = int(std::lround(bounds.height() * grid.scale()));
    const DevicePixels inDevicePixels(painter);
    painter.translate(origin);
    Cell(painter, side, context).paint(content);
}

} // namespace ferrin
