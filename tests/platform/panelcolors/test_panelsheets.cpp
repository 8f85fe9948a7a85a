// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/lxqtcolors.h"
#include "platform/linux/panelcolors/waybarcolors.h"
#include "tests/platform/panelcolors/homeofsettings.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray darkSheet = "LXQtPanel #BackgroundWidget { background: #041b27; }\n"
                             "Plugin > QToolButton, Plugin > QWidget { color: #dedede; }";

} // namespace

/// The colours of panels that their users have configured.
class PanelSheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<HomeOfSettings>(); }

    void knowsNothingOfLxqtWithoutAnySettings() { QVERIFY(!lxqt()); }

    void lxqtsThemeTells()
    {
        write(u"config/lxqt/lxqt.conf"_s, "theme=night\n");
        write(u"shared/lxqt/themes/night/lxqt-panel.qss"_s, darkSheet);
        QCOMPARE(lxqt(), QColor(0xde, 0xde, 0xde));
    }

    void lxqtsThemeMayBeTheSystems()
    {
        write(u"config/lxqt/lxqt.conf"_s, "icon_theme=oxygen\n");
        write(u"system/lxqt/lxqt.conf"_s, "theme=night\n");
        write(u"shared/lxqt/themes/night/lxqt-panel.qss"_s, darkSheet);
        QCOMPARE(lxqt(), QColor(0xde, 0xde, 0xde));
    }

    void knowsNothingOfAThemeThatTakesThePalettesColors()
    {
        write(u"config/lxqt/lxqt.conf"_s, "theme=plain\n");
        write(u"shared/lxqt/themes/plain/lxqt-panel.qss"_s,
              "LXQtPanel #BackgroundWidget { background: palette(window); }");
        QVERIFY(!lxqt());
    }

    void whatTheUserGaveThePanelCountsMore()
    {
        write(u"config/lxqt/lxqt.conf"_s, "theme=night\n");
        write(u"shared/lxqt/themes/night/lxqt-panel.qss"_s, darkSheet);
        QSettings panel(m_home->filePath(u"config/lxqt/panel.conf"_s), QSettings::IniFormat);
        panel.setValue(u"panels"_s, QStringList { u"other"_s, u"panel1"_s });
        panel.setValue(u"other/background-color"_s, QColor(Qt::black));
        panel.setValue(u"panel1/plugins"_s, QStringList { u"taskbar"_s, u"statusnotifier"_s });
        panel.setValue(u"panel1/background-color"_s, QColor(Qt::white));
        panel.sync();
        // The theme's text would not read on it.
        QCOMPARE(lxqt(), QColor(Qt::black));
        panel.setValue(u"panel1/font-color"_s, QColor(0, 0, 80));
        panel.sync();
        QCOMPARE(lxqt(), QColor(0, 0, 80));
    }

    void followsLxqtsTheme()
    {
        write(u"config/lxqt/lxqt.conf"_s, "theme=night\n");
        write(u"shared/lxqt/themes/night/lxqt-panel.qss"_s, darkSheet);
        write(u"shared/lxqt/themes/day/lxqt-panel.qss"_s, "Plugin > QToolButton { color: black; }");
        LxqtColors colors;
        colors.start();
        const QSignalSpy changes(&colors, &FileColors::changed);
        write(u"config/lxqt/lxqt.conf"_s, "theme=day\n");
        QTRY_COMPARE(colors.text(), QColor(Qt::black));
        QCOMPARE(changes.size(), 1);
    }

    void waybarsSheetTells_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        QTest::addColumn<QColor>("expected");
        QTest::addRow("its bar") << QByteArray(
            "window#waybar { background: #f2f2f2; color: #202020; }")
                                 << QColor(0x20, 0x20, 0x20);
        QTest::addRow("its tray before its bar")
            << QByteArray("window#waybar { background: #f2f2f2; color: #202020; }\n"
                          "#clock, #tray { background-color: #000080; color: #eeeeee; }")
            << QColor(0xee, 0xee, 0xee);
        QTest::addRow("everything")
            << QByteArray("* { color: #eeeeee; }") << QColor(0xee, 0xee, 0xee);
        QTest::addRow("a ground under text that does not read")
            << QByteArray("* { color: white; }\nwindow#waybar { background-color: #fafafa; }")
            << QColor(Qt::black);
        QTest::addRow("a clear tray on a light bar") << QByteArray(
            "#tray { background: transparent; }\nwindow#waybar { background: white; }")
                                                     << QColor(Qt::black);
        QTest::addRow("half clear, as it comes") << QByteArray(
            "window#waybar { background-color: rgba(43, 48, 59, 0.4); color: #ffffff; }")
                                                 << QColor(Qt::white);
    }

    void waybarsSheetTells()
    {
        QFETCH(QByteArray, sheet);
        QFETCH(QColor, expected);
        write(u"config/waybar/style.css"_s, sheet);
        QCOMPARE(waybar({ u"waybar"_s }), expected);
    }

    void waybarsSheetMayBeGivenAtItsStart()
    {
        write(u"config/waybar/style.css"_s, "* { color: white; }");
        write(u"own.css"_s, "* { color: black; }");
        const QString own = m_home->filePath(u"own.css"_s);
        QCOMPARE(waybar({ u"waybar"_s, u"-s"_s, own }), QColor(Qt::black));
        QCOMPARE(waybar({ u"waybar"_s, u"--style"_s, own }), QColor(Qt::black));
        QCOMPARE(waybar({ u"waybar"_s, u"--style="_s + own }), QColor(Qt::black));
        QCOMPARE(waybar({ u"waybar"_s, u"-s"_s }), QColor(Qt::white));
    }

    void waybarMayHaveASheetForEachColorScheme()
    {
        write(u"config/waybar/style.css"_s, "* { color: red; }");
        write(u"config/waybar/style-dark.css"_s, "* { color: white; }");
        write(u"config/waybar/style-light.css"_s, "* { color: black; }");
        WaybarColors colors;
        colors.start();
        QCOMPARE(colors.text(), QColor(Qt::red));
        colors.setDesktopDark(true);
        QCOMPARE(colors.text(), QColor(Qt::white));
        colors.setDesktopDark(false);
        QCOMPARE(colors.text(), QColor(Qt::black));
    }

    void waybarsSheetMayImportAnotherByItsUrl()
    {
        write(u"colors.css"_s, "@define-color text #204060;");
        write(u"config/waybar/style.css"_s,
              "@import url(\"file://" + QFile::encodeName(m_home->filePath(u"colors.css"_s))
                  + "\");\n* { color: @text; }");
        QCOMPARE(waybar({ u"waybar"_s }), QColor(0x20, 0x40, 0x60));
    }

    void isUncertainOfBarsWhoseSheetsDisagree()
    {
        write(u"config/waybar/style.css"_s, "* { color: white; }");
        write(u"own.css"_s, "* { color: black; }");
        WaybarColors colors;
        colors.addBar(uint(QCoreApplication::applicationPid()), { u"waybar"_s });
        colors.start();
        QVERIFY(!colors.isUncertain());
        constexpr uint init = 1;
        colors.addBar(init, { u"waybar"_s, u"-s"_s, m_home->filePath(u"own.css"_s) });
        colors.refresh();
        QVERIFY(!colors.text());
        QVERIFY(colors.isUncertain());
    }

    void isUncertainOfBarsOfOneProcessThatTheSheetTellsApart()
    {
        const QByteArray dark = "window#waybar { background: black; color: white; }\n";
        for (const char *rule : { "window#waybar.bottom { background: white; color: black; }",
                                  "window#waybar.bottom { background: white; }",
                                  "window#waybar.bottom > box { background: white; }",
                                  "window#waybar.bottom #tray { color: #ffcc00; }" }) {
            write(u"config/waybar/style.css"_s, dark + rule);
            QVERIFY2(!waybar({ u"waybar"_s }), rule);
        }
    }

    void isCertainOfBarsInAnyStateThatLeavesTheirTextAsItIs()
    {
        write(u"config/waybar/style.css"_s,
              "window#waybar { background: #2b303b; color: white; }\n"
              "window#waybar.hidden { opacity: 0.2; }\n"
              "window#waybar.termite { background-color: #3f3f3f; }\n"
              "window#waybar.empty #window { background-color: transparent; }");
        QCOMPARE(waybar({ u"waybar"_s }), QColor(Qt::white));
    }

    void knowsNothingOfABarWithoutColors()
    {
        QVERIFY(!waybar({ u"waybar"_s }));
        write(u"config/waybar/style.css"_s, "* { font-size: 13px; }");
        QVERIFY(!waybar({ u"waybar"_s }));
    }

private:
    static std::optional<QColor> lxqt()
    {
        LxqtColors colors;
        colors.start();
        return colors.text();
    }

    static std::optional<QColor> waybar(const QStringList &arguments)
    {
        WaybarColors colors;
        colors.addBar(uint(QCoreApplication::applicationPid()), arguments);
        colors.start();
        return colors.text();
    }

    void write(const QString &name, const QByteArray &text) const { m_home->write(name, text); }

    std::unique_ptr<HomeOfSettings> m_home;
};

FERRIN_TEST(QCoreApplication, PanelSheetsTest)
#include "test_panelsheets.moc"
