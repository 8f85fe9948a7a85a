// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Processes that change settings without end and are killed, and what the store contains then.
// Every setting is changed through the objects that the windows use.

#include "state/appcolorscheme.h"
#include "state/displayswitches.h"
#include "state/filedefaultsstore.h"
#include "state/iconcatalogues.h"
#include "state/settingsdata.h"
#include "tests/support/fulldisk.h"
#include "tests/support/kills.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const int kills = killsOr(120);
constexpr int switchCount = static_cast<int>(DisplaySwitch::showTimeWhenCharged) + 1;
constexpr int iconChoices = 3;
constexpr int choiceCount = switchCount + iconChoices + 1;

/// The user's choices in the store of a folder; each is a number and its value as text.
class Choices
{
public:
    explicit Choices(const QString &folder)
        : m_store(FileDefaultsStore::open(folder, u"org.ferrin.Test"_s))
        , m_switches(*m_store)
        , m_settings(*m_store, Bundle::main())
        , m_color(*m_store)
    {
    }

    void choose(int which, quint32 random)
    {
        if (which < switchCount)
            m_switches.set(static_cast<DisplaySwitch>(which), random % 2 == 0);
        else if (which == switchCount)
            m_settings.setDischargingIconSelected(one(icons().discharging, random));
        else if (which == switchCount + 1)
            m_settings.setChargingIconSelected(one(icons().charging, random));
        else if (which == switchCount + 2)
            m_settings.setChargedIconSelected(one(icons().charged, random));
        else
            m_color.setScheme(std::array { AppColorScheme::system, AppColorScheme::light,
                                           AppColorScheme::dark }[random % 3]);
    }

    [[nodiscard]] QString value(int which)
    {
        if (which < switchCount)
            return QString::number(m_switches.isOn(static_cast<DisplaySwitch>(which)));
        if (which == switchCount)
            return rawValue(m_settings.dischargingIconSelected());
        if (which == switchCount + 1)
            return rawValue(m_settings.chargingIconSelected());
        if (which == switchCount + 2)
            return rawValue(m_settings.chargedIconSelected());
        return rawValue(m_color.scheme());
    }

    [[nodiscard]] QStringList all()
    {
        QStringList values;
        for (int which = 0; which < choiceCount; ++which)
            values.append(value(which));
        return values;
    }

private:
    [[nodiscard]] static IconsOnOffer icons() { return IconsOnOffer::fromCatalogues(); }
    [[nodiscard]] static Icon one(std::span<const Icon> icons, quint32 random)
    {
        return icons[random % icons.size()];
    }

    std::unique_ptr<FileDefaultsStore> m_store;
    DisplaySwitches m_switches;
    SettingsData m_settings;
    AppColor m_color;
};

void say(const QString &line)
{
    std::puts(qUtf8Printable(line));
    std::fflush(stdout);
}

/// Changes one setting in each turn of the event loop. Prints all values once they are certain to
/// be stored, and again, with the new one, before that can be stored.
int chooseForEver(const QString &folder, quint32 seed, int first, int count, bool isOftenFull)
{
    Choices choices(folder);
    QRandomGenerator random(seed);
    QTimer turn;
    turn.setSingleShot(true);
    QObject::connect(&turn, &QTimer::timeout, &turn, [&] {
        if (isOftenFull)
            setDiskFull(random.bounded(2) == 0);
        say(choices.all().join(u' '));
        choices.choose(first + random.bounded(count), random.generate());
        say(choices.all().join(u' '));
        turn.start(0);
    });
    turn.start(0);
    return QCoreApplication::exec();
}

std::unique_ptr<QProcess> startChoosing(const QTemporaryDir &folder, quint32 seed, int first = 0,
                                        int count = choiceCount, bool isOftenFull = false)
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_LOGGING_RULES"_s, u"*.info=false"_s);
    process->setProcessEnvironment(environment);
    process->setStandardErrorFile(folder.filePath(u"log"_s), QIODevice::Append);
    process->start(QCoreApplication::applicationFilePath(),
                   { u"choose"_s, folder.path(), QString::number(seed), QString::number(first),
                     QString::number(count), QString::number(isOftenFull) });
    return process;
}

/// The complete lines that a process printed, the latest first.
QStringList said(QProcess &process)
{
    process.waitForFinished();
    QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n');
    lines.removeLast();
    std::ranges::reverse(lines);
    return lines;
}

QStringList lastSaid(QProcess &process)
{
    const QStringList lines = said(process);
    return lines.first(std::min<qsizetype>(2, lines.size()));
}

