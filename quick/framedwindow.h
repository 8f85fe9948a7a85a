// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/popoverplacement.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace ferrin {

class PopoverDesktop;
class PopoverFrame;
class QuickEngine;

/// A window that is a popover: a frame with round corners and a shadow around one item, which
/// decides the size. Its owner says where it stands. It never closes by itself.
class FramedWindow : public QQuickWindow
{
    Q_OBJECT

public:
    /// The engine outlives it.
    explicit FramedWindow(QuickEngine &engine);
    ~FramedWindow() override;

    [[nodiscard]] PopoverDesktop &desktop() const noexcept { return m_desktop; }

    /// Call once.
    void setContent(std::unique_ptr<QQuickItem> content);
    [[nodiscard]] QSize contentSize() const;

    enum class ArrowUse { Without, With };
    void place(const PopoverSpot &spot, ArrowUse arrowUse);

    /// The popover as it is seen, in the desktop's pixels.
    [[nodiscard]] const QRect &frame() const noexcept { return m_frameRect; }

Q_SIGNALS:
    void contentSizeChanged();
    /// Something of it is on the screen.
    void firstFrameShown();

private:
    [[nodiscard]] QMargins marginsFor(const PopoverSpot &spot, ArrowUse arrowUse) const;

    PopoverDesktop &m_desktop;
    std::unique_ptr<PopoverFrame> m_frameItem;
    std::unique_ptr<QQuickItem> m_content;
    QRect m_frameRect;
    bool m_isBlended = true;
};

} // namespace ferrin
