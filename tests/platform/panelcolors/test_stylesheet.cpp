// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/stylesheet.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class StyleSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsColors_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QColor>("expected");
        QTest::addRow("six digits") << QByteArray("#102030") << QColor(16, 32, 48);
        QTest::addRow("three digits") << QByteArray("#fff") << QColor(Qt::white);
        QTest::addRow("eight digits") << QByteArray("#10203080") << QColor(16, 32, 48, 128);
        QTest::addRow("rgb") << QByteArray("rgb(1, 2, 3)") << QColor(1, 2, 3);
        QTest::addRow("percent") << QByteArray("rgba(0, 0, 0, 100%)") << QColor(0, 0, 0);
        QTest::addRow("part") << QByteArray("rgba(0, 0, 0, 0.2)") << QColor(0, 0, 0, 51);
        QTest::addRow("of 255") << QByteArray("rgba(0, 0, 0, 51)") << QColor(0, 0, 0, 51);
        QTest::addRow("no part") << QByteArray("rgba(0, 0, 0, nan)") << QColor(0, 0, 0, 0);
        QTest::addRow("name") << QByteArray("white") << QColor(Qt::white);
        QTest::addRow("defined") << QByteArray("@base") << QColor(30, 30, 46);
        QTest::addRow("defined twice over") << QByteArray("@bar") << QColor(30, 30, 46);
        QTest::addRow("dimmed") << QByteArray("alpha(@base, 0.2)") << QColor(30, 30, 46, 51);
        QTest::addRow("gradient") << QByteArray("qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 "
                                                "#101010, stop:1 #303030)")
                                  << QColor(0x20, 0x20, 0x20);
        QTest::addRow("shorthand") << QByteArray("#102030 none repeat") << QColor(16, 32, 48);
    }

    void readsColors()
    {
        QFETCH(QByteArray, value);
        QFETCH(QColor, expected);
        write("panel.css",
              "@define-color base #1e1e2e;\n@define-color bar @base;\n#tray { color: " + value
                  + "; }");
        const auto read = sheet().color(u"#tray"_s, u"color"_s);
        QVERIFY(read);
        QCOMPARE(read->rgba(), expected.rgba());
    }

    void leavesOutWhatItDoesNotUnderstand_data()
    {
        QTest::addColumn<QByteArray>("value");
        for (const char *value :
             { "palette(window)", "url(red.png)", "inherit", "@nowhere", "@loop", "rgb(a, b, c)",
               "rgb(1, 2)", "rgb(1, 2, 256)", "#12", "" })
            QTest::addRow("%s", value) << QByteArray(value);
    }

    void leavesOutWhatItDoesNotUnderstand()
    {
        QFETCH(QByteArray, value);
        write("panel.css", "@define-color loop @loop;\n* { color: " + value + "; }");
        QVERIFY(!sheet().color(u"*"_s, u"color"_s));
    }

    void theLastRuleWins()
    {
        write("panel.css",
              "#clock,\n#tray { color: red; } /* #tray { color: blue; } */\n"
              "#tray { background-color: white; color: black }");
        QCOMPARE(sheet().color(u"#tray"_s, u"color"_s), QColor(Qt::black));
        QCOMPARE(sheet().color(u"#clock"_s, u"color"_s), QColor(Qt::red));
        QCOMPARE(sheet().ground(u"#tray"_s), QColor(Qt::white));
        QVERIFY(!sheet().color(u"#battery"_s, u"color"_s));
    }

    void importsNothingByANameThatIsNone()
    {
        // Qt warns of a name with a NUL, which fails the test.
        write("panel.css", QByteArray("@import \"/a\0b\"; * { color: white }", 34));
        QCOMPARE(sheet().color(u"*"_s, u"color"_s), QColor(Qt::white));
        QCOMPARE(sheet().files().size(), 1);
    }

    void readsRulesWithinConditions()
    {
        write(
            "panel.css",
            "@media (x) { @y 1; #tray { color: red } #clock { color: blue } } * { color: white }");
        QCOMPARE(sheet().color(u"#tray"_s, u"color"_s), QColor(Qt::red));
        QCOMPARE(sheet().color(u"#clock"_s, u"color"_s), QColor(Qt::blue));
        QCOMPARE(sheet().color(u"*"_s, u"color"_s), QColor(Qt::white));
    }

    void isNotHeldUpByAnySheet_data()
    {
        QTest::addColumn<QByteArray>("text");
        constexpr int many = 250'000;
        QTest::addRow("spaces") << "@import a" + QByteArray(many, ' ') + "b;";
        QTest::addRow("open colours")
            << "#tray{color:" + QByteArray("rgb(").repeated(many / 4) + "}";
        QTest::addRow("selectors and declarations") << QByteArray("a,").repeated(many / 2)
                + "#tray{" + QByteArray("b:c;").repeated(many / 4) + "}";
        QTest::addRow("a definition of itself")
            << "@define-color a" + QByteArray(" @a").repeated(100) + ";#tray{color:@a}";
    }

    void isNotHeldUpByAnySheet()
    {
        // What grows with the square of a sheet's size, or faster, takes minutes or does not end.
        QFETCH(QByteArray, text);
        write("panel.css", text);
        QVERIFY(!sheet().color(u"#tray"_s, u"color"_s));
    }

    void readsWhatIsImported()
    {
        write("colours.css", "@import \"panel.css\"; @define-color text #010203;");
        write("panel.css",
              "@import url('colours.css');\n@import \"gone.css\";\n"
              "window#waybar { color: @text; }");
        QCOMPARE(sheet().color(u"window#waybar"_s, u"color"_s), QColor(1, 2, 3));
        QCOMPARE(sheet().files().size(), 2);
    }

    void isEmptyWithoutAFile()
    {
        QVERIFY(!StyleSheet::read(u"/nowhere"_s).ground(u"*"_s));
        QVERIFY(StyleSheet::read(u"/"_s).files().isEmpty());
        QVERIFY(StyleSheet::read({}).files().isEmpty());
    }

private:
    void write(const char *name, const QByteArray &text) const
    {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    [[nodiscard]] StyleSheet sheet() const
    {
        return StyleSheet::read(m_folder.filePath(u"panel.css"_s));
    }

    QTemporaryDir m_folder;
};

FERRIN_TEST(QCoreApplication, StyleSheetTest)
#include "test_stylesheet.moc"
