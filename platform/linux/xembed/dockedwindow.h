// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/x11/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QImage>
#include <QObject>
#include <QRect>

#include <optional>
#include <xcb/xcb.h>

namespace ferrin {

/// A window of ours in another program's tray, by the System Tray protocol and XEmbed. The tray
/// decides where it stands and how large it is; it reports that and the pointer, and shows the
/// picture that it is given. All sizes are the X server's own pixels. Owned by the item; it docks
/// once, and when the tray lets go of it, it is gone.
class DockedWindow final : public QObject, QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    /// Asks the tray whose window this is to take it in.
    explicit DockedWindow(quint32 tray, QObject *parent = nullptr);
    ~DockedWindow() override;

    /// As the tray has made it.
    [[nodiscard]] QSize size() const noexcept { return m_size; }
    /// On the screen; null once it is gone.
    [[nodiscard]] QRect bounds() const;
    /// The panel that it stands in; null where it is not known.
    [[nodiscard]] QRect panel() const;
    /// Of which class the panel is; empty where it is not known.
    [[nodiscard]] QByteArray panelClass() const;

    /// What the tray's own ground looks like behind it; absent where the tray blends the picture
    /// over a ground that it keeps to itself, and while nothing can be seen.
    [[nodiscard]] std::optional<QColor> ground() const;

    /// For programs that list windows by their titles.
    void setTitle(const QString &title);
    /// Shows the picture, which is as large as the window.
    void show(const QImage &picture);

Q_SIGNALS:
    /// The picture is wanted, at the present size: the first time, when the tray has changed the
    /// size, and when it has been covered.
    void pictureWanted();
    void clicked();
    void menuRequested();
    void entered();
    void left();
    /// The tray has released it. No other signal follows.
    void undocked();

private:
    struct Visual
    {
        quint32 id = 0;
        quint8 depth = 0;
    };

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void create(const Visual &visual);
    void describe();
    void askForDocking(quint32 tray);
    [[nodiscard]] std::optional<Visual> visualOf(quint32 tray) const;
    [[nodiscard]] Visual rootVisual() const;
    [[nodiscard]] std::optional<QImage> groundPicture() const;
    void put(const QImage &picture);
    void handleTrayEvent(const xcb_generic_event_t &event);
    void handlePointerEvent(const xcb_generic_event_t &event);
    void reparented(quint32 parent);
    void resized(QSize size);
    void letGo();
    void end();

    X11Connection m_x11;
    quint32 m_window = 0;
    quint32 m_gc = 0;
    quint32 m_colorMap = 0;
    Visual m_visual;
    /// The tray blends the picture by its alpha.
    bool m_isBlended = false;
    bool m_isDocked = false;
    QSize m_size;
};

} // namespace ferrin
