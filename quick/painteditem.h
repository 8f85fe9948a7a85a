// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QPainter;

namespace ferrin {

/// An item that its own code paints, straight onto the window: as sharp as the screen allows
/// however the scene around it is scaled, and without a picture of it in memory. For windows that
/// are painted by software, as all of this program's are.
class PaintedItem : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit PaintedItem(QQuickItem *parent = nullptr);

    /// Paints the item in its own logical coordinates. Called for every frame that touches the
    /// item, with a clip.
    virtual void paint(QPainter *painter) = 0;

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
};

} // namespace ferrin
