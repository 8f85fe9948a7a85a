// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/statusnotifier/itemonthebus.h"
#include "tests/platform/support/contents.h"
#include "tests/support/testmain.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QFile>
#include <QGuiApplication>
#include <QScopeGuard>
#include <QScreen>
#include <QTest>
#include <QXmlStreamReader>
#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

#include <private/qhighdpiscaling_p.h>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

template <typename T>
T as(const QVariant &value)
{
    return qdbus_cast<T>(value);
}

QString signatureOf(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QDBusArgument>()
        ? value.value<QDBusArgument>().currentSignature()
        : QString::fromLatin1(QDBusMetaType::typeToSignature(value.metaType()));
}

/// As a desktop does while the program runs: the size in logical pixels changes too.
void scaleScreen(int scale)
{
    QScreen *const screen = QGuiApplication::primaryScreen();
    QHighDpiScaling::setScreenFactor(screen, scale);
    const QRect bounds = screen->handle()->geometry().adjusted(0, 0, scale - 1, 0);
    QWindowSystemInterface::handleScreenGeometryChange(screen, bounds, bounds);
    QWindowSystemInterface::flushWindowSystemEvents();
}

} // namespace

class StatusNotifierItemTest : public ItemOnTheBus
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatItIs();
    void describesEveryPropertyThatItHas();
    void saysInWordsWhatThePictureShows();
    void keepsMarkupOutOfItsWords();
    void answersEachCallerInItsHostsForm();
    void asksOnceWhoTheCallerIs();
    void answersCallsThatComeBeforeTheCallerIsKnown();
    void givesSquaresToACallerThatIsUnknown();
    void labelsForHostsThatDrawLabelsAndNoOther();
    void staysBelowTheSizeOfAMessageForEveryHost();
    void givesIndicatorServicesAnIconByItsName();
    void hasNoToolTipWhileItIsDisabled();
    void paintsAnewAtAnotherScale();
};

void StatusNotifierItemTest::saysWhatItIs()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    const QVariantMap all = host->allProperties(m_service, itemPath, itemInterface);
    QCOMPARE(all.value(u"Id"_s), QVariant(u"ferrin"_s));
    QCOMPARE(all.value(u"Title"_s), QVariant(u"Ferrin"_s));
    QCOMPARE(all.value(u"Category"_s), QVariant(u"Hardware"_s));
    QCOMPARE(all.value(u"Status"_s), QVariant(u"Active"_s));
    QCOMPARE(all.value(u"ItemIsMenu"_s), QVariant(false));
    QCOMPARE(all.value(u"WindowId"_s), QVariant(0));
    QCOMPARE(all.value(u"IconName"_s), QVariant(QString()));
    QCOMPARE(all.value(u"Menu"_s).value<QDBusObjectPath>().path(), u"/MenuBar"_s);
    for (auto [name, value] : all.asKeyValueRange())
        QCOMPARE(signatureOf(read(host, name)), signatureOf(value));
}

void StatusNotifierItemTest::describesEveryPropertyThatItHas()
{
    BusPeer *const host = newHost(u"gnome-shell"_s);
    const QDBusMessage reply
        = host->ask(m_service, itemPath, u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s);
    QXmlStreamReader xml(reply.arguments().value(0).toString());
    QMap<QString, QString> described;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"property")
            described.insert(xml.attributes().value(u"name"_s).toString(),
                             xml.attributes().value(u"type"_s).toString());
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QMap<QString, QString> had;
    const QVariantMap all = host->allProperties(m_service, itemPath, itemInterface);
    for (auto [name, value] : all.asKeyValueRange())
        had.insert(name, signatureOf(value));
    QCOMPARE(had, described);
}

void StatusNotifierItemTest::saysInWordsWhatThePictureShows()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    const auto toolTip = as<StatusNotifierToolTip>(read(host, u"ToolTip"_s));
    QCOMPARE(toolTip.title, u"37%, 4:29 to empty"_s);
    QCOMPARE(toolTip.text, u"Discharging"_s);
    QCOMPARE(read(host, u"IconAccessibleDesc"_s).toString(), u"37%, 4:29 to empty"_s);

    ItemContent iconOnly = m_item->content();
    iconOnly.charge.reset();
    iconOnly.time.reset();
    m_item->setContent(iconOnly);
    const auto state = as<StatusNotifierToolTip>(read(host, u"ToolTip"_s));
    QCOMPARE(state.title, u"Discharging"_s);
    QCOMPARE(state.text, QString());
}

void StatusNotifierItemTest::keepsMarkupOutOfItsWords()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    m_item->setContent(dischargingAt(37, u"<b>&amp;"_s));
    QCOMPARE(as<StatusNotifierToolTip>(read(host, u"ToolTip"_s)).title, u"37%, bamp; to empty"_s);
}

void StatusNotifierItemTest::answersEachCallerInItsHostsForm()
{
    BusPeer *const xfce = newHost(u"panel-3-systray"_s);
    BusPeer *const mate = newHost(u"notification-ar"_s);
    BusPeer *const waybar = newHost(u"waybar"_s);

    const auto square = as<IconPixmapList>(read(xfce, u"IconPixmap"_s));
    QCOMPARE(square.size(), 1);
    QCOMPARE(square.constFirst().width, 22);
    QCOMPARE(square.constFirst().height, 22);
    QCOMPARE(square.constFirst().pixels.size(), 22 * 22 * 4);
    for (BusPeer *const host : { mate, waybar }) {
        const auto wides = as<IconPixmapList>(read(host, u"IconPixmap"_s));
        QVERIFY(!wides.isEmpty());
        for (const IconPixmap &wide : wides)
            QVERIFY(wide.width > wide.height);
    }
    QCOMPARE(as<IconPixmapList>(read(xfce, u"IconPixmap"_s)), square);
}

