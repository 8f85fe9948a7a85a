// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/squareitemview.h"

#include "menubar/devicegrid.h"
#include "menubar/fillview.h"
#include "menubar/textview.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

/// Paints the parts of one cell, in device pixels.
class Cell
{
public:
    Cell(QPainter &painter, int side, const ItemContent &content, const ViewContext &context)
        : m_painter(painter)
        , m_side(side)
        , m_content(content)
        , m_context(context)
    {
    }

    void paint()
    {
        const int elements = int(m_content.icon.has_value()) + int(m_content.charge.has_value())
            + int(m_content.time.has_value());
        if (holdsBattery() && m_content.charge)
            paintBatteryWithCharge();
        else if (elements == 3)
            paintThree();
        else
            paintStack();
    }

private:
    /// Of a cell of 22 pixels, to whole ones.
    [[nodiscard]] int part(qreal of22) const { return int(std::lround(of22 * m_side / 22)); }

    [[nodiscard]] bool holdsBattery() const
    {
        return m_content.icon && !m_content.icon->fault && isGlyph(m_content.icon->icon);
    }

    void paintBatteryWithCharge()
    {
        const bool alone = !m_content.time;
        const int bodyHeight = alone ? part(14) : part(12);
        const QRect battery(0, alone ? (m_side - bodyHeight) / 2 : 0, m_side, bodyHeight);
        paintBattery(battery);
        const int inset = part(2);
        const int cap = part(1);
        paintText(*m_content.charge, battery.adjusted(inset, inset, -inset - cap, -inset),
                  QFont::Bold);
        if (m_content.time)
            paintText(*m_content.time, QRect(0, m_side - part(7.5), m_side, part(7.5)),
                      QFont::DemiBold);
    }

    void paintBattery(const QRectF &rect)
    {
        const int stroke = std::max(1, part(1));
        const qreal cap = std::max(1, part(1.5));
        const QRectF body = rect.adjusted(0, 0, -cap, 0);
        const qreal radius = part(2.5);
        m_painter.setRenderHint(QPainter::Antialiasing);

        QPainterPath outline = smoothlyRoundedRect(body, radius);
        outline -= smoothlyRoundedRect(body.adjusted(stroke, stroke, -stroke, -stroke),
                                       radius - stroke);
        m_painter.fillPath(outline, withOpacity(m_context.text, 0.6));
        const QRectF terminal(body.right(), body.center().y() - body.height() / 6, cap,
                              body.height() / 3);
        m_painter.fillRect(terminal, withOpacity(m_context.text, 0.6));

        const IconElement &icon = *m_content.icon;
        QRectF fill = body.adjusted(stroke, stroke, -stroke, -stroke);
        m_painter.save();
        m_painter.setClipRect(QRectF(
            fill.left(), fill.top(),
            std::round(fill.width() * std::clamp(icon.charge, 0.0, 100.0) / 100), fill.height()));
        const bool low = icon.status == BatteryChargingStatus::discharging && icon.charge <= 10;
        m_painter.fillPath(smoothlyRoundedRect(fill, radius - stroke),
                           low ? withOpacity(m_context.red, 0.875)
                               : withOpacity(m_context.text, 0.35));
        m_painter.restore();
    }

    void paintThree()
    {
        const int top = part(12);
        paintIcon(QRect(0, 0, part(9), top));
        paintText(*m_content.charge, QRect(part(9.5), 0, m_side - part(9.5), top), QFont::Bold);
        paintText(*m_content.time, QRect(0, m_side - part(8), m_side, part(8)), QFont::DemiBold);
    }

    void paintStack()
    {
        std::vector<QString> texts;
        if (m_content.charge)
            texts.push_back(*m_content.charge + QLatin1Char('%'));
        if (m_content.time)
            texts.push_back(*m_content.time);
        int bottom = m_side;
        if (m_content.icon) {
            paintIcon(QRect(0, 0, m_side, texts.empty() ? m_side : part(12.5)));
            if (!texts.empty())
                paintText(texts.front(), QRect(0, m_side - part(8), m_side, part(8)),
                          QFont::DemiBold);
            return;
        }
        const int line = texts.size() == 1 ? m_side : part(9);
        for (auto text = texts.rbegin(); text != texts.rend(); ++text) {
            paintText(*text, QRect(0, bottom - line, m_side, line), QFont::DemiBold);
            bottom = line;
        }
    }

    void paintIcon(const QRectF &rect)
    {
        const AnyView view = viewFor(*m_content.icon);
        const QSizeF ideal = view.idealSize(m_context);
        const qreal zoom = std::min(rect.width() / ideal.width(), rect.height() / ideal.height());
        m_painter.save();
        m_painter.translate(rect.topLeft());
        m_painter.scale(zoom, zoom);
        view.paint(m_painter, QRectF(QPointF(), rect.size() / zoom), m_context);
        m_painter.restore();
    }

    void paintText(const QString &text, const QRectF &rect, QFont::Weight weight)
    {
        TextView view {
            .text = text, .pixelSize = int(rect.height() * 1.45), .opacity = 1, .weight = weight
        };
        const qreal width = view.idealSize(m_context).width();
        if (width > rect.width())
            view.widthPercent = std::max(1, int(100 * rect.width() / width));
        view.paint(m_painter, rect, m_context);
    }

    static QColor withOpacity(QColor colour, qreal opacity)
    {
        colour.setAlphaF(float(colour.alphaF() * opacity));
        return colour;
    }

    QPainter &m_painter;
    int m_side;
    const ItemContent &m_content;
    const ViewContext &m_context;
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
    Cell(painter, side, content, context).paint();
}

} // namespace ferrin
