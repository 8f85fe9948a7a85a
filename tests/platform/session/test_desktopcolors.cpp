// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktopcolors.h"
#include "platform/linux/session/systemappearance.h"
#include "tests/platform/session/fakeportal.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QTest>

#include <limits>
#include <optional>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QString portalGroup = u"org.freedesktop.appearance"_s;
const QString gnomeGroup = u"org.gnome.desktop.interface"_s;
const QString accessGroup = u"org.gnome.desktop.a11y.interface"_s;
const QString kdeGroup = u"org.kde.kdeglobals.General"_s;
const QString selectionGroup = u"org.kde.kdeglobals.Colors:Selection"_s;

/// Three numbers in a structure, as the portal gives its accent.
struct Triple
{
    double parts[3];
};

QDBusArgument &operator<<(QDBusArgument &argument, const Triple &triple)
{
    argument.beginStructure();
    argument << triple.parts[0] << triple.parts[1] << triple.parts[2];
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Triple &triple)
{
    argument.beginStructure();
    argument >> triple.parts[0] >> triple.parts[1] >> triple.parts[2];
    argument.endStructure();
    return argument;
}

QVariant triple(double red, double green, double blue)
{
    return QVariant::fromValue(Triple { { red, green, blue } });
}

AccentColor ofBytes(int red, int green, int blue)
{
    return { red / 255.0, green / 255.0, blue / 255.0 };
}

struct Fixture
{
    PrivateBus bus;
    FakePortal portal { bus.connect() };
    SystemAppearance appearance { bus.connect() };
};

} // namespace

Q_DECLARE_METATYPE(Triple)

class DesktopColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<QDBusVariant>();
        qDBusRegisterMetaType<Triple>();
    }

    void readsColorsAsKdeWritesThem()
    {
        QCOMPARE(accentOfKde(u"61,174,233"_s), ofBytes(61, 174, 233));
        QCOMPARE(accentOfKde(u"61,174,233,255"_s), ofBytes(61, 174, 233));
        for (const QString &none : { QString(), u"61,174"_s, u"blue"_s, u"1,2,3,4,5"_s, u"1,,3"_s })
            QCOMPARE(accentOfKde(none), std::nullopt);
        LogCapture log;
        QCOMPARE(accentOfKde(u"300,0,-1"_s), std::nullopt);
        QCOMPARE(log.takeCount(u"The desktop's accent is no colour"_s), 1);
    }

    void knowsGnomesAccentsByTheirNames()
    {
        QCOMPARE(accentOfGnome(u"blue"_s), ofBytes(0x35, 0x84, 0xe4));
        QCOMPARE(accentOfGnome(u"slate"_s), ofBytes(0x6f, 0x83, 0x96));
        QCOMPARE(accentOfGnome(u"default"_s), std::nullopt);
        QCOMPARE(accentOfGnome({}), std::nullopt);
    }

    void takesThePortalsAccentBeforeTheDesktopsOwn()
    {
        Fixture f;
        QCOMPARE(f.appearance.accent(), std::nullopt);
        f.portal.change(gnomeGroup, u"accent-color"_s, u"red"_s);
        QTRY_COMPARE(f.appearance.accent(), accentOfGnome(u"red"_s));
        f.portal.change(selectionGroup, u"BackgroundNormal"_s, u"1,2,3"_s);
        QTRY_COMPARE(f.appearance.accent(), ofBytes(1, 2, 3));
        f.portal.change(kdeGroup, u"AccentColor"_s, u"4,5,6"_s);
        QTRY_COMPARE(f.appearance.accent(), ofBytes(4, 5, 6));
        f.portal.change(portalGroup, u"accent-color"_s, triple(0.25, 0.5, 1));
        QTRY_COMPARE(f.appearance.accent(), (AccentColor { 0.25, 0.5, 1 }));
    }

    void readsTheAccentAtTheStart()
    {
        PrivateBus bus;
        FakePortal portal(bus.connect());
        portal.put(portalGroup, u"accent-color"_s, triple(1, 0, 0.5));
        const SystemAppearance appearance(bus.connect());
        QTRY_COMPARE(appearance.accent(), (AccentColor { 1, 0, 0.5 }));
    }

    void ignoresWhatIsNoColorWithOneLine_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("beyond red") << triple(1.5, 0, 0);
        QTest::newRow("less than none") << triple(0, -0.1, 0);
        QTest::newRow("not a number") << triple(0, 0, std::numeric_limits<double>::quiet_NaN());
        QTest::newRow("infinite") << triple(std::numeric_limits<double>::infinity(), 0, 0);
        QTest::newRow("how portals say none") << triple(-1, -1, -1);
    }

    void ignoresWhatIsNoColorWithOneLine()
    {
        QFETCH(QVariant, value);
        LogCapture log;
        Fixture f;
        f.portal.change(portalGroup, u"accent-color"_s, triple(0, 0, 1));
        QTRY_VERIFY(f.appearance.accent());
        f.portal.change(portalGroup, u"accent-color"_s, value);
        QTRY_VERIFY(!f.appearance.accent());
        QCOMPARE(log.takeCount(u"The desktop's accent is no colour"_s), 1);
    }

    void ignoresAnAccentOfAnotherShape_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("a text") << QVariant(u"#ff0000"_s);
        QTest::newRow("a number") << QVariant(1.0);
        QTest::newRow("texts") << QVariant(QStringList { u"1"_s, u"0"_s, u"0"_s });
        QTest::newRow("variants") << QVariant(QVariantList { 1.0, 0.0, 0.0 });
    }

    void ignoresAnAccentOfAnotherShape()
    {
        QFETCH(QVariant, value);
        Fixture f;
        f.portal.change(portalGroup, u"accent-color"_s, triple(0, 0, 1));
        QTRY_VERIFY(f.appearance.accent());
        f.portal.change(portalGroup, u"accent-color"_s, value);
        QTRY_VERIFY(!f.appearance.accent());
    }

    void followsThePortalsContrastBeforeGnomes()
    {
        Fixture f;
        QVERIFY(!f.appearance.isHighContrast());
        f.portal.change(accessGroup, u"high-contrast"_s, true);
        QTRY_VERIFY(f.appearance.isHighContrast());
        f.portal.change(portalGroup, u"contrast"_s, 0U);
        QTRY_VERIFY(!f.appearance.isHighContrast());
        f.portal.change(portalGroup, u"contrast"_s, 1U);
        QTRY_VERIFY(f.appearance.isHighContrast());
        // What is not known yet is none in particular; GNOME's own word holds.
        f.portal.change(accessGroup, u"high-contrast"_s, false);
        f.portal.change(portalGroup, u"contrast"_s, 2U);
        QTRY_VERIFY(!f.appearance.isHighContrast());
    }
};

FERRIN_TEST(QGuiApplication, DesktopColorsTest)
#include "test_desktopcolors.moc"
