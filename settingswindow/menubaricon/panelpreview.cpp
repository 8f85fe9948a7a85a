// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/panelpreview.h"

#include "menubar/textview.h"

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
    return m_panel->hasLabel ? AnyView(TextView {
               .text = labelFor(m_choices->preview()), .pixelSize = labelPixelSize, .opacity = 1 })
                             : AnyView();
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
    painter->drawImage(QPointF(sideMargin, edgeMargin), image);
    const AnyView text = label();
    const QSizeF textSize = text.idealSize(m_panel->context);
    const qreal left = sideMargin + image.width() / scale + labelGap;
    text.paint(*painter, QRectF(QPointF(left, (height() - textSize.height()) / 2), textSize),
               m_panel->context);
}

} // namespace ferrin
