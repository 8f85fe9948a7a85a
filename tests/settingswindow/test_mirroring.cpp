// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/iconstage.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

QRectF placeOf(const QQuickItem *item)
{
    return item->mapRectToScene(item->boundingRect());
}

} // namespace

// The settings where one reads from right to left.
class MirroringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }

    void hasTheMenuAtTheRight()
    {
        IconStage f;
        f.view = f.show("SettingsScene {}");
        const QQuickItem *const menu = itemsOfType(f.view, "SettingsMenuView").constFirst();
        QCOMPARE(placeOf(menu).right(), f.view->width());
        const QQuickItem *const page = itemsOfType(f.view, "SettingsContentView").constFirst();
        QCOMPARE(placeOf(page).left(), 0.0);
    }

    void switchesAreOnAtTheLeft()
    {
        SettingsStage f;
        const auto knobOf = [&](const char *lines) {
            QQuickItem *const view
                = itemsOfType(f.show("GrowingScene { content: Item { implicitWidth: 300;"
                                     "implicitHeight: 40;"
                                     + QByteArray(lines) + "} }"),
                              "SwitchView")
                      .constFirst();
            const auto rounds = itemsOfType(view, "ferrin::RoundedRect");
            return std::pair(placeOf(rounds[0]), placeOf(rounds[1]));
        };
        const auto [trackOff, off] = knobOf("SwitchView { width: 300; label: ''; isOn: false }");
        QCOMPARE(trackOff.left(), 0.0);
        QVERIFY(off.center().x() > trackOff.center().x());
        const auto [trackOn, on] = knobOf("SwitchView { width: 300; label: ''; isOn: true }");
        QVERIFY(on.center().x() < trackOn.center().x());
    }

    void theThemePickersKeysLeadWhereTheyPoint()
    {
        SettingsStage f;
        QQuickItem *const picker
            = itemsOfType(f.show("GrowingScene { content: Item { implicitWidth: 500;"
                                 "implicitHeight: 120;"
                                 "ThemePicker { width: 460; focus: true } } }"),
                          "SegmentedPicker")
                  .constFirst();
        const QList<QQuickItem *> segments = itemsOfType(picker, "Pressable");
        QVERIFY(placeOf(segments[0]).left() > placeOf(segments[1]).left());
        segments[0]->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&f.window, Qt::Key_Left);
        QCOMPARE(f.window.activeFocusItem(), segments[1]);
        QCOMPARE(f.colorTheme.selectedScheme(), u"Light"_s);
        QTest::keyClick(&f.window, Qt::Key_Right);
        QCOMPARE(f.window.activeFocusItem(), segments[0]);
    }

    void theIconsLeaveThePreviewInSightAndAreWorkedByTheArrowsTheyLieAt()
    {
        IconStage f;
        f.view = f.show("SettingsScene {}");
        f.sections = itemsOfType(f.view, "SettingsMBISectionView");
        f.click(f.controlOf(0));
        const QQuickItem *const frame
            = visibleItemsOfType(f.window.contentItem(), "ferrin::PopoverFrame").constFirst();
        QVERIFY(placeOf(frame).left() > placeOf(f.previewOf(0)).right());

        const QList<QQuickItem *> icons = f.iconButtons();
        QVERIFY(placeOf(icons[0]).left() > placeOf(icons[1]).left());
        icons[0]->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&f.window, Qt::Key_Left);
        QCOMPARE(f.window.activeFocusItem(), icons[1]);
        QTest::keyClick(&f.window, Qt::Key_Right);
        QCOMPARE(f.window.activeFocusItem(), icons[0]);
    }

    void scrollsFromTheRight()
    {
        SettingsStage f;
        QQuickItem *const view = f.show(
            "GrowingScene { content: Item { implicitWidth: 300; implicitHeight: 40;"
            "Item { objectName: 'first'; anchors.right: parent.left; width: 30; height: 30 }"
            "} }");
        f.appearance.setTextScale(2);
        f.window.resize(300, 80);
        view->setSize({ 300, 80 });
        const auto *first = view->findChild<QQuickItem *>(u"first"_s);
        // Mirrored, it lies beyond the right edge, where nothing is scrolled away.
        QCOMPARE(placeOf(first).left(), 300.0);
    }
};

FERRIN_TEST(QGuiApplication, MirroringTest)
#include "test_mirroring.moc"
