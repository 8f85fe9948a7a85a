// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appcolorschemeprovider.h"
#include "state/bundle.h"
#include "state/defaultsstore.h"
#include "state/filedefaultsstore.h"
#include "state/iconcatalogues.h"
#include "state/settingsdata.h"
#include "state/shareddefaults.h"
#include "tests/support/memorydefaultsstore.h"

#include <QMap>
#include <QProcess>
#include <QTest>

#include <functional>
#include <sys/resource.h>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

struct Error
{
    std::function<void()> commit;
    QString lastWords;
};

void startWith(const IconsOnOffer &icons)
{
    MemoryDefaultsStore store;
    const SettingsData settings(store, Bundle::main(), icons);
}

const QMap<QString, Error> &errors()
{
    static const auto all = IconsOnOffer::fromCatalogues();
    static const QString emptyList = u"A list of available icons is empty"_s;
    static const QMap<QString, Error> map {
        { u"no store handed over"_s,
          { [] { (void)sharedDefaults(); }, u"The defaults store has not been opened"_s } },
        { u"no suite name"_s,
          { [] { (void)FileDefaultsStore::open(u"/tmp"_s, {}); },
            u"The defaults store \"\" cannot be opened in the folder \"/tmp\""_s } },
        { u"no configuration folder"_s,
          { [] { (void)FileDefaultsStore::open({}, u"org.ferrin.Test"_s); },
            u"The defaults store \"org.ferrin.Test\" cannot be opened in the folder \"\""_s } },
        { u"a path for a suite name"_s,
          { [] { (void)FileDefaultsStore::open(u"/tmp"_s, u"../x"_s); },
            u"The defaults store \"../x\" cannot be opened in the folder \"/tmp\""_s } },
        { u"no bundle identifier"_s,
          { [] { (void)Bundle({}).identifier(); }, u"The bundle has no identifier"_s } },
        { u"no icon for discharging"_s,
          { [] {
               startWith({ {}, all.charging, all.charged });
           },
            emptyList } },
        { u"no icon for charging"_s,
          { [] {
               startWith({ all.discharging, {}, all.charged });
           },
            emptyList } },
        { u"no icon for charged"_s,
          { [] {
               startWith({ all.discharging, all.charging, {} });
           },
            emptyList } },
        { u"a colour scheme before the application"_s,
          { [] { AppColorSchemeProvider().apply(AppColorScheme::dark); },
            u"A colour scheme was applied before the application had started"_s } },
    };
    return map;
}

} // namespace

class ProgrammingErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stopTheProcessWithOneClearLine_data()
    {
        QTest::addColumn<QString>("name");
        for (auto it = errors().begin(); it != errors().end(); ++it)
            QTest::newRow(qPrintable(it.key())) << it.key();
    }

    void stopTheProcessWithOneClearLine()
    {
        QFETCH(QString, name);
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QCoreApplication::applicationFilePath(), { u"commit"_s, name });
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QCOMPARE(QString::fromUtf8(process.readAll()), errors().value(name).lastWords + u'\n');
    }

    void doNotIncludeAStoreThatWasHandedOver()
    {
        auto store = std::make_unique<MemoryDefaultsStore>();
        const DefaultsStore *const expected = store.get();
        setSharedDefaults(std::move(store));
        QCOMPARE(&sharedDefaults(), expected);
        setSharedDefaults(nullptr);
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"commit"_s) {
        const rlimit noCore {};
        setrlimit(RLIMIT_CORE, &noCore);
        errors().value(arguments.value(2)).commit();
        return 0;
    }
    ProgrammingErrorsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_programmingerrors.moc"
