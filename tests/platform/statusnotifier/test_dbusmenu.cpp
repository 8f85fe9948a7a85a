// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/dbusmenu.h"
#include "platform/linux/statusnotifier/dbusmenutypes.h"
#include "platform/linux/statusnotifier/hostresolver.h"
#include "tests/platform/support/buspeer.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QString menuPath = u"/MenuBar"_s;
const QString menuInterface = u"com.canonical.dbusmenu"_s;
const std::vector<MenuEntry> quitOnly { { u"quit"_s, u"Quit Ferrin"_s } };

} // namespace

class DBusMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void laysItsEntriesOutUnderTheRoot();
    void givesTheRootAloneAtDepthZero();
    void givesOneEntryByItsNumber();
    void givesOnlyThePropertiesAskedFor();
    void writesUnderscoresTwice();
    void givesThePropertiesOfAGroup();
    void givesEveryEntryWhenNoneIsNamed();
    void triggersAnEntryThatWasClicked();
    void ignoresHoveringAndOpening();
    void triggersEntriesOfAGroupAndNamesTheUnknown();
    void hasNothingToUpdateBeforeItShows();
    void tellsOfANewLayoutOnlyWhenThereIsOne();
    void answersInWordsWhereAClickOpensIt();
    void leadsToTheWindowsWhereAClickOpensIt();
    void keepsItsOneEntryElsewhere();
    void tellsOfNewWordsWhenItIsAboutToShowThem();
    void saysWhatVersionItSpeaks();
    void survivesMalformedCalls_data();
    void survivesMalformedCalls();

private:
    QDBusMessage ask(const QString &method, const QVariantList &arguments);
    QList<DBusMenuLayout> childrenOf(int parent);
    DBusMenuLayout layoutOf(int parent, int depth, const QStringList &names = {});

    std::unique_ptr<PrivateBus> m_bus;
    QString m_service;
    /// What the processes of all hosts are called.
    QString m_process;
    std::unique_ptr<HostResolver> m_resolver;
    std::unique_ptr<DBusMenu> m_menu;
    std::unique_ptr<BusPeer> m_host;
};

void DBusMenuTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    const QDBusConnection connection = m_bus->connect();
    m_service = connection.baseService();
    m_process = u"plasmashell"_s;
    m_resolver = std::make_unique<HostResolver>(
        connection, [this](uint) { return HostProcess { .name = m_process }; });
    m_menu = std::make_unique<DBusMenu>(connection, *m_resolver);
    m_menu->setEntries(quitOnly);
    m_host = std::make_unique<BusPeer>(m_bus->connect());
}

void DBusMenuTest::cleanup()
{
    m_host.reset();
    m_menu.reset();
    m_resolver.reset();
    m_bus.reset();
}

QDBusMessage DBusMenuTest::ask(const QString &method, const QVariantList &arguments)
{
    return m_host->ask(m_service, menuPath, menuInterface, method, arguments);
}

DBusMenuLayout DBusMenuTest::layoutOf(int parent, int depth, const QStringList &names)
{
    const QDBusMessage reply = ask(u"GetLayout"_s, { parent, depth, names });
    if (reply.signature() != u"u(ia{sv}av)")
        return { .number = -1 };
    return qdbus_cast<DBusMenuLayout>(reply.arguments().at(1));
}

QList<DBusMenuLayout> DBusMenuTest::childrenOf(int parent)
{
    QList<DBusMenuLayout> children;
    for (const QVariant &child : layoutOf(parent, -1).children)
        children.append(qdbus_cast<DBusMenuLayout>(child));
    return children;
}

void DBusMenuTest::laysItsEntriesOutUnderTheRoot()
{
    const DBusMenuLayout root = layoutOf(0, -1);
    QCOMPARE(root.number, 0);
    QCOMPARE(root.properties.value(u"children-display"_s).toString(), u"submenu"_s);
    QCOMPARE(root.children.size(), 1);
    const auto entry = qdbus_cast<DBusMenuLayout>(root.children.constFirst());
    QCOMPARE(entry.number, 1);
    QCOMPARE(entry.properties,
             (QVariantMap { { u"label"_s, u"Quit Ferrin"_s },
                            { u"enabled"_s, true },
                            { u"visible"_s, true } }));
    QVERIFY(entry.children.isEmpty());
}

void DBusMenuTest::givesTheRootAloneAtDepthZero()
{
    QCOMPARE(layoutOf(0, 0).number, 0);
    QVERIFY(layoutOf(0, 0).children.isEmpty());
}

void DBusMenuTest::givesOneEntryByItsNumber()
{
    QCOMPARE(layoutOf(1, -1).properties.value(u"label"_s).toString(), u"Quit Ferrin"_s);
}

void DBusMenuTest::givesOnlyThePropertiesAskedFor()
{
    QCOMPARE(layoutOf(1, -1, { u"visible"_s, u"icon-name"_s }).properties,
             (QVariantMap { { u"visible"_s, true } }));
}

void DBusMenuTest::writesUnderscoresTwice()
{
    m_menu->setEntries({ { u"a"_s, u"snake_case"_s } });
    QCOMPARE(layoutOf(1, 0).properties.value(u"label"_s).toString(), u"snake__case"_s);
}

