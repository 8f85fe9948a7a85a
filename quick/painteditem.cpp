// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/painteditem.h"

#include <QPainter>
#include <QPointer>
#include <QQuickWindow>
#include <QSGRenderNode>
#include <QSGRendererInterface>

namespace ferrin {

namespace {

class PaintNode final : public QSGRenderNode
{
public:
    explicit PaintNode(PaintedItem &item)
        : m_item(&item)
    {
    }

    void follow()
    {
        m_rect = m_item->boundingRect();
        markDirty(DirtyGeometry | DirtyMaterial);
    }

    [[nodiscard]] RenderingFlags flags() const override { return BoundedRectRendering; }
    [[nodiscard]] QRectF rect() const override { return m_rect; }

    void render(const RenderState *state) override
    {
        QPainter *const painter = m_item ? painterOf(*m_item->window()) : nullptr;
        if (!painter)
            return;
        // The region is in the window's coordinates.
        if (const QRegion *const clip = state->clipRegion(); clip && !clip->isEmpty())
            painter->setClipRegion(*clip);
        painter->setTransform(matrix()->toTransform());
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        m_item->paint(painter);
    }

private:
    static QPainter *painterOf(QQuickWindow &window)
    {
        return static_cast<QPainter *>(window.rendererInterface()->getResource(
            &window, QSGRendererInterface::PainterResource));
    }

    QPointer<PaintedItem> m_item;
    QRectF m_rect;
};

} // namespace

PaintedItem::PaintedItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void PaintedItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

QSGNode *PaintedItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *const own = node ? static_cast<PaintNode *>(node) : new PaintNode(*this);
    own->follow();
    return own;
}

} // namespace ferrin
