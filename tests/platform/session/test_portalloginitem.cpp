// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/portalloginitem.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QTest>

#include <optional>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;

/// The Background portal of a desktop, on a connection of its own. It answers when the test says
/// so.
class BackgroundPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Background")

public:
    explicit BackgroundPortal(const QDBusConnection &bus)
        : m_bus(bus)
    {
        m_bus.registerObject(path, this, QDBusConnection::ExportScriptableSlots);
        m_bus.registerService(service);
    }
    ~BackgroundPortal() override { leave(); }

    Q_SCRIPTABLE Q_SLOT QDBusObjectPath RequestBackground(const QString &,
                                                          const QVariantMap &options)
    {
        if (isBroken) {
            sendErrorReply(u"org.freedesktop.portal.Error.Failed"_s, u"broken"_s);
            return QDBusObjectPath(u"/"_s);
        }
        const QString sender = message().service().mid(1).replace(u'.', u'_');
        requests.append(options);
        const QString token
            = isOld ? u"t%1"_s.arg(requests.size()) : options.value(u"handle_token"_s).toString();
        handles.append(u"%1/request/%2/%3"_s.arg(path, sender, token));
        return QDBusObjectPath(handles.last());
    }

    void answer(qsizetype request, uint response, const QVariantMap &results = {})
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            handles[request], u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal.setArguments({ response, results });
        m_bus.send(signal);
    }

    void leave()
    {
        m_bus.unregisterObject(path);
        m_bus.unregisterService(service);
    }

    bool isBroken = false;
    /// Chooses the paths of its requests by itself.
    bool isOld = false;
    QList<QVariantMap> requests;
    QStringList handles;

private:
    QDBusConnection m_bus;
};

using Outcome = std::optional<QString>;

struct Fixture
{
    PrivateBus bus;
    MemoryDefaultsStore store;
    BackgroundPortal portal { bus.connect() };
    PortalLoginItem item { bus.connect(), store, u"ferrin"_s };
    /// Of the changes that are done.
    QList<Outcome> outcomes;

    [[nodiscard]] LoginItem::Done done()
    {
        return [this](const Outcome &error) { outcomes.append(error); };
    }
    /// Asks for a change and waits for the portal to hear of it.
    void change(bool on)
    {
        const auto expected = portal.requests.size() + 1;
        on ? item.registerItem(done()) : item.unregisterItem(done());
        QTRY_COMPARE(portal.requests.size(), expected);
    }
    /// A change to which the portal agrees.
    void settle(bool on)
    {
        const auto expected = outcomes.size() + 1;
        change(on);
        portal.answer(portal.requests.size() - 1, 0, { { u"autostart"_s, on } });
        QTRY_COMPARE(outcomes.size(), expected);
        QCOMPARE(outcomes.last(), Outcome());
    }
};

} // namespace

class PortalLoginItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNotRegisteredBeforeItWasEverAskedFor()
    {
        const Fixture f;
        QCOMPARE(f.item.status(), LoginItemStatus::notRegistered);
    }

    void asksForAStartInTheBackgroundAtLogin()
    {
        Fixture f;
        f.change(true);
        const QVariantMap &options = f.portal.requests.first();
        QCOMPARE(options.value(u"autostart"_s), true);
        QCOMPARE(qdbus_cast<QStringList>(options.value(u"commandline"_s)),
                 QStringList({ u"ferrin"_s, u"--background"_s }));
        QVERIFY(!options.value(u"reason"_s).toString().isEmpty());
    }

    void isOnOnceItIsGrantedAndNotBefore()
    {
        Fixture f;
        f.change(true);
        QCOMPARE(f.item.status(), LoginItemStatus::notRegistered);
        QVERIFY(f.outcomes.isEmpty());
        f.portal.answer(0, 0, { { u"autostart"_s, true }, { u"background"_s, true } });
        QTRY_COMPARE(f.outcomes, QList<Outcome> { std::nullopt });
        QCOMPARE(f.item.status(), LoginItemStatus::enabled);
    }

    void isOffOnceThePortalHasTakenItAway()
    {
        Fixture f;
        f.settle(true);
        f.settle(false);
        QCOMPARE(f.portal.requests.last().value(u"autostart"_s), false);
        QCOMPARE(f.item.status(), LoginItemStatus::notRegistered);
    }

    void isOnInTheNextRun()
    {
        Fixture f;
        f.settle(true);
        const PortalLoginItem next(f.bus.connect(), f.store, u"ferrin"_s);
        QCOMPARE(next.status(), LoginItemStatus::enabled);
    }

    void staysOffWhereItIsNotGranted_data()
    {
        QTest::addColumn<uint>("response");
        QTest::addColumn<QVariantMap>("results");
        QTest::addColumn<QString>("error");
        QTest::newRow("without autostart") << 0U << QVariantMap { { u"autostart"_s, false } }
                                           << u"the desktop does not allow it"_s;
        QTest::newRow("nothing said") << 0U << QVariantMap() << u"the desktop does not allow it"_s;
        QTest::newRow("by the user") << 1U << QVariantMap() << u"refused by the user"_s;
        QTest::newRow("otherwise") << 2U << QVariantMap() << u"refused by the desktop"_s;
    }

    void staysOffWhereItIsNotGranted()
    {
        QFETCH(uint, response);
        QFETCH(QVariantMap, results);
        QFETCH(QString, error);
        Fixture f;
        f.change(true);
        f.portal.answer(0, response, results);
        QTRY_COMPARE(f.outcomes, QList<Outcome> { error });
        QCOMPARE(f.item.status(), LoginItemStatus::notRegistered);
    }

    void staysOnWhereThePortalDoesNotTakeItAway()
    {
        Fixture f;
        f.settle(true);
        f.change(false);
        f.portal.answer(1, 2);
        QTRY_COMPARE(f.outcomes.last(), Outcome(u"refused by the desktop"_s));
        QCOMPARE(f.item.status(), LoginItemStatus::enabled);
    }

    void tellsOfAPortalThatFails()
    {
        Fixture f;
        f.portal.isBroken = true;
        f.item.registerItem(f.done());
        QTRY_COMPARE(f.outcomes, QList<Outcome> { u"broken"_s });
        QCOMPARE(f.item.status(), LoginItemStatus::notRegistered);
    }

    void tellsOfADesktopWithoutAPortal()
    {
        Fixture f;
        f.portal.leave();
        f.item.registerItem(f.done());
        QTRY_COMPARE(f.outcomes.size(), 1);
        QVERIFY(f.outcomes.first().has_value());
    }

    void tellsOfAPortalThatLeavesWithoutAnAnswer()
    {
        Fixture f;
        f.change(true);
        f.portal.leave();
        QTRY_COMPARE(f.outcomes, QList<Outcome> { u"the portal has left the session bus"_s });
    }

    void hearsAPortalThatChoosesThePathsOfItsRequests()
    {
        Fixture f;
        f.portal.isOld = true;
        f.change(true);
        // The answer to the call has to arrive before the path is known.
        QTRY_VERIFY((f.portal.answer(0, 0, { { u"autostart"_s, true } }), !f.outcomes.isEmpty()));
        QCOMPARE(f.item.status(), LoginItemStatus::enabled);
    }

    void hearsNoAnswerThatIsOutOfShape()
    {
        Fixture f;
        f.change(true);
        QDBusMessage signal = QDBusMessage::createSignal(
            f.portal.handles[0], u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal.setArguments({ u"yes"_s });
        QVERIFY(f.bus.connect().send(signal));
        f.portal.answer(0, 0, { { u"autostart"_s, u"garbage"_s } });
        QTRY_COMPARE(f.outcomes, QList<Outcome> { u"the desktop does not allow it"_s });
        QCOMPARE(f.item.status(), LoginItemStatus::notRegistered);
    }

    void believesTheAnswerToTheLastOfSeveralRequests()
    {
        Fixture f;
        f.change(true);
        f.change(false);
        f.portal.answer(1, 0, { { u"autostart"_s, false } });
        QTRY_COMPARE(f.outcomes.size(), 1);
        f.portal.answer(0, 0, { { u"autostart"_s, true } });
        QTRY_COMPARE(f.outcomes.size(), 2);
        QCOMPARE(f.item.status(), LoginItemStatus::notRegistered);
    }
};

FERRIN_TEST(QCoreApplication, PortalLoginItemTest)
#include "test_portalloginitem.moc"
