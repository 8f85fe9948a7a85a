// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Content
{
    Content() { content = stage.show("MainContentView {}"); }

    /// The sections that are there, from back to front, by their first card's title.
    [[nodiscard]] QStringList sections() const
    {
        QStringList names;
        for (const char *type : { "StatusView", "HealthView", "PowerAdapterView" })
            for (qsizetype i = test::itemsOfType(content, type).size(); i > 0; --i)
                names.append(QLatin1String(type));
        return names;
    }
    [[nodiscard]] QQuickItem *loaderOf(const char *type) const
    {
        const auto found = test::itemsOfType(content, type);
        return found.isEmpty() ? nullptr : found.constFirst()->parentItem();
    }

    test::Stage stage;
    QQuickItem *content = nullptr;
};

} // namespace

class MainContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheSelectedSection_data()
    {
        QTest::addColumn<DashboardMenuButton>("section");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("status") << DashboardMenuButton::status << QStringList(u"StatusView"_s);
        QTest::newRow("health") << DashboardMenuButton::health << QStringList(u"HealthView"_s);
        QTest::newRow("adapter") << DashboardMenuButton::adapter
                                 << QStringList(u"PowerAdapterView"_s);
        QTest::newRow("nothing for the settings") << DashboardMenuButton::settings << QStringList();
    }

    void showsTheSelectedSection()
    {
        QFETCH(DashboardMenuButton, section);
        QFETCH(QStringList, shown);
        Content f;
        f.stage.status.setDashboardItemSelected(section);
        f.content = f.stage.show("MainContentView {}");
        QCOMPARE(f.sections(), shown);
        QCOMPARE(f.content->size(), QSizeF(210, 210));
    }

    void slidesAnotherSectionInWhileTheLastOneLeaves()
    {
        Content f;
        f.stage.status.setDashboardItemSelected(DashboardMenuButton::health);
        QCOMPARE(f.sections(), (QStringList { u"StatusView"_s, u"HealthView"_s }));
        QCOMPARE(f.loaderOf("HealthView")->opacity(), 0);
        QCOMPARE(f.loaderOf("HealthView")->x(), -210);
        QTRY_VERIFY(f.loaderOf("HealthView")->x() > -210 && f.loaderOf("StatusView")->x() > 0);
        QTRY_COMPARE(f.sections(), QStringList(u"HealthView"_s));
        QCOMPARE(f.loaderOf("HealthView")->opacity(), 1);
        QCOMPARE(f.loaderOf("HealthView")->x(), 0);
    }

    void endsWithTheLastOfSeveralQuickChoices()
    {
        Content f;
        for (const auto section : { DashboardMenuButton::health, DashboardMenuButton::adapter,
                                    DashboardMenuButton::status, DashboardMenuButton::adapter })
            f.stage.status.setDashboardItemSelected(section);
        QTRY_COMPARE(f.sections(), QStringList(u"PowerAdapterView"_s));
        QCOMPARE(f.loaderOf("PowerAdapterView")->x(), 0);
    }

    void movesNothingWhereTheDesktopAsksForThat()
    {
        Content f;
        f.stage.appearance.setReducesMotion(true);
        f.stage.status.setDashboardItemSelected(DashboardMenuButton::health);
        QCOMPARE(f.sections(), QStringList(u"HealthView"_s));
        QCOMPARE(f.loaderOf("HealthView")->opacity(), 1);
        QCOMPARE(f.loaderOf("HealthView")->x(), 0);
    }
};

FERRIN_TEST(QGuiApplication, MainContentTest)
#include "test_maincontent.moc"
