// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hosttable.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <algorithm>

using namespace ferrin;
using namespace Qt::StringLiterals;

class HostTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsAHostByItsProcess_data();
    void knowsAHostByItsProcess();
    void offersXfceOneSquareOnly();
    void offersWaybarOneLine();
    void offersMateTheWideViewAtEveryHeightOfItsPanels();
    void knowsXfcesPluginsByTheirLibraries();
    void offersTheXappWatcherWidePicturesOnCinnamonOnly();
    void labelsOnlyForHostsThatDrawLabels();
    void premultipliesOnlyForHostsThatExpectIt();
    void offersAnUnknownHostSquaresOnly();
    void opensTheMenuOfAnUnknownHostOnEveryClick();
    void believesNoClickOfHostsThatTellTheirOwnCoordinates();
};

void HostTableTest::knowsAHostByItsProcess_data()
{
    QTest::addColumn<QString>("process");
    QTest::addColumn<QString>("profile");

    const auto row = [](const char *process, const char *profile) {
        QTest::newRow(process) << QString::fromLatin1(process) << QString::fromLatin1(profile);
    };
    row("xfce4-panel", "xfce4-panel");
    row("panel-7-systray", "xfce4-panel");
    row("panel-12-systra", "xfce4-panel");
    row("panel-123456-sy", "xfce4-panel");
    row("plasmashell", "plasmashell");
    row(".plasmashell-wr", "plasmashell");
    row("lxqt-panel", "lxqt-panel");
    row("swaybar", "swaybar");
    row("waybar", "waybar");
    row(".waybar-wrapped", "waybar");
    row("notification-ar", "notification-area-applet");
    row("xapp-sn-watcher", "xapp-sn-watcher outside Cinnamon");
    row("gnome-shell", "gnome-shell");
    row("budgie-panel", "budgie-panel");
    row("enlightenment", "enlightenment");
    row("qtile", "qtile");
    row("ayatana-indicat", "ayatana-indicator-application");
    row("mate-indicator-", "indicator panel");
    row("panel-9-indicat", "indicator panel");

    row("", "unknown");
    row("way", "unknown");
    row("waybars", "unknown");
    row("notswaybar", "unknown");
    row("panel--systray", "unknown");
    row("panel-7-systra", "unknown");
    row("panel-7-systrayx", "unknown");
    row("panel-7-clock", "unknown");
    row("panel-123456789", "unknown");
    row("notification", "unknown");
    row("mixed-panel", "unknown");
    row("busctl", "unknown");
}

void HostTableTest::knowsAHostByItsProcess()
{
    QFETCH(QString, process);
    QFETCH(QString, profile);
    QCOMPARE(QString(profileFor({ .name = process }).name), profile);
}

void HostTableTest::offersXfceOneSquareOnly()
{
    const auto pictures = profileFor({ .name = u"xfce4-panel"_s }).pictures;
    QCOMPARE(pictures.size(), size_t(1));
    QCOMPARE(pictures.front(), (OfferedPicture { ItemForm::Square, 22 }));
}

void HostTableTest::offersWaybarOneLine()
{
    const auto pictures = profileFor({ .name = u"waybar"_s }).pictures;
    QVERIFY(!pictures.empty());
    for (const OfferedPicture &picture : pictures)
        QCOMPARE(picture.form, ItemForm::OneLine);
}

void HostTableTest::offersMateTheWideViewAtEveryHeightOfItsPanels()
{
    const auto pictures = profileFor({ .name = u"notification-ar"_s }).pictures;
    for (int height = 20; height <= 30; ++height)
        QVERIFY(
            std::find(pictures.begin(), pictures.end(), OfferedPicture { ItemForm::Wide, height })
            != pictures.end());
}

void HostTableTest::knowsXfcesPluginsByTheirLibraries()
{
    const QString wrapper = u"/usr/lib/x86_64-linux-gnu/xfce4/panel/wrapper-2.0"_s;
    const auto profileOf = [&wrapper](const QString &library) {
        return QString(
            profileFor({ .name = u"wrapper-2.0"_s,
                         .arguments = { wrapper, u"/usr/lib/xfce4/panel/plugins/"_s + library,
                                        u"8"_s, u"14680097"_s, u"systray"_s } })
                .name);
    };
    QCOMPARE(profileOf(u"libsystray.so"_s), u"xfce4-panel"_s);
    QCOMPARE(profileOf(u"libindicator-plugin.so"_s), u"indicator panel"_s);
    QCOMPARE(profileOf(u"libclock.so"_s), u"unknown"_s);
    QCOMPARE(profileOf(u"notlibsystray.so"_s), u"unknown"_s);
    QCOMPARE(QString(profileFor({ .name = u"wrapper-2.0"_s }).name), u"unknown"_s);
}

void HostTableTest::offersTheXappWatcherWidePicturesOnCinnamonOnly()
{
    const HostProcess watcher { .name = u"xapp-sn-watcher"_s };
    const auto isWide
        = [](const OfferedPicture &picture) { return picture.form == ItemForm::Wide; };
    QVERIFY(std::ranges::all_of(profileFor(watcher, { u"X-Cinnamon"_s }).pictures, isWide));
    for (const QString &desktop : { u"MATE"_s, u"XFCE"_s, QString() })
        QVERIFY(std::ranges::none_of(profileFor(watcher, { desktop }).pictures, isWide));
}

void HostTableTest::labelsOnlyForHostsThatDrawLabels()
{
    for (const HostProfile &profile : allHostProfiles())
        QCOMPARE(profile.label,
                 profile.name == "gnome-shell"_L1
                     || profile.name == "ayatana-indicator-application"_L1);
}

void HostTableTest::premultipliesOnlyForHostsThatExpectIt()
{
    for (const HostProfile &profile : allHostProfiles())
        QCOMPARE(profile.premultiplied, profile.name == "swaybar"_L1 || profile.name == "qtile"_L1);
}

void HostTableTest::offersAnUnknownHostSquaresOnly()
{
    const auto pictures = unknownProfile().pictures;
    QVERIFY(!pictures.empty());
    for (const OfferedPicture &picture : pictures)
        QCOMPARE(picture.form, ItemForm::Square);
    QCOMPARE(pictures.front().height, 22);
}

void HostTableTest::opensTheMenuOfAnUnknownHostOnEveryClick()
{
    QCOMPARE(unknownProfile().menu, MenuUse::EveryClick);
}

void HostTableTest::believesNoClickOfHostsThatTellTheirOwnCoordinates()
{
    for (const QString &process :
         { u"waybar"_s, u"notification-ar"_s, u"xapp-sn-watcher"_s, u""_s })
        QVERIFY(!profileFor({ .name = process }).trustedClicks);
}

FERRIN_TEST(QCoreApplication, HostTableTest)
#include "test_hosttable.moc"