void DBusMenuTest::givesThePropertiesOfAGroup()
{
    const QDBusMessage reply
        = ask(u"GetGroupProperties"_s,
              { QVariant::fromValue(QList { 1, 99 }), QStringList { u"label"_s } });
    QCOMPARE(reply.signature(), u"a(ia{sv})"_s);
    const auto group = qdbus_cast<QList<DBusMenuProperties>>(reply.arguments().constFirst());
    QCOMPARE(group.size(), 1);
    QCOMPARE(group.constFirst().number, 1);
    QCOMPARE(group.constFirst().properties, (QVariantMap { { u"label"_s, u"Quit Ferrin"_s } }));
}

void DBusMenuTest::givesEveryEntryWhenNoneIsNamed()
{
    const QDBusMessage reply
        = ask(u"GetGroupProperties"_s, { QVariant::fromValue(QList<int>()), QStringList() });
    QCOMPARE(qdbus_cast<QList<DBusMenuProperties>>(reply.arguments().constFirst()).size(), 2);
}

void DBusMenuTest::triggersAnEntryThatWasClicked()
{
    QSignalSpy triggered(m_menu.get(), &DBusMenu::triggered);
    const QVariant data = QVariant::fromValue(QDBusVariant(0));
    const QDBusMessage reply = ask(u"Event"_s, { 1, u"clicked"_s, data, 0U });
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(triggered.size(), 1);
    QCOMPARE(triggered.takeFirst(), QVariantList { u"quit"_s });
}

void DBusMenuTest::ignoresHoveringAndOpening()
{
    const QSignalSpy triggered(m_menu.get(), &DBusMenu::triggered);
    const QVariant data = QVariant::fromValue(QDBusVariant(0));
    ask(u"Event"_s, { 1, u"hovered"_s, data, 0U });
    ask(u"Event"_s, { 0, u"opened"_s, data, 0U });
    ask(u"Event"_s, { 0, u"clicked"_s, data, 0U });
    settle(*m_host);
    QCOMPARE(triggered.size(), 0);
}

void DBusMenuTest::triggersEntriesOfAGroupAndNamesTheUnknown()
{
    QSignalSpy triggered(m_menu.get(), &DBusMenu::triggered);
    const QList<DBusMenuEvent> events {
        { .number = 1, .event = u"clicked"_s, .data = QDBusVariant(0) },
        { .number = 7, .event = u"clicked"_s, .data = QDBusVariant(0) }
    };
    const QDBusMessage reply = ask(u"EventGroup"_s, { QVariant::fromValue(events) });
    QCOMPARE(qdbus_cast<QList<int>>(reply.arguments().value(0)), QList { 7 });
    QTRY_COMPARE(triggered.size(), 1);
}

void DBusMenuTest::hasNothingToUpdateBeforeItShows()
{
    QCOMPARE(ask(u"AboutToShow"_s, { 0 }).arguments(), QVariantList { false });
    const QDBusMessage reply
        = ask(u"AboutToShowGroup"_s, { QVariant::fromValue(QList { 0, 1, 5 }) });
    QCOMPARE(reply.signature(), u"aiai"_s);
    QCOMPARE(qdbus_cast<QList<int>>(reply.arguments().at(0)), QList<int>());
    QCOMPARE(qdbus_cast<QList<int>>(reply.arguments().at(1)), QList { 5 });
}

void DBusMenuTest::tellsOfANewLayoutOnlyWhenThereIsOne()
{
    m_host->listen(m_service, menuPath, menuInterface, { u"LayoutUpdated"_s });
    settle(*m_host);
    m_menu->setEntries(quitOnly);
    settle(*m_host);
    QCOMPARE(m_host->takeSignals(), QStringList());
    m_menu->setEntries({ { u"quit"_s, u"Leave"_s } });
    settle(*m_host);
    QCOMPARE(m_host->takeSignals(), QStringList { u"LayoutUpdated"_s });
    QCOMPARE(m_host->lastArguments(), (QVariantList { 3U, 0 }));
}

void DBusMenuTest::answersInWordsWhereAClickOpensIt()
{
    m_process = u"gnome-shell"_s;
    m_menu->setState(u"37%, 4:29 to empty"_s);
    QStringList labels;
    for (const DBusMenuLayout &entry : childrenOf(0))
        labels.append(
            entry.properties.value(u"label"_s, entry.properties.value(u"type"_s)).toString());
    QCOMPARE(labels,
             (QStringList { u"37%, 4:29 to empty"_s, u"Open Ferrin"_s, u"Settings"_s,
                            u"separator"_s, u"Quit Ferrin"_s }));
    QCOMPARE(childrenOf(0).constFirst().properties.value(u"enabled"_s), QVariant(false));
}

