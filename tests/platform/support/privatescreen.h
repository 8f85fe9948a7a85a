// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/support/privatebus.h"

#include <QByteArray>
#include <QProcess>

namespace ferrin::test {

/// An X server of the test's own that nobody sees; it ends with this object, and with the test
/// whatever happens. To be made before the application object, which then runs on it. Its depth is
/// in bits a pixel.
class PrivateScreen
{
public:
    explicit PrivateScreen(int depth = 24)
    {
        PrivateBus::endWithTest(&m_server);
        m_server.start(QStringLiteral("Xvfb"),
                       { QStringLiteral("-displayfd"), QStringLiteral("1"),
                         QStringLiteral("-screen"), QStringLiteral("0"),
                         QStringLiteral("800x600x%1").arg(depth), QStringLiteral("-nolisten"),
                         QStringLiteral("tcp"), QStringLiteral("-noreset") });
        if (!m_server.waitForReadyRead())
            qFatal("There is no X server for the test");
        qputenv("DISPLAY", ':' + m_server.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qunsetenv("WAYLAND_DISPLAY");
    }

    ~PrivateScreen()
    {
        m_server.kill();
        m_server.waitForFinished();
    }

    PrivateScreen(const PrivateScreen &) = delete;
    PrivateScreen &operator=(const PrivateScreen &) = delete;

private:
    QProcess m_server;
};

} // namespace ferrin::test
