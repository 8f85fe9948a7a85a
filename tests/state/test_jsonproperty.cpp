// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/jsonproperty.h"
#include "tests/support/testmain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

using namespace ferrin;
using namespace Qt::StringLiterals;

class JsonPropertyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTypeAndValueThroughAFile_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("read");
        const auto row = [](const char *name, const QVariant &value, const QVariant &read) {
            QTest::newRow(name) << value << read;
        };
        const qint64 greatest = std::numeric_limits<qint64>::max();
        const qint64 least = std::numeric_limits<qint64>::min();
        row("true", true, true);
        row("false", false, false);
        row("zero", 0, 0LL);
        row("int", -3, -3LL);
        row("unsigned", 7U, 7LL);
        row("greatest", greatest, greatest);
        row("least", least, least);
        row("fraction", 0.1, 0.1);
        row("whole float", 48.0F, 48LL);
        row("single precision", 20.1F, static_cast<double>(20.1F));
        row("very great", 1e300, 1e300);
        row("text", u"65W \"quoted\"\n\u00e9\U0001f50b"_s, u"65W \"quoted\"\n\u00e9\U0001f50b"_s);
        row("empty text", u""_s, u""_s);
        row("text that looks like a number", u"1"_s, u"1"_s);
        row("data", QByteArray("\x00\xff\"", 3), QByteArray("\x00\xff\"", 3));
        row("empty data", QByteArray(""), QByteArray(""));
    }

    void keepsTypeAndValueThroughAFile()
    {
        QFETCH(QVariant, value);
        QFETCH(QVariant, read);
        const QJsonObject written { { u"key"_s, jsonFromProperty(value) } };
        const QJsonObject parsed
            = QJsonDocument::fromJson(QJsonDocument(written).toJson()).object();
        const QVariant result = propertyFromJson(parsed.value(u"key"_s));
        QCOMPARE(result.metaType(), read.metaType());
        QCOMPARE(result, read);
    }

    void writesNothingThatCannotBeRead_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("not a number") << QVariant(std::nan(""));
        QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity());
        QTest::newRow("list") << QVariant(QVariantList { 1 });
        QTest::newRow("map") << QVariant(QVariantMap());
        QTest::newRow("invalid") << QVariant();
    }

    void writesNothingThatCannotBeRead()
    {
        QFETCH(QVariant, value);
        QVERIFY(jsonFromProperty(value).isUndefined());
    }

    void readsNothingThatIsNeverWritten_data()
    {
        QTest::addColumn<QJsonValue>("json");
        QTest::newRow("null") << QJsonValue(QJsonValue::Null);
        QTest::newRow("undefined") << QJsonValue(QJsonValue::Undefined);
        QTest::newRow("array") << QJsonValue(QJsonArray { u"x"_s });
        QTest::newRow("empty object") << QJsonValue(QJsonObject());
        QTest::newRow("another object") << QJsonValue(QJsonObject { { u"date"_s, u"1"_s } });
        QTest::newRow("data and more")
            << QJsonValue(QJsonObject { { u"data"_s, u"AA=="_s }, { u"x"_s, 1 } });
        QTest::newRow("data that is no text") << QJsonValue(QJsonObject { { u"data"_s, 1 } });
        QTest::newRow("data that is no base64")
            << QJsonValue(QJsonObject { { u"data"_s, u"\u00e9!"_s } });
    }

    void readsNothingThatIsNeverWritten()
    {
        QFETCH(QJsonValue, json);
        QVERIFY(!propertyFromJson(json).isValid());
    }
};

FERRIN_TEST(void, JsonPropertyTest)
#include "test_jsonproperty.moc"
