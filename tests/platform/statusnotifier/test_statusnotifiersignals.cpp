// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/statusnotifier/itemonthebus.h"
#include "tests/platform/support/contents.h"
#include "tests/support/testmain.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

/// Who is told of what.
class StatusNotifierSignalsTest : public ItemOnTheBus
{
    Q_OBJECT

private Q_SLOTS:
    void isSilentAtRest();
    void isSilentWhileNobodyHasLooked();
    void isSilentWhenNothingVisibleChanged();
    void tellsOnceOfSeveralChanges();
    void tellsOfEveryRefreshAtOnce();
    void repeatsTheLabelToAHostThatHasJustRead();
    void sparesHostsThatLabelTheToolTip();
    void tellsOfNewColors();
    void tellsTheOthersOfWhatOneIsAboutToSee();
    void forgetsReadersThatLeave();
    void tellsTheLabelToItsHostsAlone();
    void tellsOfANewIconOnlyThoseToWhomItLooksNew();
    void tellsNoMoreThanWasRead();
    void tellsEverybodyWhereItIsNewToAllWhoRead();
    void isInTheFormOfTheLastThatDrawsIt();
    void tellsOfAPanelThatStandsUp();
};

void StatusNotifierSignalsTest::isSilentAtRest()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    host->allProperties(m_service, itemPath, itemInterface);
    m_item->setContent(dischargingAt(37, u"4:29"_s));
    settle(*host);
    QCOMPARE(host->takeSignals(), QStringList());
}

void StatusNotifierSignalsTest::isSilentWhileNobodyHasLooked()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    m_item->setContent(dischargingAt(12, u"0:29"_s));
    settle(*host);
    QCOMPARE(host->takeSignals(), QStringList());
}

void StatusNotifierSignalsTest::isSilentWhenNothingVisibleChanged()
{
    BusPeer *const host = newHost(u"gnome-shell"_s);
    host->allProperties(m_service, itemPath, itemInterface);
    ItemContent content = m_item->content();
    content.icon->charge = 37.00001;
    m_item->setContent(content);
    settle(*host);
    QCOMPARE(host->takeSignals(), QStringList());
}

void StatusNotifierSignalsTest::tellsOnceOfSeveralChanges()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    host->allProperties(m_service, itemPath, itemInterface);
    m_item->setContent(dischargingAt(36, u"4:29"_s));
    m_item->setContent(dischargingAt(36, u"4:20"_s));
    settle(*host);
    QCOMPARE(host->takeSignals(), (QStringList { u"NewIcon"_s, u"NewToolTip"_s }));
    QCOMPARE(read(host, u"IconAccessibleDesc"_s).toString(), u"36%, 4:20 to empty"_s);
    settle(*host);
    QCOMPARE(host->takeSignals(), QStringList());
}

void StatusNotifierSignalsTest::tellsOfEveryRefreshAtOnce()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    host->allProperties(m_service, itemPath, itemInterface);
    for (int charge = 36; charge > 30; --charge) {
        m_item->setContent(dischargingAt(charge, u"4:28"_s));
        settle(*host);
        QCOMPARE(host->takeSignals(), (QStringList { u"NewIcon"_s, u"NewToolTip"_s }));
    }
}

void StatusNotifierSignalsTest::repeatsTheLabelToAHostThatHasJustRead()
{
    m_item->setLabelRepeatDelay(std::chrono::milliseconds(1));
    BusPeer *const gnome = newHost(u"gnome-shell"_s);
    gnome->allProperties(m_service, itemPath, itemInterface);
    QStringList heard;
    QTRY_COMPARE((heard += gnome->takeSignals()).count(u"XAyatanaNewLabel"_s), 6);
    QString news = gnome->lastArguments()[0].toString();
    QCOMPARE_NE(news, read(gnome, u"XAyatanaLabel"_s).toString());
    QCOMPARE(news.remove(QChar(0x200e)), u"37% 4:29"_s);
    QCOMPARE(gnome->lastArguments()[1], QVariant(u"100% 00:00"_s));
}

void StatusNotifierSignalsTest::sparesHostsThatLabelTheToolTip()
{
    BusPeer *const gnome = newHost(u"gnome-shell"_s);
    gnome->allProperties(m_service, itemPath, itemInterface);
    m_item->setContent(dischargingAt(12, u"1:02"_s));
    settle(*gnome);
    QCOMPARE(gnome->takeSignals(), (QStringList { u"NewIcon"_s, u"XAyatanaNewLabel"_s }));
}

void StatusNotifierSignalsTest::tellsOfNewColors()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    read(host, u"IconPixmap"_s);
    m_colors->setTrayText(Qt::white);
    settle(*host);
    QCOMPARE(host->takeSignals(), QStringList { u"NewIcon"_s });
}

void StatusNotifierSignalsTest::tellsTheOthersOfWhatOneIsAboutToSee()
{
    BusPeer *const first = newHost(u"waybar"_s);
    BusPeer *const second = newHost(u"waybar"_s);
    const auto before = qdbus_cast<IconPixmapList>(read(first, u"IconPixmap"_s));
    m_item->setContent(dischargingAt(9, u"0:40"_s));
    QVERIFY(qdbus_cast<IconPixmapList>(read(second, u"IconPixmap"_s)) != before);
    settle(*first);
    QVERIFY(first->takeSignals().contains(u"NewIcon"_s));
}