void StatusNotifierItemTest::asksOnceWhoTheCallerIs()
{
    BusPeer *const host = newHost(u"waybar"_s);
    host->allProperties(m_service, itemPath, itemInterface);
    read(host, u"IconPixmap"_s);
    QCOMPARE(m_lookUps, 1);
}

void StatusNotifierItemTest::answersCallsThatComeBeforeTheCallerIsKnown()
{
    m_process = u"xfce4-panel"_s;
    BusPeer host(m_bus->connect());
    QList<QDBusPendingCall> calls;
    for (const auto &name : { u"Id"_s, u"IconPixmap"_s, u"NoSuchThing"_s, u"ToolTip"_s }) {
        QDBusMessage call
            = QDBusMessage::createMethodCall(m_service, itemPath, propertiesInterface, u"Get"_s);
        call.setArguments({ itemInterface, name });
        calls.append(host.connection().asyncCall(call));
    }
    for (const QDBusPendingCall &call : calls)
        QTRY_VERIFY(call.isFinished());
    QCOMPARE(m_lookUps, 1);
    QVERIFY(!calls.at(0).isError() && !calls.at(1).isError() && !calls.at(3).isError());
    QCOMPARE(calls.at(2).error().type(), QDBusError::UnknownProperty);
}

void StatusNotifierItemTest::givesSquaresToACallerThatIsUnknown()
{
    BusPeer *const host = newHost(QString());
    const auto pictures = as<IconPixmapList>(read(host, u"IconPixmap"_s));
    QCOMPARE(size_t(pictures.size()), unknownProfile().pictures.size());
    for (const IconPixmap &picture : pictures)
        QCOMPARE(picture.width, picture.height);
}

void StatusNotifierItemTest::labelsForHostsThatDrawLabelsAndNoOther()
{
    BusPeer *const gnome = newHost(u"gnome-shell"_s);
    QCOMPARE(read(gnome, u"XAyatanaLabel"_s).toString(), u"37% 4:29"_s);
    QCOMPARE(read(gnome, u"XAyatanaLabelGuide"_s).toString(), u"100% 00:00"_s);
    const auto glyphs = as<IconPixmapList>(read(gnome, u"IconPixmap"_s));
    QCOMPARE(glyphs.constFirst().width, 16);

    BusPeer *const mate = newHost(u"notification-ar"_s);
    QVERIFY(!read(mate, u"XAyatanaLabel"_s).isValid());
    QVERIFY(!mate->allProperties(m_service, itemPath, itemInterface).contains(u"XAyatanaLabel"_s));
}

void StatusNotifierItemTest::staysBelowTheSizeOfAMessageForEveryHost()
{
    m_item->setContent(dischargingAt(100, u"12:34"_s));
    for (const HostProfile &profile : allHostProfiles()) {
        if (profile.iconName)
            continue;
        BusPeer *const host = newHost(QString(profile.name).left(15));
        const QVariantMap all = host->allProperties(m_service, itemPath, itemInterface);
        qsizetype bytes = 0;
        for (const IconPixmap &picture : as<IconPixmapList>(all.value(u"IconPixmap"_s)))
            bytes += picture.pixels.size() + 16;
        QVERIFY2(bytes > 0 && bytes < 63 * 1024, profile.name.data());
    }
}

void StatusNotifierItemTest::givesIndicatorServicesAnIconByItsName()
{
    BusPeer *const service = newHost(u"ayatana-indicat"_s);
    const QString name = read(service, u"IconName"_s).toString();
    const QString folder = read(service, u"IconThemePath"_s).toString();
    QVERIFY(name.endsWith(u"-symbolic"_s));
    QVERIFY(QFile::exists(folder + u'/' + name + u".svg"_s));
    QVERIFY(as<IconPixmapList>(read(service, u"IconPixmap"_s)).isEmpty());
    QCOMPARE(read(service, u"XAyatanaLabel"_s).toString(), u"37% 4:29"_s);
    m_item->setContent(dischargingAt(9, u"0:40"_s));
    settle(*service);
    QVERIFY(service->takeSignals().contains(u"NewIcon"_s));
    QVERIFY(read(service, u"IconName"_s).toString() != name);
}

void StatusNotifierItemTest::hasNoToolTipWhileItIsDisabled()
{
    BusPeer *const host = newHost(u"waybar"_s);
    host->allProperties(m_service, itemPath, itemInterface);
    for (const bool isSilenced : { true, false }) {
        m_item->setToolTipEnabled(!isSilenced);
        m_item->setToolTipEnabled(!isSilenced);
        settle(*host);
        QCOMPARE(host->takeSignals(), QStringList(u"NewToolTip"_s));
        const auto toolTip = as<StatusNotifierToolTip>(read(host, u"ToolTip"_s));
        QCOMPARE(toolTip.title.isEmpty(), isSilenced);
        QCOMPARE(toolTip.text.isEmpty(), isSilenced);
        QCOMPARE(read(host, u"IconAccessibleDesc"_s).toString(), u"37%, 4:29 to empty"_s);
    }
}

void StatusNotifierItemTest::paintsAnewAtAnotherScale()
{
    BusPeer *const host = newHost(u"plasmashell"_s);
    const auto height = [&] { return as<IconPixmapList>(read(host, u"IconPixmap"_s))[0].height; };
    QCOMPARE(height(), 22);
    const auto restore = qScopeGuard([] { scaleScreen(1); });
    scaleScreen(2);
    settle(*host);
    QCOMPARE(host->takeSignals(), QStringList(u"NewIcon"_s));
    QCOMPARE(height(), 44);
}

FERRIN_TEST(QGuiApplication, StatusNotifierItemTest)
#include "test_statusnotifieritem.moc"
