// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/popoverdesktop.h"
#include "quick/titlebar.h"
#include "tests/support/chosenappearance.h"
#include "tests/support/testmain.h"

#include <QTest>
#include <QWindow>

using namespace ferrin;

namespace {

struct FakeDesktop final : PopoverDesktop
{
    void setTitleBarDark(QWindow &, bool isDark) override { hints.append(isDark); }

    QList<bool> hints;
};

} // namespace

class TitleBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsDarkAsTheContentBeforeTheWindowIsShown()
    {
        test::ChosenAppearance appearance;
        appearance.setAppearance(Appearance::dark);
        FakeDesktop desktop;
        QWindow window;
        const TitleBar bar(window, desktop);
        QVERIFY(desktop.hints.isEmpty());
        window.create();
        QCOMPARE(desktop.hints, QList<bool> { true });
    }

    void followsTheAppearanceWhileTheWindowIsOpen()
    {
        test::ChosenAppearance appearance;
        FakeDesktop desktop;
        QWindow window;
        const TitleBar bar(window, desktop);
        // Nobody sees the window yet.
        appearance.setAppearance(Appearance::dark);
        QVERIFY(desktop.hints.isEmpty());
        window.show();
        appearance.setAppearance(Appearance::light);
        appearance.setAppearance(Appearance::dark);
        QCOMPARE(desktop.hints, (QList<bool> { true, false, true }));
    }
};

FERRIN_TEST(QGuiApplication, TitleBarTest)
#include "test_titlebar.moc"
