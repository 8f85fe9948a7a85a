// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/windowmanagersocket.h"
#include "tests/platform/support/privatescreen.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <xcb/xcb.h>

using namespace ferrin;
using namespace Qt::StringLiterals;
using ferrin::test::PrivateScreen;

namespace {

constexpr auto property = "I3_SOCKET_PATH";

/// As i3 tells, from a connection of its own.
class FakeI3
{
public:
    FakeI3()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root)
        , m_property(X11Connection().atom(property))
    {
    }

    ~FakeI3()
    {
        // What is still on its way when a client leaves may be lost.
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(
            m_connection, xcb_delete_property_checked(m_connection, m_root, m_property)));
        xcb_disconnect(m_connection);
    }

    FakeI3(const FakeI3 &) = delete;
    FakeI3 &operator=(const FakeI3 &) = delete;

    void tell(const QByteArray &path)
    {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_root, m_property,
                            X11Connection().atom("UTF8_STRING"), 8, quint32(path.size()),
                            path.constData());
        xcb_flush(m_connection);
    }

private:
    xcb_connection_t *m_connection;
    quint32 m_root;
    quint32 m_property;
};

} // namespace

class WindowManagerSocketTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { qunsetenv("SWAYSOCK"); }

    void isNowhereWithoutAWindowManager()
    {
        const WindowManagerSocket socket;
        QCOMPARE(socket.path(), QString());
    }

    void isWhereSwaySays()
    {
        qputenv("SWAYSOCK", "/run/sway.sock");
        const WindowManagerSocket socket;
        QCOMPARE(socket.path(), u"/run/sway.sock"_s);
    }

    void isWhereI3SaysWheneverItDoes()
    {
        const WindowManagerSocket socket;
        QSignalSpy renewed(&socket, &WindowManagerSocket::renewed);
        {
            FakeI3 i3;
            i3.tell("/run/i3.sock");
            QTRY_COMPARE(renewed.size(), 1);
            QCOMPARE(socket.path(), u"/run/i3.sock"_s);
            // It has started again in its place.
            i3.tell("/run/i3.sock");
            QTRY_COMPARE(renewed.size(), 2);
        }
        QTRY_COMPARE(renewed.size(), 3);
        QCOMPARE(socket.path(), QString());
    }
};

int main(int argc, char *argv[])
{
    const PrivateScreen screen;
    const QGuiApplication application(argc, argv);
    WindowManagerSocketTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_windowmanagersocket.moc"
