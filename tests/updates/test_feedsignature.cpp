// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/feedsignature.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class TestFeedSignature : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheTextOfASignedFeed();
    void refusesAFeedWithAnyByteChanged();
    void refusesAFeedWithAByteMoreOrLess();
    void refusesASignatureWrittenInAnotherWay();
    void refusesAnotherKey();
    void refusesAKeyOfAnotherLength();
    void readsASecretKeyAgain();
    void refusesASecretKeyWhoseHalvesDoNotBelongTogether();
    void verifiesWhatTheStandardSigned();

private:
    const SigningKey m_key = newSigningKey();
    const QByteArray m_text = "{\"a\":\n 1}\n";
    const QByteArray m_feed = signedFeed(m_text, m_key);
};

void TestFeedSignature::givesTheTextOfASignedFeed()
{
    QCOMPARE(signedText(m_feed, m_key.publicKey), m_text);
    QCOMPARE(signedText(signedFeed("", m_key), m_key.publicKey), ""_ba);
}

void TestFeedSignature::refusesAFeedWithAnyByteChanged()
{
    for (qsizetype at = 0; at < m_feed.size(); ++at) {
        for (const int bit : { 1, 0x20, 0x80 }) {
            QByteArray changed = m_feed;
            changed[at] = static_cast<char>(changed.at(at) ^ bit);
            QVERIFY2(!signedText(changed, m_key.publicKey), changed.constData());
        }
    }
}

void TestFeedSignature::refusesAFeedWithAByteMoreOrLess()
{
    for (const QByteArray &changed :
         { m_feed + ' ', m_feed + '\0', m_feed.chopped(1), ' ' + m_feed, m_feed.sliced(1), ""_ba })
        QVERIFY(!signedText(changed, m_key.publicKey));
}

void TestFeedSignature::refusesASignatureWrittenInAnotherWay()
{
    const qsizetype lineEnd = m_feed.indexOf('\n');
    const QByteArray start = "ferrin-feed-1 ";
    const QByteArray digits = m_feed.first(lineEnd).sliced(start.size());
    QVERIFY(!signedText(start + digits.toUpper() + '\n' + m_text, m_key.publicKey));
    QVERIFY(!signedText(start + ' ' + digits + '\n' + m_text, m_key.publicKey));
    QVERIFY(!signedText(start + digits + "\r\n" + m_text, m_key.publicKey));
    QVERIFY(!signedText(start + digits + digits + '\n' + m_text, m_key.publicKey));
}

void TestFeedSignature::refusesAnotherKey()
{
    QVERIFY(!signedText(m_feed, newSigningKey().publicKey));
}

void TestFeedSignature::refusesAKeyOfAnotherLength()
{
    QVERIFY(!signedText(m_feed, ""));
    QVERIFY(!signedText(m_feed, m_key.publicKey.chopped(1)));
    QVERIFY(!signedText(m_feed, m_key.publicKey + 'x'));
}

void TestFeedSignature::readsASecretKeyAgain()
{
    const auto key = signingKeyFrom(m_key.secretKey);
    QVERIFY(key);
    QCOMPARE(key->publicKey, m_key.publicKey);
    QCOMPARE(signedText(signedFeed(m_text, *key), m_key.publicKey), m_text);
}

void TestFeedSignature::refusesASecretKeyWhoseHalvesDoNotBelongTogether()
{
    const QByteArray other = newSigningKey().publicKey;
    QVERIFY(!signingKeyFrom(m_key.secretKey.first(32) + other));
    QVERIFY(!signingKeyFrom(m_key.secretKey.chopped(1)));
    QVERIFY(!signingKeyFrom(""));
}

void TestFeedSignature::verifiesWhatTheStandardSigned()
{
    // RFC 8032, 7.1, test 2.
    const QByteArray publicKey
        = QByteArray::fromHex("3d4017c3e843895a92b70aa74d1b7ebc9c982ccf2ec4968cc0cd55f12af4660c");
    const QByteArray signature = "92a009a9f0d4cab8720e820b5f642540a2b27b5416503f8fb3762223ebdb69da"
                                 "085ac1e43e15996e458f3613d0f11d8c387b2eaeb4302aeeb00d291612bb0c00";
    QCOMPARE(signedText("ferrin-feed-1 " + signature + "\nr", publicKey), "r"_ba);
}

QTEST_GUILESS_MAIN(TestFeedSignature)
#include "test_feedsignature.moc"
