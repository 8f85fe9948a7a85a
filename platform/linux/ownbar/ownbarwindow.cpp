// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownbar/ownbarwindow.h"

#include "platform/linux/x11/x11window.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleHints>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ferrin {

namespace {

// The length that was stored may differ from the content's width by this much.
constexpr qreal lengthTolerance = 10;
constexpr int sideMargin = 9;

} // namespace

OwnBarWindow::OwnBarWindow()
    : m_accessible(*this, QAccessible::ToolBar, [this] {
        return std::vector { AccessiblePart {
            .role = QAccessible::Button, .name = m_words, .bounds = cell(), .press = [this] {
                Q_EMIT clicked();
            } } };
    })
{
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
             | Qt::WindowDoesNotAcceptFocus);
    setTitle(QGuiApplication::applicationDisplayName());
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &OwnBarWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &OwnBarWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &OwnBarWindow::followScreen);
    create();
    makeDock(*this);
    followScreen();
}

void OwnBarWindow::setContent(const ItemContent &content)
{
    const QString words = sentenceFor(content);
    if (std::exchange(m_words, words) != words)
        m_accessible.nameChanged(0);
    const AnyView view = viewFor(content);
    if (std::exchange(m_view, view) == view)
        return;
    place();
    update();
}

void OwnBarWindow::setLook(const OwnWindowLook &look, const ViewContext &context)
{
    m_look = look;
    m_context = context;
    place();
    update();
}

void OwnBarWindow::setContentLength(qreal length)
{
    m_length = length;
    place();
}

void OwnBarWindow::setPressed(bool pressed)
{
    if (std::exchange(m_isPressed, pressed) != pressed)
        update();
}

void OwnBarWindow::setHovered(bool hovered)
{
    if (std::exchange(m_isHovered, hovered) != hovered)
        update();
}

void OwnBarWindow::setPlace(const BarPlace &place)
{
    m_place = place;
    followScreen();
}

QScreen *OwnBarWindow::chosenScreen() const
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto chosen = std::find_if(screens.begin(), screens.end(), [this](const QScreen *screen) {
        return screen->name() == m_place.screen;
    });
    return chosen == screens.end() ? QGuiApplication::primaryScreen() : *chosen;
}

void OwnBarWindow::followScreen()
{
    const QScreen *const before = m_followed;
    if (m_followed)
        m_followed->disconnect(this);
    m_followed = chosenScreen();
    if (!m_followed)
        return;
    connect(m_followed, &QScreen::availableGeometryChanged, this, &OwnBarWindow::place);
    place();
    // Of a screen that has gone Qt may have taken it away already.
    if (m_followed != before || m_followed != screen())
        Q_EMIT screenChosen();
}

void OwnBarWindow::goToScreen()
{
    if (m_followed)
        setScreen(m_followed);
    place();
}

QSize OwnBarWindow::idealSize() const
{
    const qreal ideal = m_view.idealSize(m_context).width();
    const qreal width = std::abs(m_length - ideal) <= lengthTolerance ? m_length : ideal;
    return { int(std::ceil(width * m_look.textScale)) + 2 * m_look.scaled(sideMargin),
             m_look.scaled(contentHeight) + 2 };
}

QRect OwnBarWindow::cell() const
{
    // i3 makes a dock as wide as the screen.
    QRect cell(QPoint(), size());
    cell.setLeft(std::max(0, cell.width() - idealSize().width()));
    return cell;
}

void OwnBarWindow::place()
{
    if (!m_followed)
        return;
    const QSize size = idealSize();
    // Tiling Wayland compositors leave a window of one size alone.
    setMinimumSize(size);
    setMaximumSize(size);
    const QRect frame = frameAt(m_place, size, m_followed->availableGeometry());
    setGeometry(m_isDragged ? QRect(position(), size) : frame);
}

QColor OwnBarWindow::groundColor() const
{
    const bool isLit = m_isPressed || m_isHovered;
    if (m_look.isHighContrast && !isLit)
        return colorsFor(m_look).ground;
    if (m_look.isDark)
        return QColor::fromRgb(isLit ? 0xff48484c : 0xff2b2b2e);
    return QColor::fromRgb(isLit ? 0xffdcdce0 : 0xfff4f4f6);
}

void OwnBarWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF all(QPointF(0, 0), QSizeF(size()));
    const auto border = QColor::fromRgb(m_look.isDark ? 0xff56565a : 0xffb8b8be);
    painter.fillRect(all, m_look.isHighContrast ? colorsFor(m_look).border : border);
    painter.fillRect(all.adjusted(1, 1, -1, -1), groundColor());

    const QSizeF content = m_view.idealSize(m_context);
    const QSizeF shown = content * m_look.textScale;
    const QPointF corner = QRectF(cell()).center() - QPointF(shown.width(), shown.height()) / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(std::round(corner.x()), std::round(corner.y()));
    painter.scale(m_look.textScale, m_look.textScale);
    m_view.paint(painter, QRectF(QPointF(), content), m_context);
}

void OwnBarWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        Q_EMIT menuRequested();
    else if (event->button() == Qt::LeftButton)
        m_pressedAt = event->position().toPoint();
}

void OwnBarWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressedAt)
        return;
    const QPoint moved = event->position().toPoint() - *m_pressedAt;
    if (!m_isDragged
        && moved.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return;
    m_isDragged = true;
    setCursor(Qt::ClosedHandCursor);
    if (m_isFollowing)
        setPosition((event->globalPosition() - QPointF(*m_pressedAt)).toPoint());
}

void OwnBarWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const std::optional<QPoint> pressedAt = std::exchange(m_pressedAt, std::nullopt);
    if (std::exchange(m_isDragged, false)) {
        unsetCursor();
        const QPointF corner = event->globalPosition() - pressedAt.value_or(QPoint());
        dropAt(QRect(corner.toPoint(), size()));
        return;
    }
    if (QRectF(QPointF(), QSizeF(size())).contains(event->position()))
        Q_EMIT clicked();
}

void OwnBarWindow::dropAt(const QRect &frame)
{
    const QScreen *screen = QGuiApplication::screenAt(frame.center());
    if (!screen)
        screen = m_followed;
    if (!screen)
        return;
    BarPlace dropped = nearestPlace(frame, screen->availableGeometry());
    if (screen != QGuiApplication::primaryScreen())
        dropped.screen = screen->name();
    setPlace(dropped);
    Q_EMIT placeChanged();
}

bool OwnBarWindow::event(QEvent *event)
{
    if (event->type() == QEvent::Enter)
        setHovered(true);
    else if (event->type() == QEvent::Leave)
        setHovered(false);
    return QRasterWindow::event(event);
}

} // namespace ferrin