void DBusMenuTest::leadsToTheWindowsWhereAClickOpensIt()
{
    m_process = u"gnome-shell"_s;
    QSignalSpy opened(m_menu.get(), &DBusMenu::openRequested);
    QSignalSpy settings(m_menu.get(), &DBusMenu::settingsRequested);
    QSignalSpy triggered(m_menu.get(), &DBusMenu::triggered);
    const QVariant nothing = QVariant::fromValue(QDBusVariant(u""_s));
    for (const DBusMenuLayout &entry : childrenOf(0))
        ask(u"Event"_s, { entry.number, u"clicked"_s, nothing, 0U });
    QTRY_COMPARE(triggered.size(), 1);
    QCOMPARE(triggered.constFirst().constFirst().toString(), u"quit"_s);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(settings.size(), 1);
}

void DBusMenuTest::keepsItsOneEntryElsewhere()
{
    m_process = u"gnome-shell"_s;
    QSignalSpy opened(m_menu.get(), &DBusMenu::openRequested);
    const int open = childrenOf(0).at(1).number;
    m_process = u"waybar"_s;
    m_host = std::make_unique<BusPeer>(m_bus->connect());
    QCOMPARE(childrenOf(0).size(), 1);
    QCOMPARE(layoutOf(open, -1).number, -1);
    const QVariant nothing = QVariant::fromValue(QDBusVariant(u""_s));
    QCOMPARE(ask(u"Event"_s, { open, u"clicked"_s, nothing, 0U }).type(),
             QDBusMessage::ErrorMessage);
    settle(*m_host);
    QCOMPARE(opened.size(), 0);
}

void DBusMenuTest::tellsOfNewWordsWhenItIsAboutToShowThem()
{
    m_process = u"gnome-shell"_s;
    const QString news = u"ItemsPropertiesUpdated"_s;
    const auto newsAtAShow = [&] {
        ask(u"AboutToShow"_s, { 0 });
        settle(*m_host);
        return m_host->takeSignals();
    };
    m_host->listen(m_service, menuPath, menuInterface, { u"LayoutUpdated"_s, news });
    m_menu->setState(u"37%"_s);
    QCOMPARE(newsAtAShow(), QStringList { news });
    QCOMPARE(newsAtAShow(), QStringList());
    m_menu->setState(u"36%"_s);
    m_menu->setState(u"36%"_s);
    settle(*m_host);
    QCOMPARE(m_host->takeSignals(), QStringList());
    QCOMPARE(newsAtAShow(), QStringList { news });
    const auto changed
        = qdbus_cast<QList<DBusMenuProperties>>(m_host->lastArguments().constFirst());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.constFirst().number, childrenOf(0).constFirst().number);
    QCOMPARE(changed.constFirst().properties, (QVariantMap { { u"label"_s, u"36%"_s } }));
}

void DBusMenuTest::saysWhatVersionItSpeaks()
{
    const QVariantMap all = m_host->allProperties(m_service, menuPath, menuInterface);
    QCOMPARE(all,
             (QVariantMap { { u"Version"_s, 3U },
                            { u"TextDirection"_s, u"ltr"_s },
                            { u"Status"_s, u"normal"_s },
                            { u"IconThemePath"_s, QStringList() } }));
}

void DBusMenuTest::survivesMalformedCalls_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");

    const QVariant data = QVariant::fromValue(QDBusVariant(0));
    QTest::newRow("layout of nothing") << u"GetLayout"_s << QVariantList {};
    QTest::newRow("layout of the unknown")
        << u"GetLayout"_s << QVariantList { 9, -1, QStringList() };
    QTest::newRow("layout below zero") << u"GetLayout"_s << QVariantList { -1, -1, QStringList() };
    QTest::newRow("layout by texts") << u"GetLayout"_s << QVariantList { u"0"_s, u"1"_s, u"2"_s };
    QTest::newRow("group of texts")
        << u"GetGroupProperties"_s << QVariantList { QStringList { u"1"_s }, QStringList() };
    QTest::newRow("property of the unknown") << u"GetProperty"_s << QVariantList { 9, u"label"_s };
    QTest::newRow("unknown property") << u"GetProperty"_s << QVariantList { 1, u"colour"_s };
    QTest::newRow("event of the unknown")
        << u"Event"_s << QVariantList { 2147483647, u"clicked"_s, data, 0U };
    QTest::newRow("event without data") << u"Event"_s << QVariantList { 1, u"clicked"_s };
    QTest::newRow("events of numbers")
        << u"EventGroup"_s << QVariantList { QVariant::fromValue(QList { 1 }) };
    QTest::newRow("about to show the unknown") << u"AboutToShow"_s << QVariantList { -7 };
    QTest::newRow("no such method") << u"Explode"_s << QVariantList {};
}

void DBusMenuTest::survivesMalformedCalls()
{
    QFETCH(QString, method);
    QFETCH(QVariantList, arguments);
    const QSignalSpy triggered(m_menu.get(), &DBusMenu::triggered);
    const QDBusMessage reply = ask(method, arguments);
    QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
    QVERIFY(QDBusError(reply).type() != QDBusError::NoReply);
    QCOMPARE(layoutOf(0, -1).children.size(), 1);
    QCOMPARE(triggered.size(), 0);
}

FERRIN_TEST(QCoreApplication, DBusMenuTest)
#include "test_dbusmenu.moc"
