// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/iconcatalogues.h"
#include "state/settingsdata.h"
#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QString current = u"Current release: 2.0"_s;

Bundle release(const QString &version)
{
    return Bundle({ { u"CFBundleIdentifier"_s, u"org.ferrin.Test"_s },
                    { u"CFBundleShortVersionString"_s, version } });
}

/// A store as release 2.0 leaves it after a start, so that only the changes of a test are logged.
struct Fixture
{
    MemoryDefaultsStore store;
    LogCapture log;

    Fixture()
    {
        store.stored = { { u"dischargingIconSelected"_s, QByteArray(R"("battery2V")") },
                         { u"chargingIconSelected"_s, QByteArray(R"("bolt.fill")") },
                         { u"chargedIconSelected"_s, QByteArray(R"("poweroutlet.type.c")") },
                         { u"releaseVersionNumber"_s, u"2.0"_s } };
    }

    std::unique_ptr<SettingsData> start()
    {
        return std::make_unique<SettingsData>(store, release(u"2.0"_s));
    }
};

QStringList lines(std::initializer_list<QString> texts)
{
    QStringList all;
    for (const QString &text : texts)
        all.append(u"info: "_s + text);
    return all;
}

} // namespace

class SettingsDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheFirstIconsAndTheReleaseOnTheFirstRun()
    {
        LogCapture log;
        MemoryDefaultsStore store;
        SettingsData settings(store, release(u"2.0"_s));

        QCOMPARE(store.stored,
                 QVariantMap({ { u"dischargingIconSelected"_s, QByteArray(R"("battery1V")") },
                               { u"chargingIconSelected"_s, QByteArray(R"("battery1V")") },
                               { u"chargedIconSelected"_s, QByteArray(R"("battery1V")") },
                               { u"releaseVersionNumber"_s, u"2.0"_s } }));
        QCOMPARE(log.take(), lines({ current }));
    }

    void writesInTheOrderOfTheStates()
    {
        LogCapture log;
        MemoryDefaultsStore store;
        SettingsData settings(store, release(u"2.0"_s));

        QCOMPARE(store.writes,
                 QStringList({ u"dischargingIconSelected"_s, u"chargingIconSelected"_s,
                               u"chargedIconSelected"_s, u"releaseVersionNumber"_s }));
        log.ignoreRest();
    }

    void keepsTheUsersChoicesAndWritesNothingOnALaterRun()
    {
        Fixture f;
        const auto settings = f.start();

        QCOMPARE(settings->dischargingIconSelected(), Icon::battery2V);
        QCOMPARE(settings->chargingIconSelected(), Icon::boltFill);
        QCOMPARE(settings->chargedIconSelected(), Icon::poweroutletTypeC);
        QCOMPARE(settings->releaseVersionNumber(), u"2.0"_s);
        QCOMPARE(f.store.writes, QStringList());
        QCOMPARE(f.log.take(), lines({ current }));
    }

    void logsThePreviousReleaseSecondAfterAnUpgrade()
    {
        Fixture f;
        f.store.stored[u"releaseVersionNumber"_s] = u"1.4"_s;
        const auto settings = f.start();

        QCOMPARE(f.log.take(), lines({ current, u"Previous release: 1.4"_s }));
        QCOMPARE(f.store.stored[u"releaseVersionNumber"_s], QVariant(u"2.0"_s));
        QCOMPARE(settings->releaseVersionNumber(), u"2.0"_s);
    }

    void replacesAStoredIconThatItsStateDoesNotOffer()
    {
        Fixture f;
        f.store.stored[u"dischargingIconSelected"_s] = QByteArray(R"("battery1HWithBolt")");
        f.store.stored[u"chargingIconSelected"_s] = QByteArray(R"("arrow.up.to.line.circle")");
        f.store.stored[u"chargedIconSelected"_s] = QByteArray(R"("arrow.up.square")");
        const auto settings = f.start();

        QCOMPARE(settings->dischargingIconSelected(), Icon::battery1V);
        QCOMPARE(settings->chargingIconSelected(), Icon::battery1V);
        QCOMPARE(settings->chargedIconSelected(), Icon::battery1V);
        QCOMPARE(f.store.stored[u"chargedIconSelected"_s], QVariant(QByteArray(R"("battery1V")")));
        QCOMPARE(f.log.take(), lines({ current }));
    }

    void writesTheDefaultOverDataThatCannotBeDecoded_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("not JSON") << QByteArray("\x00\xff{", 3);
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no quotes") << QByteArray("battery1V");
        QTest::newRow("cut short") << QByteArray("\"battery");
        QTest::newRow("a number") << QByteArray("7");
        QTest::newRow("two texts") << QByteArray(R"("bolt","bolt")");
        QTest::newRow("an array") << QByteArray(R"(["bolt"])");
        QTest::newRow("an icon of another release") << QByteArray(R"("flame")");
    }

    void writesTheDefaultOverDataThatCannotBeDecoded()
    {
        QFETCH(QByteArray, data);
        Fixture f;
        f.store.stored[u"chargingIconSelected"_s] = data;
        const auto settings = f.start();

        QCOMPARE(f.log.take(),
                 QStringList({ u"error: Unable to decode key chargingIconSelected"_s,
                               u"info: "_s + current }));
        QCOMPARE(f.store.stored[u"chargingIconSelected"_s], QVariant(QByteArray(R"("battery1V")")));
        QCOMPARE(settings->chargingIconSelected(), Icon::battery1V);
    }

    void takesAValueOfAnotherTypeInEveryKeyForAbsent_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("bool") << QVariant(true);
        QTest::newRow("text for data, data for text") << QVariant();
        QTest::newRow("list") << QVariant(QVariantList { 1, 2 });
    }

    void takesAValueOfAnotherTypeInEveryKeyForAbsent()
    {
        QFETCH(QVariant, value);
        Fixture f;
        for (const char *key :
             { "dischargingIconSelected", "chargingIconSelected", "chargedIconSelected" })
            f.store.stored[QString::fromLatin1(key)]
                = value.isValid() ? value : QVariant(u"\"bolt\""_s);
        f.store.stored[u"releaseVersionNumber"_s]
            = value.isValid() ? value : QVariant(QByteArray("1.0"));
        f.store.stored[u"statusItemWidth"_s] = value.isValid() ? value : QVariant(u"77"_s);
        const auto settings = f.start();

        QCOMPARE(settings->dischargingIconSelected(), Icon::battery1V);
        QCOMPARE(settings->chargingIconSelected(), Icon::battery1V);
        QCOMPARE(settings->chargedIconSelected(), Icon::battery1V);
        QCOMPARE(settings->releaseVersionNumber(), u"2.0"_s);
        QCOMPARE(settings->statusItemWidth(), 48.0F);
        QCOMPARE(f.log.take(), lines({ current }));
    }

    void readsFortyEightForAWidthThatWasNeverWritten()
    {
        Fixture f;
        const auto settings = f.start();

        QCOMPARE(settings->statusItemWidth(), 48.0F);
        QVERIFY(!f.store.stored.contains(u"statusItemWidth"_s));
        f.log.ignoreRest();
    }

    void storesTheWidthAsANumber()
    {
        Fixture f;
        const auto settings = f.start();

        settings->setStatusItemWidth(61.5F);
        QCOMPARE(settings->statusItemWidth(), 61.5F);
        QCOMPARE(f.store.number(u"statusItemWidth"_s), 61.5);
        f.log.ignoreRest();
    }

    void storesEveryIconAsAJsonText()
    {
        Fixture f;
        const auto settings = f.start();

        for (const Icon icon : allIcons()) {
            settings->setChargedIconSelected(icon);
            QCOMPARE(f.store.data(u"chargedIconSelected"_s), '"' + rawValue(icon).toLatin1() + '"');
            QCOMPARE(settings->chargedIconSelected(), icon);
        }
        f.log.ignoreRest();
    }

    void storesNothingForAnIconThatCannotBeEncoded()
    {
        Fixture f;
        const auto settings = f.start();
        (void)f.log.take();
        int notifications = 0;
        const auto notifier = settings->bindableDischargingIconSelected().addNotifier(
            [&notifications] { ++notifications; });

        settings->setDischargingIconSelected(static_cast<Icon>(52));
        QCOMPARE(f.log.take(),
                 QStringList { u"error: Unable to encode key dischargingIconSelected"_s });
        QCOMPARE(f.store.writes, QStringList());
        QCOMPARE(notifications, 1);
        QCOMPARE(settings->dischargingIconSelected(), Icon::battery2V);
    }

    void evaluatesABindingAgainForTheValueThatItRead()
    {
        Fixture f;
        const auto settings = f.start();
        int evaluations = 0;
        QProperty<Icon> shown([&] {
            ++evaluations;
            return settings->chargingIconSelected();
        });
        QCOMPARE(shown.value(), Icon::boltFill);

        settings->setChargedIconSelected(Icon::bolt);
        settings->setStatusItemWidth(70);
        QCOMPARE(evaluations, 1);
        settings->setChargingIconSelected(Icon::boltCircle);
        QCOMPARE(shown.value(), Icon::boltCircle);
        QCOMPARE(evaluations, 2);
        f.log.ignoreRest();
    }

    void tellsReadersEvenWhenTheValueIsThePresentOne()
    {
        Fixture f;
        const auto settings = f.start();
        int notifications = 0;
        const auto count = [&notifications] { ++notifications; };
        const auto a = settings->bindableDischargingIconSelected().addNotifier(count);
        const auto b = settings->bindableChargingIconSelected().addNotifier(count);
        const auto c = settings->bindableChargedIconSelected().addNotifier(count);
        const auto d = settings->bindableReleaseVersionNumber().addNotifier(count);
        const auto e = settings->bindableStatusItemWidth().addNotifier(count);

        settings->setDischargingIconSelected(settings->dischargingIconSelected());
        QCOMPARE(notifications, 1);
        settings->setChargingIconSelected(settings->chargingIconSelected());
        QCOMPARE(notifications, 2);
        settings->setChargedIconSelected(settings->chargedIconSelected());
        QCOMPARE(notifications, 3);
        settings->setReleaseVersionNumber(settings->releaseVersionNumber());
        QCOMPARE(notifications, 4);
        settings->setStatusItemWidth(settings->statusItemWidth());
        QCOMPARE(notifications, 5);
        f.log.ignoreRest();
    }

    void tellsReadersOnceWhenTheValueChanges()
    {
        Fixture f;
        const auto settings = f.start();
        int notifications = 0;
        const auto notifier = settings->bindableChargingIconSelected().addNotifier(
            [&notifications] { ++notifications; });

        settings->setChargingIconSelected(Icon::boltCircle);
        QCOMPARE(notifications, 1);
        f.log.ignoreRest();
    }

    void followsWhatOthersInTheProcessWriteToTheStore()
    {
        Fixture f;
        const auto settings = f.start();
        QProperty<Icon> icon([&] { return settings->dischargingIconSelected(); });
        QProperty<float> width([&] { return settings->statusItemWidth(); });
        QProperty<QString> version([&] { return settings->releaseVersionNumber(); });

        f.store.setObject(u"dischargingIconSelected"_s, QByteArray(R"("battery1H")"));
        f.store.setObject(u"statusItemWidth"_s, 99);
        f.store.setObject(u"releaseVersionNumber"_s, u"3.0"_s);
        QCOMPARE(icon.value(), Icon::battery1H);
        QCOMPARE(width.value(), 99.0F);
        QCOMPARE(version.value(), u"3.0"_s);
        f.log.ignoreRest();
    }

    void putsTheDefaultBackWhenABoundKeyIsRemoved()
    {
        Fixture f;
        const auto settings = f.start();
        QProperty<Icon> icon([&] { return settings->chargedIconSelected(); });
        QProperty<QString> version([&] { return settings->releaseVersionNumber(); });
        QCOMPARE(icon.value(), Icon::poweroutletTypeC);
        (void)f.log.take();

        f.store.removeObject(u"chargedIconSelected"_s);
        f.store.removeObject(u"releaseVersionNumber"_s);
        QCOMPARE(icon.value(), Icon::battery1V);
        QVERIFY(icon.binding().error().type() == QPropertyBindingError::NoError);
        QCOMPARE(f.store.data(u"chargedIconSelected"_s), QByteArray(R"("battery1V")"));
        QCOMPARE(f.store.string(u"releaseVersionNumber"_s), u"2.0"_s);
        QCOMPARE(version.value(), u"2.0"_s);

        settings->setChargedIconSelected(Icon::bolt);
        QCOMPARE(icon.value(), Icon::bolt);
    }

    void fixesTheDefaultsToTheFirstOfEachList()
    {
        const std::array discharging { Icon::battery2V, Icon::battery1V };
        const std::array charging { Icon::bolt, Icon::battery1V };
        const std::array charged { Icon::arrowUpToLineCircle };
        LogCapture log;
        MemoryDefaultsStore store;
        SettingsData settings(store, release(u"2.0"_s), { discharging, charging, charged });

        QCOMPARE(settings.dischargingIconSelectedDefault(), Icon::battery2V);
        QCOMPARE(settings.chargingIconSelectedDefault(), Icon::bolt);
        QCOMPARE(settings.chargedIconSelectedDefault(), Icon::arrowUpToLineCircle);
        QCOMPARE(settings.dischargingIconSelected(), Icon::battery2V);
        QCOMPARE(settings.chargingIconSelected(), Icon::bolt);
        QCOMPARE(settings.chargedIconSelected(), Icon::arrowUpToLineCircle);
        log.ignoreRest();
    }

    void tellsNobodyOfADefaultThatStaysTheSame()
    {
        Fixture f;
        const auto settings = f.start();
        int notifications = 0;
        const auto count = [&notifications] { ++notifications; };
        const auto a = settings->bindableDischargingIconSelectedDefault().addNotifier(count);
        const auto b = settings->bindableChargingIconSelectedDefault().addNotifier(count);
        const auto c = settings->bindableChargedIconSelectedDefault().addNotifier(count);

        settings->setDischargingIconSelectedDefault(Icon::battery1V);
        settings->setChargingIconSelectedDefault(Icon::battery1V);
        settings->setChargedIconSelectedDefault(Icon::battery1V);
        QCOMPARE(notifications, 0);
        settings->setDischargingIconSelectedDefault(Icon::battery1H);
        settings->setChargingIconSelectedDefault(Icon::bolt);
        settings->setChargedIconSelectedDefault(Icon::bolt);
        QCOMPARE(notifications, 3);
        QCOMPARE(settings->chargedIconSelectedDefault(), Icon::bolt);
        f.log.ignoreRest();
    }

    void givesTheStoreThatItWasMadeWith()
    {
        Fixture f;
        QCOMPARE(&f.start()->defaults(), &f.store);
        f.log.ignoreRest();
    }
};

FERRIN_TEST(QCoreApplication, SettingsDataTest)
#include "test_settingsdata.moc"
