// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QList>

#include <cstdlib>
#include <memory>

struct xcb_connection_t;

namespace ferrin {

struct FreeXcbReply
{
    void operator()(void *reply) const { std::free(reply); }
};

/// A reply that xcb allocated.
template <typename Reply>
using XcbReply = std::unique_ptr<Reply, FreeXcbReply>;

/// The application's own connection to the X server; null where it does not run on X11. Not owned.
class X11Connection
{
public:
    X11Connection();

    explicit operator bool() const noexcept { return m_connection != nullptr; }
    [[nodiscard]] xcb_connection_t *get() const noexcept { return m_connection; }

    /// The number of the screen, as the names of its selections count it.
    [[nodiscard]] int screenNumber() const;
    [[nodiscard]] quint32 rootWindow() const;

    /// The windows that a property of the window lists.
    [[nodiscard]] QList<quint32> windowsIn(quint32 window, const char *property) const;

    /// The number of a name; 0 when the server does not answer.
    [[nodiscard]] quint32 atom(const char *name) const;

private:
    xcb_connection_t *m_connection = nullptr;
};

} // namespace ferrin
