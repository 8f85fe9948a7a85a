// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/plasmacolors.h"
#include "tests/platform/panelcolors/homeofsettings.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

#include <cstdio>
#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QColor breezeText(35, 38, 41);
const QColor nearlyWhite(252, 252, 252);

} // namespace

/// A home in which Plasma's settings are written as Plasma writes them.
class PlasmaColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<HomeOfSettings>(); }

    void knowsNothingBeforeItsStart()
    {
        PlasmaColors colors;
        colors.refresh();
        QVERIFY(!colors.text());
    }

    void isBreezesWhereNobodyChoseAnything() { QCOMPARE(readNow(), breezeText); }

    void isThatOfTheUsersColorScheme()
    {
        write(u"config/kdeglobals"_s, "[Colors:Window]\nForegroundNormal=252,252,252\n");
        QCOMPARE(readNow(), nearlyWhite);
    }

    void findsASchemeThatIsOnlyNamed()
    {
        write(u"config/kdeglobals"_s, "[General]\nColorScheme=Night\n");
        write(u"shared/color-schemes/Night.colors"_s,
              "[Colors:Window]\nForegroundNormal=252,252,252\n");
        QCOMPARE(readNow(), nearlyWhite);
    }

    void takesTheUsersOwnBeforeAGlobalThemes()
    {
        write(u"config/kdedefaults/kdeglobals"_s, "[Colors:Window]\nForegroundNormal=1,2,3\n");
        QCOMPARE(readNow(), QColor(1, 2, 3));
        write(u"config/kdeglobals"_s, "[Colors:Window]\nForegroundNormal=252,252,252\n");
        QCOMPARE(readNow(), nearlyWhite);
    }

    void takesTheColorsOfAThemeThatHasItsOwn()
    {
        write(u"config/kdeglobals"_s, "[Colors:Window]\nForegroundNormal=1,2,3\n");
        write(u"config/plasmarc"_s, "[Theme]\nname=midnight\n");
        write(u"shared/plasma/desktoptheme/midnight/colors"_s,
              "[Colors:Window]\nForegroundNormal=252,252,252\n");
        QCOMPARE(readNow(), nearlyWhite);
    }

    void ignoresAColorThatIsNone_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addRow("words") << QByteArray("a,b,c");
        QTest::addRow("too few") << QByteArray("1,2");
        QTest::addRow("too large") << QByteArray("1,2,256");
        QTest::addRow("nothing") << QByteArray();
    }

    void ignoresAColorThatIsNone()
    {
        QFETCH(QByteArray, value);
        write(u"config/kdeglobals"_s, "[Colors:Window]\nForegroundNormal=" + value + "\n");
        QCOMPARE(readNow(), breezeText);
    }

    void followsSettingsThatAreWrittenAnew()
    {
        write(u"config/kdeglobals"_s, "[Colors:Window]\nForegroundNormal=1,2,3\n");
        PlasmaColors colors;
        colors.start();
        QSignalSpy changes(&colors, &PlasmaColors::changed);
        // Of different lengths: a reader may take two of one length within a clock tick for one.
        for (const int red : { 77, 177, 7 }) {
            const QByteArray text
                = "[Colors:Window]\nForegroundNormal=" + QByteArray::number(red) + ",2,3\n";
            write(u"config/kdeglobals.new"_s, text);
            // In one go, as Plasma does it.
            const auto path
                = [this](const QString &name) { return QFile::encodeName(m_home->filePath(name)); };
            QCOMPARE(std::rename(path(u"config/kdeglobals.new"_s), path(u"config/kdeglobals"_s)),
                     0);
            QTRY_COMPARE(colors.text(), std::optional(QColor(red, 2, 3)));
        }
        QVERIFY(!changes.isEmpty());
    }

private:
    void write(const QString &name, const QByteArray &text) const { m_home->write(name, text); }

    static QColor readNow()
    {
        PlasmaColors colors;
        colors.start();
        return colors.text().value_or(QColor());
    }

    std::unique_ptr<HomeOfSettings> m_home;
};

FERRIN_TEST(QGuiApplication, PlasmaColorsTest)
#include "test_plasmacolors.moc"
