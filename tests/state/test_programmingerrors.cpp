// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appcolorschemeprovider.h"
#include "state/bundle.h"
#include "state/filedefaultsstore.h"
#include "state/settingsdata.h"
#include "state/shareddefaults.h"
#include "tests/support/lastwords.h"
#include "tests/support/memorydefaultsstore.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

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

    void includeABundleWithoutAnIdentifier()
    {
        const QString words = u"The bundle has no identifier"_s;
        QCOMPARE(lastWords([] { (void)Bundle({}).identifier(); }), words);
        QCOMPARE(lastWords([] {
                     (void)Bundle({ { u"CFBundleIdentifier"_s, 1 } }).identifier();
                 }),
                 words);
        QCOMPARE(lastWords([] {
                     (void)Bundle({ { u"CFBundleIdentifier"_s, u""_s } }).identifier();
                 }),
                 words);
    }

    void includeAnEmptyListOfIcons()
    {
        const QString words = u"A list of available icons is empty"_s;
        const IconsOnOffer all = IconsOnOffer::fromCatalogues();
        QCOMPARE(lastWords([&] { startWith({ {}, all.charging, all.charged }); }), words);
        QCOMPARE(lastWords([&] { startWith({ all.discharging, {}, all.charged }); }), words);
        QCOMPARE(lastWords([&] { startWith({ all.discharging, all.charging, {} }); }), words);
    }

    void includeAColourSchemeBeforeTheApplicationHasStarted()
    {
        QCOMPARE(lastWords([] { AppColorSchemeProvider().apply(AppColorScheme::dark); }),
                 u"A colour scheme was applied before the application had started"_s);
    }
};

QTEST_APPLESS_MAIN(ProgrammingErrorsTest)
#include "test_programmingerrors.moc"
