// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/popoverplacement.h"

#include <QProperty>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace ferrin {

class PopoverDesktop;
class PopoverFrame;
class QuickEngine;

/// The window of a popover: a frame with rounded corners and a shadow around one item, which
/// determines the size. The item is enlarged as the desktop enlarges texts, as far as the screen
/// has room. Its owner places it and closes it.
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
    /// As it is seen, enlarged.
    [[nodiscard]] QSize contentSize() const;

    enum class ArrowUse { Without, With };
    void place(const PopoverSpot &spot, ArrowUse arrowUse);

    /// The popover without its shadow, in the desktop's logical pixels.
    [[nodiscard]] const QRect &frame() const noexcept { return m_frameRect; }

Q_SIGNALS:
    void contentSizeChanged();
    /// The first frame is on the screen.
    void firstFrameShown();

private:
    /// How many times larger than it is made the content is shown; at least 1.
    [[nodiscard]] qreal zoom() const;
    [[nodiscard]] QMargins marginsFor(const PopoverSpot &spot, ArrowUse arrowUse) const;

    PopoverDesktop &m_desktop;
    std::unique_ptr<PopoverFrame> m_frameItem;
    std::unique_ptr<QQuickItem> m_content;
    QProperty<double> m_textScale { 1 };
    QPropertyNotifier m_textScaleFollower;
    QRect m_frameRect;
    bool m_isBlended = true;
};

} // namespace ferrin
