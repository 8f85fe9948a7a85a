// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/framedwindow.h"

#include "base/logging.h"
#include "popover/popoverdesktop.h"
#include "quick/popoverframe.h"
#include "quick/quickengine.h"
#include "state/applicationappearance.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ferrin {

FramedWindow::FramedWindow(QuickEngine &engine)
    : m_desktop(engine.popovers())
    , m_isBlended(m_desktop.blends())
{
    setTitle(QGuiApplication::applicationDisplayName());
    setColor(Qt::transparent);
    QQmlComponent ground(&engine,
                         QUrl(QStringLiteral("qrc:/qt/qml/Ferrin/Quick/PopoverGround.qml")));
    m_frameItem.reset(qobject_cast<PopoverFrame *>(ground.create()));
    if (m_frameItem)
        m_frameItem->setParentItem(contentItem());
    else
        qCCritical(logger, "A popover has no frame: %s", qUtf8Printable(ground.errorString()));
    if (const ApplicationAppearance *const appearance = ApplicationAppearance::shared())
        m_textScale.setBinding([appearance] { return appearance->textScale(); });
    m_textScaleFollower = m_textScale.addNotifier([this] { Q_EMIT contentSizeChanged(); });
    connect(this, &QQuickWindow::frameSwapped, this, &FramedWindow::firstFrameShown,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

FramedWindow::~FramedWindow() = default;

void FramedWindow::setContent(std::unique_ptr<QQuickItem> content)
{
    m_content = std::move(content);
    m_content->setParentItem(contentItem());
    m_content->setTransformOrigin(QQuickItem::TopLeft);
    connect(m_content.get(), &QQuickItem::widthChanged, this, &FramedWindow::contentSizeChanged);
    connect(m_content.get(), &QQuickItem::heightChanged, this, &FramedWindow::contentSizeChanged);
}

QSize FramedWindow::contentSize() const
{
    if (!m_content)
        return {};
    const QSizeF size = m_content->size() * zoom();
    return { int(std::ceil(size.width())), int(std::ceil(size.height())) };
}

qreal FramedWindow::zoom() const
{
    if (!m_content || !screen() || m_content->size().isEmpty())
        return 1;
    const QSizeF room = screen()->availableSize() - 2 * QSize(explanationGap, explanationGap);
    const qreal fitting
        = std::min(room.width() / m_content->width(), room.height() / m_content->height());
    return std::max(1.0, std::min(m_textScale.value(), fitting));
}

QMargins FramedWindow::marginsFor(const PopoverSpot &spot, ArrowUse arrowUse) const
{
    const bool isAlone = !m_isBlended && arrowUse == ArrowUse::Without;
    const int wanted = isAlone ? 0 : PopoverFrame::shadowReach;
    const QRect &frame = spot.frame;
    const QRect &bounds = spot.bounds;
    return { std::clamp(frame.left() - bounds.left(), 0, wanted),
             std::clamp(frame.top() - bounds.top(), 0, wanted),
             std::clamp(bounds.right() - frame.right(), 0, wanted),
             std::clamp(bounds.bottom() - frame.bottom(), 0, wanted) };
}

void FramedWindow::place(const PopoverSpot &spot, ArrowUse arrowUse)
{
    const QMargins margins = marginsFor(spot, arrowUse);
    m_frameRect = spot.frame;
    const QRect whole = spot.frame.marginsAdded(margins);
    // Tiling Wayland compositors leave a window of one size alone.
    setMinimumSize(whole.size());
    setMaximumSize(whole.size());
    m_desktop.place(*this, whole);
    if (m_content) {
        m_content->setPosition(QPointF(margins.left(), margins.top()));
        m_content->setScale(zoom());
    }
    if (!m_frameItem)
        return;
    m_frameItem->setSize(whole.size());
    std::optional<PopoverFrame::Arrow> arrow;
    if (arrowUse == ArrowUse::With)
        arrow = { .side = spot.side, .along = qreal(spot.arrow) };
    m_frameItem->setFraming(margins, arrow, m_isBlended);
    create();
    m_desktop.setOutline(*this, m_frameItem->outline());
}

} // namespace ferrin
