// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appcolorschemeprovider.h"
#include "state/bundle.h"
#include "state/filedefaultsstore.h"
#include "state/settingsdata.h"
#include "state/shareddefaults.h"
#include "tests/support/lastwords.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"

#include <QJsonObject>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

using TextOfBundle = QString (Bundle::*)() const;

void startWith(const IconsOnOffer &icons)
{
    MemoryDefaultsStore store;
    const SettingsData settings(store, Bundle::main(), icons);
}

} // namespace

class ProgrammingErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void includeAskingForAStoreBeforeOneWasHandedOver()
    {
        QCOMPARE(lastWords([] { (void)sharedDefaults(); }),
                 u"The defaults store has not been opened"_s);
    }

    void doNotIncludeAskingForTheStoreThatWasHandedOver()
    {
        auto store = std::make_unique<MemoryDefaultsStore>();
        const DefaultsStore *const expected = store.get();
        setSharedDefaults(std::move(store));
        QCOMPARE(&sharedDefaults(), expected);
        setSharedDefaults(nullptr);
    }

    void includeOpeningAStoreThatHasNoPlace_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("suite");
        QTest::newRow("no suite name") << u"/tmp"_s << QString();
        QTest::newRow("no configuration folder") << QString() << u"org.ferrin.Test"_s;
        QTest::newRow("a relative folder") << u"config"_s << u"org.ferrin.Test"_s;
        QTest::newRow("a path for a suite name") << u"/tmp"_s << u"../x"_s;
    }

    void includeOpeningAStoreThatHasNoPlace()
    {
        QFETCH(QString, folder);
        QFETCH(QString, suite);
        QCOMPARE(lastWords([&] { (void)FileDefaultsStore::open(folder, suite); }),
                 u"The defaults store \"%1\" cannot be opened in the folder \"%2\""_s.arg(suite,
                                                                                          folder));
    }

    void includeABundleWithoutARequiredKey_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<TextOfBundle>("text");
        QTest::addColumn<QString>("words");
        QTest::newRow("identifier")
            << u"CFBundleIdentifier"_s << &Bundle::identifier << u"The bundle has no identifier"_s;
        QTest::newRow("name") << u"CFBundleName"_s << &Bundle::name << u"The bundle has no name"_s;
        QTest::newRow("version") << u"CFBundleShortVersionString"_s << &Bundle::shortVersion
                                 << u"The bundle has no version"_s;
        QTest::newRow("build number")
            << u"CFBundleVersion"_s << &Bundle::buildNumber << u"The bundle has no build number"_s;
    }

    void includeABundleWithoutARequiredKey()
    {
        QFETCH(QString, key);
        QFETCH(TextOfBundle, text);
        QFETCH(QString, words);
        for (const QJsonObject &information :
             { QJsonObject(), QJsonObject { { key, 1 } }, QJsonObject { { key, u""_s } } })
            QCOMPARE(lastWords([&] { (void)(Bundle(information).*text)(); }), words);
    }

    void includeAnEmptyListOfIcons()
    {
        const QString words = u"A list of available icons is empty"_s;
        const IconsOnOffer all = IconsOnOffer::fromCatalogues();
        QCOMPARE(lastWords([&] { startWith({ {}, all.charging, all.charged }); }), words);
        QCOMPARE(lastWords([&] { startWith({ all.discharging, {}, all.charged }); }), words);
        QCOMPARE(lastWords([&] { startWith({ all.discharging, all.charging, {} }); }), words);
    }

    void includeAColorSchemeBeforeTheApplicationHasStarted()
    {
        QCOMPARE(lastWords([] { AppColorSchemeProvider().apply(AppColorScheme::dark); }),
                 u"A colour scheme was applied before the application had started"_s);
    }
};

FERRIN_TEST(void, ProgrammingErrorsTest)
#include "test_programmingerrors.moc"
