// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/appstreamnotes.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const QByteArray component = R"(<?xml version="1.0" encoding="utf-8"?>
<component type="desktop-application"><releases>
  <release type="stable" version="1.1" date="2026-04-29T22:00:00Z">
    <description>
      <p>The first words &amp; more.</p>
      <ul><li>Quieter, and <em>prettier</em></li><li>Second
          line</li></ul>
    </description>
    <description xml:lang="de"><p>Deutsch.</p></description>
  </release>
  <release version="1.0" timestamp="1767500000"><description><p>Old.</p></description></release>
</releases></component>)";

} // namespace

class AppStreamNotesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheNotesOfAVersion()
    {
        const ReleaseNotes expected {
            u"The first words & more.\n\n• Quieter, and prettier\n• Second line"_s,
            QDate(2026, 4, 29)
        };
        QCOMPARE(notesFromAppStream(component, u"1.1"_s), expected);
    }

    void readsATimestamp()
    {
        QCOMPARE(notesFromAppStream(component, u"1.0"_s).date, QDate(2026, 1, 4));
    }

    void hasNoneWhereThereAreNone()
    {
        QCOMPARE(notesFromAppStream(component, u"1.2"_s), ReleaseNotes());
        QCOMPARE(notesFromAppStream("", u"1.1"_s), ReleaseNotes());
        QCOMPARE(notesFromAppStream("<component><release version=\"1.1\"", u"1.1"_s),
                 ReleaseNotes());
    }

    void keepsWordsPlainAndShort()
    {
        QCOMPARE(harmlessNotes(u"a\tb\x1b[2J\nc\u202e"_s), u"ab[2J\nc"_s);
        QCOMPARE(harmlessNotes(QString(100'000, u'x')).size(), 8001);
    }
};

FERRIN_TEST(QCoreApplication, AppStreamNotesTest)
#include "test_appstreamnotes.moc"
