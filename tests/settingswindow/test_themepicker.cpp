// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/stage.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Picker
{
    explicit Picker(const QVariant &stored = {})
    {
        if (stored.isValid())
            stage.store.setObject(u"appColor"_s, stored);
        stage.show("Item { width: 500; height: 120\n"
                   "ThemePicker { width: 460; focus: true } }");
        view = test::itemsOfType(stage.item.get(), "ThemePicker").constFirst();
        picker = test::itemsOfType(view, "SegmentedPicker").constFirst();
        segments = test::itemsOfType(picker, "Pressable");
    }

    [[nodiscard]] QString selected() const { return view->property("selectedScheme").toString(); }
    /// The texts of the segments that are drawn as chosen.
    [[nodiscard]] QStringList marked()
    {
        QStringList texts;
        for (QQuickItem *const segment : segments) {
            for (const QQuickItem *const part : segment->childItems()) {
                if (part->isVisible()
                    && part->property("color").value<QColor>().name() == stage.colorNamed("accent"))
                    texts += test::textsOf(segment);
            }
        }
        return texts;
    }
    void press(Qt::Key key) { QTest::keyClick(&stage.window, key); }
    [[nodiscard]] bool activate()
    {
        stage.window.requestActivate();
        return QTest::qWaitForWindowActive(&stage.window);
    }

    test::SettingsStage stage;
    QQuickItem *view = nullptr;
    QQuickItem *picker = nullptr;
    QList<QQuickItem *> segments;
};

constexpr int systemScheme = 0;
constexpr int light = 1;
constexpr int dark = 2;

} // namespace

class ThemePickerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersTheSchemesInTheirOrder()
    {
        Picker f;
        QCOMPARE(test::textsOf(f.view),
                 (QStringList { u"Color theme"_s, u"Pick a theme"_s, u"System"_s, u"Light"_s,
                                u"Dark"_s }));
        QCOMPARE(f.picker->width(), 280);
    }

    void beginsWithWhatIsStored_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("selected");
        QTest::newRow("nothing") << QVariant() << u"System"_s;
        QTest::newRow("system") << QVariant(u"System"_s) << u"System"_s;
        QTest::newRow("light") << QVariant(u"Light"_s) << u"Light"_s;
        QTest::newRow("dark") << QVariant(u"Dark"_s) << u"Dark"_s;
        QTest::newRow("another text") << QVariant(u"dark"_s) << u"System"_s;
        QTest::newRow("no text") << QVariant(2) << u"System"_s;
    }

    void beginsWithWhatIsStored()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, selected);
        Picker f(stored);
        QCOMPARE(f.selected(), selected);
        QCOMPARE(f.marked(), QStringList { selected });
    }

    void storesAndAppliesAChoiceAtOnce()
    {
        Picker f;
        f.stage.click(f.segments[dark]);
        QCOMPARE(f.stage.store.stored.value(u"appColor"_s), QVariant(u"Dark"_s));
        QCOMPARE(f.stage.appearance.forced, Appearance::dark);
        QCOMPARE(f.marked(), QStringList { u"Dark"_s });
        f.stage.click(f.segments[light]);
        QCOMPARE(f.stage.store.stored.value(u"appColor"_s), QVariant(u"Light"_s));
        QCOMPARE(f.stage.appearance.forced, Appearance::light);
    }

    void repaintsTheOpenWindowInTheColorsChosen()
    {
        Picker f;
        const QString before = f.stage.picture().pixelColor(230, 10).name();
        f.stage.click(f.segments[dark]);
        const QString ground = f.stage.colorNamed("settingsRectangle");
        QVERIFY(ground != before);
        QTRY_COMPARE(f.stage.picture().pixelColor(230, 10).name(), ground);
    }

    void followsTheDesktopAgainWhenDarkGivesWayToSystem()
    {
        Picker f;
        f.stage.click(f.segments[dark]);
        f.stage.click(f.segments[systemScheme]);
        QCOMPARE(f.stage.appearance.forced, std::nullopt);
        QCOMPARE(f.stage.store.stored.value(u"appColor"_s), QVariant(u"System"_s));
        QCOMPARE(f.marked(), QStringList { u"System"_s });
    }

    void showsAChoiceThatWasMadeElsewhere()
    {
        Picker f;
        f.stage.store.setObject(u"appColor"_s, u"Light"_s);
        QCOMPARE(f.marked(), QStringList { u"Light"_s });
    }

    void takesNoTextThatNamesNoScheme()
    {
        Picker f;
        f.stage.colorTheme.setSelectedScheme(u"Sepia"_s);
        QVERIFY(!f.stage.store.stored.contains(u"appColor"_s));
        QCOMPARE(f.selected(), u"System"_s);
    }

    void isPickedByArrowKeysFromEndToEnd()
    {
        Picker f;
        QVERIFY(f.activate());
        f.press(Qt::Key_Tab);
        QVERIFY(f.segments[systemScheme]->hasActiveFocus());
        f.press(Qt::Key_Left);
        QCOMPARE(f.selected(), u"System"_s);
        f.press(Qt::Key_Right);
        QCOMPARE(f.selected(), u"Light"_s);
        QVERIFY(f.segments[light]->hasActiveFocus());
        f.press(Qt::Key_Down);
        QCOMPARE(f.selected(), u"Dark"_s);
        f.press(Qt::Key_Right);
        QCOMPARE(f.selected(), u"Dark"_s);
        f.press(Qt::Key_Up);
        QCOMPARE(f.selected(), u"Light"_s);
        f.press(Qt::Key_Left);
        QCOMPARE(f.selected(), u"System"_s);
        QCOMPARE(f.stage.appearance.forced, std::nullopt);
    }

    void isOneStopOfTheTabKey()
    {
        Picker f(u"Light"_s);
        f.stage.show("Column { width: 500; height: 200; ThemePicker { width: 460 }\n"
                     "ProminentButton { text: \"Next\" } }");
        f.picker = test::itemsOfType(f.stage.item.get(), "SegmentedPicker").constFirst();
        f.segments = test::itemsOfType(f.picker, "Pressable");
        QVERIFY(f.activate());
        f.press(Qt::Key_Tab);
        QVERIFY(f.segments[light]->hasActiveFocus());
        f.press(Qt::Key_Tab);
        QQuickItem *const next
            = test::itemsOfType(f.stage.item.get(), "ProminentButton").constFirst();
        QVERIFY(next->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Backtab);
        QVERIFY(f.segments[light]->hasActiveFocus());
    }

    void tellsItselfAsOneOfThree()
    {
        Picker f(u"Dark"_s);
        QCOMPARE(test::spokenNameOf(f.picker), u"Pick a theme"_s);
        QCOMPARE(test::spokenRoleOf(f.picker), QAccessible::Grouping);
        QStringList names;
        for (QQuickItem *const segment : f.segments) {
            QCOMPARE(test::spokenRoleOf(segment), QAccessible::RadioButton);
            const auto *const spoken = QAccessible::queryAccessibleInterface(segment);
            names.append(test::spokenNameOf(segment)
                         + (spoken->state().checked ? u", checked"_s : QString()));
        }
        QCOMPARE(names, (QStringList { u"System"_s, u"Light"_s, u"Dark, checked"_s }));
    }
};

FERRIN_TEST(QGuiApplication, ThemePickerTest)
#include "test_themepicker.moc"
