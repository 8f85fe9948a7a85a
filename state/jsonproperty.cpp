// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/jsonproperty.h"

#include <QJsonObject>

#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr auto dataKey = "data"_L1;

// JSON has one type of number; 48 and 48.0 are the same value.
QJsonValue jsonFromNumber(double number)
{
    constexpr double beyondWhole = 0x1p63;
    if (!std::isfinite(number))
        return QJsonValue::Undefined;
    if (std::trunc(number) == number && std::abs(number) < beyondWhole)
        return static_cast<qint64>(number);
    return number;
}

} // namespace

QJsonValue jsonFromProperty(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return jsonFromNumber(value.toDouble());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return QJsonObject { { dataKey, QString::fromLatin1(value.toByteArray().toBase64()) } };
    default:
        return QJsonValue::Undefined;
    }
}

QVariant propertyFromJson(const QJsonValue &json)
{
    switch (json.type()) {
    case QJsonValue::Bool:
    case QJsonValue::Double:
    case QJsonValue::String:
        return json.toVariant();
    case QJsonValue::Object: {
        const QJsonObject object = json.toObject();
        const QJsonValue text = object.value(dataKey);
        if (object.size() != 1 || !text.isString())
            return {};
        const auto data = QByteArray::fromBase64Encoding(text.toString().toLatin1(),
                                                         QByteArray::AbortOnBase64DecodingErrors);
        return data ? QVariant(*data) : QVariant();
    }
    case QJsonValue::Null:
    case QJsonValue::Array:
    case QJsonValue::Undefined:
        return {};
    }
    return {};
}

} // namespace ferrin