void killSoon(QProcess &process, QRandomGenerator &random)
{
    // Every fourth is killed while it starts.
    if (random.bounded(4) != 0)
        process.waitForReadyRead();
    QThread::usleep(random.bounded(20'000));
    process.kill();
}

QStringList leftIn(const QTemporaryDir &folder)
{
    return QDir(folder.filePath(u"org.ferrin.Test"_s)).entryList(QDir::Files | QDir::Hidden);
}

QByteArray text(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

quint32 seed()
{
    return qEnvironmentVariableIsSet("FERRIN_TEST_SEED")
        ? qEnvironmentVariable("FERRIN_TEST_SEED").toUInt()
        : 20260101;
}

} // namespace

class KeptChoicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areTheOldOrTheNewOnesAfterAKillAtAnyMoment()
    {
        LogCapture log;
        const QTemporaryDir folder;
        QRandomGenerator random(seed());
        QStringList kept = Choices(folder.path()).all();
        for (int round = 0; round < kills; ++round) {
            const auto process = startChoosing(folder, random.generate());
            killSoon(*process, random);
            QStringList possible = lastSaid(*process);
            // A process that had no time to change anything leaves the store unchanged.
            if (possible.isEmpty())
                possible = { kept.join(u' ') };

            kept = Choices(folder.path()).all();
            QVERIFY2(
                possible.contains(kept.join(u' ')),
                qPrintable(u"seed %1, round %2: %3 is none of\n%4"_s.arg(seed()).arg(round).arg(
                    kept.join(u' '), possible.join(u'\n'))));
        }
        QCOMPARE(text(folder.filePath(u"log"_s)), QByteArray());
        QVERIFY2(leftIn(folder).size() <= 3, qPrintable(leftIn(folder).join(u' ')));
        log.ignoreRest();
    }

    void areOnesThatWereMadeWhereTheDiskIsOftenFull()
    {
        LogCapture log;
        const QTemporaryDir folder;
        QRandomGenerator random(seed());
        QString kept = Choices(folder.path()).all().join(u' ');
        for (int round = 0; round < kills / 4; ++round) {
            const auto process = startChoosing(folder, random.generate(), 0, choiceCount, true);
            killSoon(*process, random);
            const QStringList possible = said(*process) << kept;
            kept = Choices(folder.path()).all().join(u' ');
            QVERIFY2(
                possible.contains(kept),
                qPrintable(u"seed %1, round %2: %3 is none of\n%4"_s.arg(seed()).arg(round).arg(
                    kept, possible.join(u'\n'))));
        }
        QVERIFY2(leftIn(folder).size() <= 3, qPrintable(leftIn(folder).join(u' ')));
        log.ignoreRest();
    }

    void ofTwoSessionsAreKeptWhicheverOfThemIsKilled()
    {
        LogCapture log;
        const QTemporaryDir folder;
        QRandomGenerator random(seed());
        constexpr int half = choiceCount / 2;
        QStringList kept = Choices(folder.path()).all();
        auto lower = startChoosing(folder, random.generate(), 0, half);
        auto upper = startChoosing(folder, random.generate(), half, choiceCount - half);
        for (int round = 0; round < kills / 2; ++round) {
            const bool isLower = round % 2 == 0;
            auto &killed = isLower ? lower : upper;
            const int first = isLower ? 0 : half;
            const int count = isLower ? half : choiceCount - half;
            killSoon(*killed, random);
            checkOwn(lastSaid(*killed), Choices(folder.path()).all(), first, count);
            killed = startChoosing(folder, random.generate(), first, count);
        }
        for (auto &process : { std::ref(lower), std::ref(upper) }) {
            killSoon(*process.get(), random);
            process.get()->waitForFinished();
        }
        QCOMPARE(text(folder.filePath(u"log"_s)), QByteArray());
        QVERIFY2(leftIn(folder).size() <= 3, qPrintable(leftIn(folder).join(u' ')));
        log.ignoreRest();
    }

    void ofTwoSessionsThatChooseTheSameAreThoseOfOneOfThem()
    {
        LogCapture log;
        const QTemporaryDir folder;
        QRandomGenerator random(seed());
        for (int round = 0; round < kills / 4; ++round) {
            const auto one = startChoosing(folder, random.generate());
            const auto other = startChoosing(folder, random.generate());
            one->waitForReadyRead();
            killSoon(*other, random);
            one->kill();
            const QStringList said = lastSaid(*one) + lastSaid(*other);
            const QStringList kept = Choices(folder.path()).all();
            for (int which = 0; which < choiceCount; ++which) {
                const auto isKept = [&](const QString &line) {
                    return line.split(u' ').at(which) == kept.at(which);
                };
                QVERIFY2(
                    std::ranges::any_of(said, isKept),
                    qPrintable(u"seed %1, round %2: %3 is none of\n%4"_s.arg(seed()).arg(round).arg(
                        kept.at(which), said.join(u'\n'))));
            }
        }
        QCOMPARE(text(folder.filePath(u"log"_s)), QByteArray());
        log.ignoreRest();
    }

private:
    static void checkOwn(const QStringList &said, const QStringList &kept, int first, int count)
    {
        if (said.isEmpty())
            return;
        QStringList own;
        for (const QString &line : said)
            own.append(line.split(u' ').mid(first, count).join(u' '));
        QVERIFY2(own.contains(kept.mid(first, count).join(u' ')),
                 qPrintable(u"seed %1: %2 is none of\n%3"_s.arg(seed()).arg(
                     kept.mid(first, count).join(u' '), own.join(u'\n'))));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"choose"_s)
        return chooseForEver(arguments.at(2), arguments.at(3).toUInt(), arguments.at(4).toInt(),
                             arguments.at(5).toInt(), arguments.at(6).toInt() != 0);
    KeptChoicesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_keptchoices.moc"
