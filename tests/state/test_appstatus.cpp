// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appstatus.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

static_assert(static_cast<int>(ButtonState::selected) == 0);
static_assert(static_cast<int>(ButtonState::hovered) == 1);
static_assert(static_cast<int>(ButtonState::none) == 2);

class AppStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithTheStatusSectionAndTheIconPage()
    {
        const AppStatus status;
        QCOMPARE(status.dashboardItemSelected(), DashboardMenuButton::status);
        QCOMPARE(status.settingsItemSelected(), SettingsMenuButton::icon);
    }

    void tellsReadersOfAnotherSection()
    {
        AppStatus status;
        int evaluations = 0;
        QProperty<DashboardMenuButton> dashboard([&] {
            ++evaluations;
            return status.dashboardItemSelected();
        });
        QProperty<SettingsMenuButton> settings([&] { return status.settingsItemSelected(); });

        status.setDashboardItemSelected(DashboardMenuButton::health);
        QCOMPARE(dashboard.value(), DashboardMenuButton::health);
        status.setSettingsItemSelected(SettingsMenuButton::about);
        QCOMPARE(settings.value(), SettingsMenuButton::about);
        QCOMPARE(evaluations, 2);
    }

    void tellsNobodyOfTheSectionThatIsSelectedAlready()
    {
        AppStatus status;
        int notifications = 0;
        const auto count = [&notifications] { ++notifications; };
        const auto a = status.bindableDashboardItemSelected().addNotifier(count);
        const auto b = status.bindableSettingsItemSelected().addNotifier(count);

        status.setDashboardItemSelected(DashboardMenuButton::status);
        status.setSettingsItemSelected(SettingsMenuButton::icon);
        QCOMPARE(notifications, 0);
        status.setDashboardItemSelected(DashboardMenuButton::adapter);
        status.setDashboardItemSelected(DashboardMenuButton::adapter);
        QCOMPARE(notifications, 1);
    }

    void existsOnceForTheProcess() { QCOMPARE(&AppStatus::shared(), &AppStatus::shared()); }

    void namesTheSections()
    {
        QCOMPARE(rawValue(DashboardMenuButton::status), u"status"_s);
        QCOMPARE(rawValue(DashboardMenuButton::health), u"health"_s);
        QCOMPARE(rawValue(DashboardMenuButton::adapter), u"adapter"_s);
        QCOMPARE(rawValue(DashboardMenuButton::settings), u"settings"_s);
        QCOMPARE(rawValue(SettingsMenuButton::general), u"general"_s);
        QCOMPARE(rawValue(SettingsMenuButton::icon), u"icon"_s);
        QCOMPARE(rawValue(SettingsMenuButton::support), u"support"_s);
        QCOMPARE(rawValue(SettingsMenuButton::about), u"about"_s);
        QCOMPARE(rawValue(SettingsMenuButton::quit), u"quit"_s);
    }
};

FERRIN_TEST(void, AppStatusTest)
#include "test_appstatus.moc"
