// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hosttable.h"
#include "tests/support/testmain.h"

#include <QTest>

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
    void labelsOnlyForGnome();
    void premultipliesOnlyForSwaybar();
    void offersAnUnknownHostWidesBeforeSquares();
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
    row("xapp-sn-watcher", "xapp-sn-watcher");
    row("gnome-shell", "gnome-shell");

    row("", "mixed");
    row("way", "mixed");
    row("waybars", "mixed");
    row("notswaybar", "mixed");
    row("panel--systray", "mixed");
    row("panel-7-systra", "mixed");
    row("panel-7-systrayx", "mixed");
    row("panel-7-clock", "mixed");
    row("panel-123456789", "mixed");
    row("notification", "mixed");
    row("mixed", "mixed");
    row("busctl", "mixed");
}

void HostTableTest::knowsAHostByItsProcess()
{
    QFETCH(QString, process);
    QFETCH(QString, profile);
    QCOMPARE(QString(profileForProcess(process).name), profile);
}

void HostTableTest::offersXfceOneSquareOnly()
{
    const auto pictures = profileForProcess(u"xfce4-panel").pictures;
    QCOMPARE(pictures.size(), size_t(1));
    QCOMPARE(pictures.front(), (OfferedPicture { ItemForm::Square, 22 }));
}

void HostTableTest::offersWaybarOneLine()
{
    const auto pictures = profileForProcess(u"waybar").pictures;
    QVERIFY(!pictures.empty());
    for (const OfferedPicture &picture : pictures)
        QCOMPARE(picture.form, ItemForm::OneLine);
}

void HostTableTest::offersMateTheWideViewAtEveryHeightOfItsPanels()
{
    const auto pictures = profileForProcess(u"notification-ar").pictures;
    for (int height = 20; height <= 30; ++height)
        QVERIFY(
            std::find(pictures.begin(), pictures.end(), OfferedPicture { ItemForm::Wide, height })
            != pictures.end());
}

void HostTableTest::labelsOnlyForGnome()
{
    for (const HostProfile &profile : allHostProfiles())
        QCOMPARE(profile.label, profile.name == "gnome-shell"_L1);
}

void HostTableTest::premultipliesOnlyForSwaybar()
{
    for (const HostProfile &profile : allHostProfiles())
        QCOMPARE(profile.premultiplied, profile.name == "swaybar"_L1);
}

void HostTableTest::offersAnUnknownHostWidesBeforeSquares()
{
    const auto pictures = mixedProfile().pictures;
    QVERIFY(std::is_partitioned(pictures.begin(), pictures.end(), [](const OfferedPicture &offer) {
        return offer.form == ItemForm::Wide;
    }));
    QCOMPARE(pictures.front().form, ItemForm::Wide);
    QCOMPARE(pictures.back().form, ItemForm::Square);
}

void HostTableTest::believesNoClickOfHostsThatTellTheirOwnCoordinates()
{
    for (const QString &process :
         { u"waybar"_s, u"notification-ar"_s, u"xapp-sn-watcher"_s, u""_s })
        QVERIFY(!profileForProcess(process).trustedClicks);
}

FERRIN_TEST(QCoreApplication, HostTableTest)
#include "test_hosttable.moc"
