// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/panelpreview.h"

#include "menubar/textview.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQuickWindow>

#include <cmath>
#include <utility>

namespace ferrin {

namespace {

constexpr qreal sideMargin = 6;
constexpr qreal edgeMargin = 3;
constexpr qreal labelGap = 4;
constexpr qreal cornerRadius = 4;

} // namespace

PanelPreview::PanelPreview(QQuickItem *parent)
    : PaintedItem(parent)
{
}

void PanelPreview::setChoices(StateChoices *choices)
{
    if (m_choices == choices)
        return;
    if (m_choices)
        m_choices->disconnect(this);
    m_choices = choices;
    if (m_choices) {
        connect(m_choices, &StateChoices::previewChanged, this, &PanelPreview::refresh);
        connect(m_choices, &StateChoices::panelChanged, this, &PanelPreview::refresh);
    }
    refresh();
    Q_EMIT choicesChanged();
}

qreal PanelPreview::deviceScale() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1;
}

AnyView PanelPreview::label() const
{
    constexpr int labelPixelSize = 13;
    if (!m_panel->hasLabel)
        return {};
    // A panel that reads from right to left orders its numbers so, too.
    const QString text = labelFor(m_choices->preview());
    return TextView { .text = QGuiApplication::isRightToLeft() ? QChar(0x200f) + text : text,
                      .pixelSize = labelPixelSize,
                      .opacity = 1 };
}

void PanelPreview::refresh()
{
    const bool wasKnown = isKnown();
    m_panel = m_choices ? m_choices->panel() : std::nullopt;
    if (m_panel)
        m_panel->context.isCoarse = deviceScale() < finestCoarseScale;
    QSizeF size;
    if (m_panel) {
        const QImage image
            = paintForm(m_panel->form, m_choices->preview(), m_panel->height, 1, m_panel->context);
        const qreal labelWidth = label().idealSize(m_panel->context).width();
        size = QSizeF(image.width() + labelWidth + (labelWidth > 0 ? labelGap : 0), image.height())
            + QSizeF(2 * sideMargin, 2 * edgeMargin);
    }
    setImplicitSize(std::ceil(size.width()), std::ceil(size.height()));
    update();
    if (wasKnown != isKnown())
        Q_EMIT isKnownChanged();
}

void PanelPreview::paint(QPainter *painter)
{
    if (!m_panel)
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_panel->ground);
    painter->drawRoundedRect(boundingRect(), cornerRadius, cornerRadius);
    const qreal scale = painter->deviceTransform().m11();
    QImage image
        = paintForm(m_panel->form, m_choices->preview(), m_panel->height, scale, m_panel->context);
    image.setDevicePixelRatio(scale);
    const AnyView text = label();
    const QSizeF textSize = text.idealSize(m_panel->context);
    QRectF imagePlace(QPointF(sideMargin, edgeMargin), image.deviceIndependentSize());
    QRectF textPlace(QPointF(imagePlace.right() + labelGap, (height() - textSize.height()) / 2),
                     textSize);
    if (QGuiApplication::isRightToLeft()) {
        imagePlace.moveRight(width() - imagePlace.left());
        textPlace.moveRight(width() - textPlace.left());
    }
    painter->drawImage(imagePlace.topLeft(), image);
    text.paint(*painter, textPlace, m_panel->context);
}

} // namespace ferrin