void StatusNotifierSignalsTest::forgetsReadersThatLeave()
{
    BusPeer *const stays = newHost(u"waybar"_s);
    const QSignalSpy departures(m_resolver.get(), &HostResolver::left);
    {
        const QDBusConnection connection
            = QDBusConnection::connectToBus(m_bus->address(), u"passer-by"_s);
        m_process = u"xfce4-panel"_s;
        BusPeer leaves(connection);
        read(&leaves, u"IconPixmap"_s);
    }
    QDBusConnection::disconnectFromBus(u"passer-by"_s);
    QTRY_COMPARE(departures.size(), 1);
    m_item->setContent(dischargingAt(9, u"0:40"_s));
    settle(*stays);
    QCOMPARE(stays->takeSignals(), QStringList());
}

void StatusNotifierSignalsTest::tellsTheLabelToItsHostsAlone()
{
    BusPeer *const gnome = newHost(u"gnome-shell"_s);
    BusPeer *const mate = newHost(u"notification-ar"_s);
    for (BusPeer *const host : { gnome, mate })
        host->allProperties(m_service, itemPath, itemInterface);
    m_item->setContent(dischargingAt(12, u"1:02"_s));
    settle(*gnome);
    settle(*mate);
    QVERIFY(!mate->takeSignals().contains(u"XAyatanaNewLabel"_s));
    QCOMPARE(gnome->lastArguments(), (QVariantList { u"12% 1:02"_s, u"100% 00:00"_s }));
    QCOMPARE(gnome->takeSignals().count(u"XAyatanaNewLabel"_s), 1);
}

void StatusNotifierSignalsTest::tellsOfANewIconOnlyThoseToWhomItLooksNew()
{
    BusPeer *const gnome = newHost(u"gnome-shell"_s);
    BusPeer *const xfce = newHost(u"xfce4-panel"_s);
    for (BusPeer *const host : { gnome, xfce })
        host->allProperties(m_service, itemPath, itemInterface);
    // In a glyph beside a label there is no time.
    m_item->setContent(dischargingAt(37, u"4:28"_s));
    settle(*gnome);
    settle(*xfce);
    QCOMPARE(gnome->takeSignals(), QStringList(u"XAyatanaNewLabel"_s));
    QCOMPARE(xfce->takeSignals(), (QStringList { u"NewIcon"_s, u"NewToolTip"_s }));
}

void StatusNotifierSignalsTest::tellsNoMoreThanWasRead()
{
    BusPeer *const reader = newHost(u"python3"_s);
    read(reader, u"ToolTip"_s);
    m_item->setContent(dischargingAt(36, u"4:20"_s));
    settle(*reader);
    QCOMPARE(reader->takeSignals(), QStringList(u"NewToolTip"_s));
    read(reader, u"IconPixmap"_s);
    m_item->setContent(dischargingAt(35, u"4:10"_s));
    settle(*reader);
    QCOMPARE(reader->takeSignals(), (QStringList { u"NewIcon"_s, u"NewToolTip"_s }));
}

void StatusNotifierSignalsTest::tellsEverybodyWhereItIsNewToAllWhoRead()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    BusPeer *const listener = newHost(u"python3"_s);
    host->allProperties(m_service, itemPath, itemInterface);
    m_item->setContent(dischargingAt(36, u"4:20"_s));
    settle(*listener);
    QCOMPARE(listener->takeSignals(), (QStringList { u"NewIcon"_s, u"NewToolTip"_s }));
}

void StatusNotifierSignalsTest::isInTheFormOfTheLastThatDrawsIt()
{
    QCOMPARE(m_item->panelAppearance(), std::nullopt);
    BusPeer *const stranger = newHost(u"python3"_s);
    read(stranger, u"ToolTip"_s);
    QCOMPARE(m_item->panelAppearance(), std::nullopt);
    BusPeer *const gnome = newHost(u"gnome-shell"_s);
    read(gnome, u"IconPixmap"_s);
    read(stranger, u"ToolTip"_s);
    QCOMPARE(m_item->panelAppearance()->form, ItemForm::Glyph);
}

void StatusNotifierSignalsTest::tellsOfAPanelThatStandsUp()
{
    BusPeer *const mate = newHost(u"notification-ar"_s);
    mate->allProperties(m_service, itemPath, itemInterface);
    QCOMPARE(m_item->panelAppearance()->form, ItemForm::Wide);
    m_item->setPanelStanding(true);
    settle(*mate);
    QCOMPARE(mate->takeSignals(), QStringList(u"NewIcon"_s));
    QCOMPARE(m_item->panelAppearance()->form, ItemForm::Square);
    m_item->setPanelStanding(true);
    settle(*mate);
    QCOMPARE(mate->takeSignals(), QStringList());
}

FERRIN_TEST(QGuiApplication, StatusNotifierSignalsTest)
#include "test_statusnotifiersignals.moc"
