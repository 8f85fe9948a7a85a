// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownwindows/tooltip.h"

#include "popover/popoverplacement.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRasterWindow>

#include <chrono>

using namespace std::chrono_literals;

namespace ferrin {

namespace {

constexpr auto restBeforeShown = 700ms;
constexpr int fontPixelSize = 12;
constexpr QMargins padding { 8, 5, 8, 5 };

} // namespace

class ToolTip::Window final : public QRasterWindow
{
public:
    Window(const QString &text, const OwnWindowLook &look)
        : m_text(text)
        , m_look(look)
    {
        setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus
                 | Qt::WindowTransparentForInput);
    }

    [[nodiscard]] QSize idealSize() const
    {
        const QFontMetrics metrics(font());
        return QSize(metrics.horizontalAdvance(m_text), metrics.height())
            .grownBy(padding * m_look.textScale);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const OwnWindowColors colors = colorsFor(m_look);
        const QRect all(QPoint(), size());
        QPainter painter(this);
        painter.fillRect(all, colors.border);
        painter.fillRect(all.adjusted(1, 1, -1, -1), colors.ground);
        painter.setFont(font());
        painter.setPen(colors.text);
        painter.drawText(all, Qt::AlignCenter, m_text);
    }

private:
    [[nodiscard]] QFont font() const { return m_look.font(fontPixelSize); }

    QString m_text;
    OwnWindowLook m_look;
};

ToolTip::ToolTip(QObject *parent)
    : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restBeforeShown);
    connect(&m_rest, &QTimer::timeout, this, &ToolTip::show);
}

ToolTip::~ToolTip() = default;

void ToolTip::showSoon(const QString &text, const ItemPlace &place, const OwnWindowLook &look)
{
    hide();
    m_text = text;
    m_place = place;
    m_look = look;
    m_rest.start();
}

void ToolTip::hide()
{
    m_rest.stop();
    m_window.reset();
}

const QWindow *ToolTip::window() const
{
    return m_window.get();
}

void ToolTip::show()
{
    const std::optional<ScreenArea> screen = screenAreaOf(m_place);
    if (m_text.isEmpty() || m_place.item.isEmpty() || !screen)
        return;
    m_window = std::make_unique<Window>(m_text, m_look);
    m_window->setGeometry(spotAtItem(m_place, m_window->idealSize(), *screen).frame);
    m_window->show();
}

} // namespace ferrin
