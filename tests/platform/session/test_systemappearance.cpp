// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/systemappearance.h"
#include "state/appcolorschemeprovider.h"
#include "tests/platform/session/fakeportal.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QString schemeGroup = u"org.freedesktop.appearance"_s;
const QString schemeKey = u"color-scheme"_s;
const QString gnomeGroup = u"org.gnome.desktop.interface"_s;
const QString kdeGroup = u"org.kde.kdeglobals.General"_s;

/// How many settings the portal is asked for.
constexpr int settings = 12;

struct Fixture
{
    PrivateBus bus;
    std::optional<FakePortal> portal;
    std::optional<SystemAppearance> appearance;

    void startPortal() { portal.emplace(bus.connect()); }
    void start() { appearance.emplace(bus.connect()); }
};

} // namespace

class SystemAppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setPalette(QPalette()); }

    void takesTheDesktopsPreference_data()
    {
        QTest::addColumn<QVariant>("scheme");
        QTest::addColumn<bool>("isDark");
        QTest::newRow("dark") << QVariant(1U) << true;
        QTest::newRow("light") << QVariant(2U) << false;
    }

    void takesTheDesktopsPreference()
    {
        QFETCH(QVariant, scheme);
        QFETCH(bool, isDark);
        Fixture f;
        f.startPortal();
        f.portal->put(schemeGroup, schemeKey, scheme);
        // So that the preference is the opposite of what the palette says.
        QGuiApplication::setPalette(QPalette(isDark ? Qt::white : Qt::black));
        f.start();
        QCOMPARE(f.appearance->isDark(), !isDark);
        QTRY_COMPARE(f.appearance->isDark(), isDark);
        QCOMPARE(f.appearance->isDesktopDark(), isDark);
    }

    void looksAtThePaletteWhereTheDesktopHasNoPreference_data()
    {
        QTest::addColumn<QVariant>("scheme");
        QTest::newRow("none") << QVariant(0U);
        QTest::newRow("a value to come") << QVariant(3U);
        QTest::newRow("a text") << QVariant(u"prefer-light"_s);
        QTest::newRow("a signed number") << QVariant(2);
        QTest::newRow("a list") << QVariant(QStringList { u"2"_s });
    }

    void looksAtThePaletteWhereTheDesktopHasNoPreference()
    {
        QFETCH(QVariant, scheme);
        Fixture f;
        f.startPortal();
        f.portal->put(schemeGroup, schemeKey, scheme);
        QGuiApplication::setPalette(QPalette(Qt::black));
        f.start();
        QTRY_COMPARE(f.portal->reads, settings);
        // The answer has come when a later one has.
        f.portal->change(gnomeGroup, u"font-name"_s, u"Marker 9"_s);
        QTRY_COMPARE(f.appearance->fontFamily(), u"Marker"_s);
        QVERIFY(f.appearance->isDark());
    }

    void takesNoLaterPaletteForTheDesktops()
    {
        Fixture f;
        f.start();
        // As title bars change it.
        QGuiApplication::setPalette(QPalette(Qt::black));
        f.appearance->setAppearance(Appearance::dark);
        f.appearance->setAppearance(std::nullopt);
        QVERIFY(!f.appearance->isDark());
    }

    void followsTheDesktopsChanges()
    {
        Fixture f;
        f.startPortal();
        f.portal->put(schemeGroup, schemeKey, 2U);
        f.start();
        QTRY_COMPARE(f.portal->reads, settings);
        QTRY_COMPARE(f.appearance->desktopPrefersDark(), std::optional(false));
        QProperty<bool> shown([&] { return f.appearance->isDark(); });
        QSignalSpy changed(&*f.appearance, &SystemAppearance::changed);

        f.portal->change(schemeGroup, schemeKey, 1U);
        QTRY_VERIFY(shown.value());
        QCOMPARE(changed.size(), 1);
        f.portal->change(schemeGroup, schemeKey, 2U);
        QTRY_VERIFY(!shown.value());
        QCOMPARE(changed.size(), 2);
    }

    void forcesWhatTheUserChose()
    {
        Fixture f;
        f.startPortal();
        f.portal->put(schemeGroup, schemeKey, 1U);
        f.start();
        QTRY_VERIFY(f.appearance->isDark());

        const AppColorSchemeProvider provider;
        provider.apply(AppColorScheme::light);
        QVERIFY(!f.appearance->isDark());
        QVERIFY(f.appearance->isDesktopDark());
        QCOMPARE(f.appearance->forcedAppearance(), Appearance::light);
        provider.apply(AppColorScheme::system);
        QVERIFY(f.appearance->isDark());
        QCOMPARE(f.appearance->forcedAppearance(), std::nullopt);
        f.portal->change(schemeGroup, schemeKey, 2U);
        QTRY_VERIFY(!f.appearance->isDark());
        provider.apply(AppColorScheme::dark);
        QVERIFY(f.appearance->isDark());
    }

    void tellsOfAForcedAppearanceOnce()
    {
        Fixture f;
        f.start();
        QSignalSpy changed(&*f.appearance, &SystemAppearance::changed);
        f.appearance->setAppearance(Appearance::dark);
        f.appearance->setAppearance(Appearance::dark);
        QCOMPARE(changed.size(), 1);
    }

    void takesTheFontFamilyAlone()
    {
        Fixture f;
        f.startPortal();
        f.portal->put(gnomeGroup, u"font-name"_s, u"Cantarell 11"_s);
        f.start();
        QCOMPARE(f.appearance->fontFamily(), QGuiApplication::font().family());
        QTRY_COMPARE(f.appearance->fontFamily(), u"Cantarell"_s);

        f.portal->change(gnomeGroup, u"font-name"_s, u"Noto Sans Bold 10"_s);
        QTRY_COMPARE(f.appearance->fontFamily(), u"Noto Sans"_s);
    }

    void takesKdesFontBeforeTheOther()
    {
        Fixture f;
        f.startPortal();
        f.portal->put(kdeGroup, u"font"_s, u"Hack,10,-1,5,50,0,0,0,0,0"_s);
        f.portal->put(gnomeGroup, u"font-name"_s, u"Cantarell 11"_s);
        f.start();
        QTRY_COMPARE(f.appearance->fontFamily(), u"Hack"_s);
    }

    void keepsTheToolkitsFontWhenTheDesktopsIsNoText()
    {
        Fixture f;
        f.startPortal();
        f.portal->put(gnomeGroup, u"font-name"_s, 11U);
        f.portal->put(schemeGroup, schemeKey, 1U);
        f.start();
        QTRY_VERIFY(f.appearance->isDark());
        QTRY_COMPARE(f.portal->reads, settings);
        QCOMPARE(f.appearance->fontFamily(), QGuiApplication::font().family());
    }

    void enlargesTextsAsTheDesktopDoes_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<double>("scale");
        const auto row
            = [](const char *what, const QString &group, const QString &key, const QVariant &value,
                 double scale) { QTest::newRow(what) << group << key << value << scale; };
        row("GNOME's factor", gnomeGroup, u"text-scaling-factor"_s, 1.25, 1.25);
        row("GNOME's font", gnomeGroup, u"font-name"_s, u"Cantarell 16.5"_s, 1.5);
        row("KDE's font", kdeGroup, u"font"_s, u"Noto Sans,20,-1,5,50,0,0,0,0,0"_s, 2);
    }

    void enlargesTextsAsTheDesktopDoes()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(double, scale);
        Fixture f;
        f.startPortal();
        f.start();
        QCOMPARE(f.appearance->textScale(), 1.0);
        const QSignalSpy changed(&*f.appearance, &SystemAppearance::changed);
        f.portal->change(group, key, value);
        QTRY_COMPARE(f.appearance->textScale(), scale);
        QCOMPARE(changed.size(), 1);
        // A setting that went wrong is none.
        f.portal->change(group, key, -7);
        QTRY_COMPARE(f.appearance->textScale(), 1.0);
    }

    void reducesMotionWhereTheDesktopAnimatesNothing_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("still");
        QTest::addColumn<QVariant>("moving");
        QTest::newRow("GNOME") << gnomeGroup << u"enable-animations"_s << QVariant(false)
                               << QVariant(true);
        QTest::newRow("KDE") << u"org.kde.kdeglobals.KDE"_s << u"AnimationDurationFactor"_s
                             << QVariant(u"0"_s) << QVariant(u"0.5"_s);
    }

    void reducesMotionWhereTheDesktopAnimatesNothing()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, still);
        QFETCH(QVariant, moving);
        Fixture f;
        f.startPortal();
        f.portal->put(group, key, still);
        f.start();
        QVERIFY(!f.appearance->reducesMotion());
        QTRY_VERIFY(f.appearance->reducesMotion());
        f.portal->change(group, key, moving);
        QTRY_VERIFY(!f.appearance->reducesMotion());
    }

    void doesNotWaitForAPortalThatHangs()
    {
        Fixture f;
        f.startPortal();
        f.portal->isHung = true;
        f.portal->put(schemeGroup, schemeKey, 1U);
        f.start();
        QTRY_COMPARE(f.portal->reads, settings);
        QVERIFY(!f.appearance->isDark());
        QCOMPARE(f.appearance->fontFamily(), QGuiApplication::font().family());

        f.portal->change(schemeGroup, schemeKey, 1U);
        QTRY_VERIFY(f.appearance->isDark());
    }

    void asksAPortalThatComesLaterOrComesBack()
    {
        Fixture f;
        f.start();
        QVERIFY(!f.appearance->isDark());
        f.startPortal();
        f.portal->put(schemeGroup, schemeKey, 1U);
        QTRY_VERIFY(f.appearance->isDark());

        f.portal.reset();
        f.startPortal();
        f.portal->put(schemeGroup, schemeKey, 2U);
        QTRY_VERIFY(!f.appearance->isDark());
        f.portal->change(schemeGroup, schemeKey, 1U);
        QTRY_VERIFY(f.appearance->isDark());
    }

    void ignoresSettingsThatItDidNotAskFor()
    {
        Fixture f;
        f.startPortal();
        f.start();
        QTRY_COMPARE(f.portal->reads, settings);
        f.portal->change(schemeGroup, u"a-key-to-come"_s, 1U);
        f.portal->change(u"org.example"_s, schemeKey, 1U);
        f.portal->change(gnomeGroup, u"font-name"_s, u"Marker 9"_s);
        QTRY_COMPARE(f.appearance->fontFamily(), u"Marker"_s);
        QVERIFY(!f.appearance->isDark());
    }

    void standsWithoutASessionBus()
    {
        SystemAppearance appearance { QDBusConnection(u"none"_s) };
        QVERIFY(!appearance.isDark());
        QCOMPARE(appearance.fontFamily(), QGuiApplication::font().family());
        appearance.setAppearance(Appearance::dark);
        QVERIFY(appearance.isDark());
    }

    void survivesTheEndOfTheBus()
    {
        Fixture f;
        f.startPortal();
        f.portal->put(schemeGroup, schemeKey, 1U);
        f.start();
        QTRY_VERIFY(f.appearance->isDark());
        f.bus.stop();
        QCoreApplication::processEvents();
        QVERIFY(f.appearance->isDark());
    }
};

FERRIN_TEST(QGuiApplication, SystemAppearanceTest)
#include "test_systemappearance.moc"
