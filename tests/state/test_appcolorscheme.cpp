// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appcolorscheme.h"
#include "state/appcolorschemeprovider.h"
#include "state/applicationappearance.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <vector>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

class RecordingAppearance : public ApplicationAppearance
{
public:
    void setAppearance(std::optional<Appearance> appearance) override { set.push_back(appearance); }

    std::vector<std::optional<Appearance>> set;
};

} // namespace

class AppColorSchemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheThreeSchemesInTheirOrder()
    {
        QStringList texts;
        for (const AppColorScheme scheme : allAppColorSchemes())
            texts.append(rawValue(scheme));
        QCOMPARE(texts, QStringList({ u"System"_s, u"Light"_s, u"Dark"_s }));
    }

    void findsASchemeByItsText()
    {
        for (const AppColorScheme scheme : allAppColorSchemes())
            QCOMPARE(appColorSchemeFromRawValue(rawValue(scheme)), scheme);
        for (const QString &text : { u""_s, u"dark"_s, u"Dark "_s, u"Sepia"_s })
            QCOMPARE(appColorSchemeFromRawValue(text), std::nullopt);
    }

    void isSystemOnTheFirstStartAndWritesNothing()
    {
        MemoryDefaultsStore store;
        const AppColor color(store);
        QCOMPARE(color.scheme(), AppColorScheme::system);
        QCOMPARE(store.writes, QStringList());

        RecordingAppearance application;
        AppColorSchemeProvider().apply(color.scheme());
        QCOMPARE(application.set.size(), 1U);
        QCOMPARE(application.set.back(), std::nullopt);
    }

    void takesWhatIsNoneOfTheThreeTextsForSystem_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("another text") << QVariant(u"Sepia"_s);
        QTest::newRow("lower case") << QVariant(u"dark"_s);
        QTest::newRow("data") << QVariant(QByteArray("Dark"));
        QTest::newRow("number") << QVariant(2);
        QTest::newRow("bool") << QVariant(true);
    }

    void takesWhatIsNoneOfTheThreeTextsForSystem()
    {
        QFETCH(QVariant, value);
        MemoryDefaultsStore store;
        store.stored.insert(u"appColor"_s, value);
        QCOMPARE(AppColor(store).scheme(), AppColorScheme::system);
        QCOMPARE(store.writes, QStringList());
    }

    void storesTheChoiceAsItsText()
    {
        MemoryDefaultsStore store;
        AppColor color(store);
        QProperty<AppColorScheme> shown([&] { return color.scheme(); });

        color.setScheme(AppColorScheme::dark);
        QCOMPARE(store.stored, QVariantMap({ { u"appColor"_s, u"Dark"_s } }));
        QCOMPARE(shown.value(), AppColorScheme::dark);
        QCOMPARE(AppColor(store).scheme(), AppColorScheme::dark);
    }

    void followsWhatOthersInTheProcessWriteToTheStore()
    {
        MemoryDefaultsStore store;
        AppColor color(store);
        store.setObject(u"appColor"_s, u"Light"_s);
        QCOMPARE(color.scheme(), AppColorScheme::light);
        store.removeObject(u"appColor"_s);
        QCOMPARE(color.scheme(), AppColorScheme::system);
    }

    void clearsTheForcedAppearanceWhenTheSystemIsFollowedAgain()
    {
        RecordingAppearance application;
        const AppColorSchemeProvider provider;
        provider.apply(AppColorScheme::light);
        provider.apply(AppColorScheme::dark);
        provider.apply(AppColorScheme::system);
        const std::vector<std::optional<Appearance>> expected { Appearance::light, Appearance::dark,
                                                                std::nullopt };
        QCOMPARE(application.set, expected);
    }

    void reachesTheApplicationOnlyWhileItLives()
    {
        QCOMPARE(ApplicationAppearance::shared(), nullptr);
        {
            RecordingAppearance application;
            QCOMPARE(ApplicationAppearance::shared(), &application);
        }
        QCOMPARE(ApplicationAppearance::shared(), nullptr);
    }
};

FERRIN_TEST(void, AppColorSchemeTest)
#include "test_appcolorscheme.moc"
