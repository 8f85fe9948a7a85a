// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktopnotice.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;

/// A desktop's service of notifications.
class Notifications final : public QDBusVirtualObject
{
public:
    explicit Notifications(const QDBusConnection &connection)
        : m_connection(connection)
    {
        m_connection.registerVirtualObject(path, this);
        m_connection.registerService(service);
    }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        if (message.member() == "Notify"_L1) {
            shown.append(message.arguments().value(3).toString());
            m_connection.send(message.createReply(7U));
        } else {
            closed.append(message.arguments().value(0).toUInt());
            m_connection.send(message.createReply());
        }
        return true;
    }
    [[nodiscard]] QString introspect(const QString &) const override { return {}; }

    void tell(const QString &member, const QVariantList &values)
    {
        QDBusMessage signal = QDBusMessage::createSignal(path, service, member);
        signal.setArguments(values);
        m_connection.send(signal);
    }

    QStringList shown;
    QList<uint> closed;

private:
    QDBusConnection m_connection;
};

} // namespace

class DesktopNoticeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isShownAndPressed()
    {
        test::PrivateBus bus;
        Notifications desktop(bus.connect());
        DesktopNotice notice(bus.connect());
        int pressed = 0;
        notice.show(u"A title"_s, u"A text"_s, [&] { ++pressed; });
        QTRY_COMPARE(desktop.shown, QStringList { u"A title"_s });
        // Its number is known once the answer has come back.
        QTest::qWait(50);
        desktop.tell(u"ActionInvoked"_s, { 8U, u"default"_s });
        desktop.tell(u"ActivationToken"_s, { 7U, u"a token"_s });
        desktop.tell(u"ActionInvoked"_s, { 7U, u"default"_s });
        QTRY_COMPARE(pressed, 1);
        QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "a token");
        qunsetenv("XDG_ACTIVATION_TOKEN");
        desktop.tell(u"ActionInvoked"_s, { 7U, u"default"_s });
        QTest::qWait(50);
        QCOMPARE(pressed, 1);
    }

    void isWithdrawn()
    {
        test::PrivateBus bus;
        Notifications desktop(bus.connect());
        DesktopNotice notice(bus.connect());
        notice.withdraw();
        notice.show(u"A title"_s, {}, [] {});
        // Before it is there, and again when nothing is shown.
        notice.withdraw();
        QTRY_COMPARE(desktop.closed, QList<uint> { 7 });
        notice.withdraw();
        QTest::qWait(50);
        QCOMPARE(desktop.closed.size(), 1);
    }

    void doesWithoutADesktopThatShowsAny()
    {
        test::LogCapture log;
        test::PrivateBus bus;
        DesktopNotice notice(bus.connect());
        notice.show(u"A title"_s, {}, [] {});
        QStringList lines;
        QVERIFY(QTest::qWaitFor([&] { return !(lines = log.take()).isEmpty(); }));
        QVERIFY(lines[0].startsWith(u"info: The desktop shows no notification"));
        notice.withdraw();
    }
};

FERRIN_TEST(QCoreApplication, DesktopNoticeTest)
#include "test_desktopnotice.moc"
