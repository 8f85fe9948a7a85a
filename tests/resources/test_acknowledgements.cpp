// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class AcknowledgementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areCompiledInUnderTheirNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("mentions");
        QTest::newRow("updates") << u"AckSparkle"_s << QByteArray("SOFTWARE UPDATES");
        QTest::newRow("login") << u"AckLaunchAtLogin"_s << QByteArray("LAUNCH AT LOGIN");
        QTest::newRow("item") << u"AckMenuBarExtraAcces"_s << QByteArray("THE STATUS AREA");
    }
    void areCompiledInUnderTheirNames()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, mentions);
        QFile file(u":/%1.txt"_s.arg(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.contains(mentions));
        QVERIFY(text.contains("GNU General Public License"));
        QVERIFY(!QString::fromUtf8(text).contains(QChar::ReplacementCharacter));
    }
};

QTEST_APPLESS_MAIN(AcknowledgementsTest)
#include "test_acknowledgements.moc"
