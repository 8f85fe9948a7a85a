// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/presswatcher.h"

#include <memory>

struct xcb_connection_t;
struct xcb_ge_generic_event_t;
class QSocketNotifier;

namespace ferrin {

/// Hears presses through the X server's raw input events, on a connection of its own that is open
/// only while it listens. Silent on a server without XInput 2.1.
class X11PressWatcher final : public PressWatcher
{
    Q_OBJECT

public:
    explicit X11PressWatcher(QObject *parent = nullptr);
    ~X11PressWatcher() override;

    bool start() override;
    void stop() override;
    void catchUp() override;

private:
    struct CloseConnection
    {
        void operator()(xcb_connection_t *connection) const;
    };

    [[nodiscard]] bool select();
    void readEvents();
    [[nodiscard]] bool isPress(const xcb_ge_generic_event_t &event) const;
    [[nodiscard]] QWindow *ownWindowUnderPointer() const;

    std::unique_ptr<xcb_connection_t, CloseConnection> m_connection;
    std::unique_ptr<QSocketNotifier> m_notifier;
    quint32 m_root = 0;
    quint8 m_extension = 0;
};

} // namespace ferrin
