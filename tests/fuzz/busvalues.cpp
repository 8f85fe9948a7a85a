// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/fuzz/busvalues.h"

#include "platform/linux/statusnotifier/dbusmenutypes.h"

#include <QDBusObjectPath>
#include <QDBusSignature>
#include <QDBusVariant>
#include <QRegularExpression>

namespace ferrin::fuzz {

using namespace Qt::StringLiterals;

namespace {

/// Such a path where it is one, else the shortest: Qt warns of others, which ends a test.
QDBusObjectPath pathOf(const QString &text)
{
    static const QRegularExpression path(u"\\A(/|(/[A-Za-z0-9_]+)+)\\z"_s);
    return QDBusObjectPath(path.match(text).hasMatch() ? text : u"/"_s);
}

/// What stands before the first such sign, which is taken from the text as well.
std::string_view takeUntil(char sign, std::string_view &text)
{
    const std::string_view taken = text.substr(0, text.find(sign));
    text.remove_prefix(std::min(taken.size() + 1, text.size()));
    return taken;
}

QVariantMap propertiesOf(std::string_view text)
{
    QVariantMap properties;
    while (!text.empty()) {
        std::string_view value = takeUntil(';', text);
        const QString name = QString::fromUtf8(QByteArrayView(takeUntil(':', value)));
        // No dictionary in a dictionary in a dictionary.
        if (const QVariant read = value.starts_with('P') ? QVariant() : valueOf(value);
            read.isValid())
            properties.insert(name, read);
    }
    return properties;
}

} // namespace

QVariant valueOf(std::string_view text)
{
    const QString rest = QString::fromUtf8(QByteArrayView(text.substr(text.empty() ? 0 : 1)));
    switch (text.empty() ? ' ' : text.front()) {
    case 'b':
        return rest == u"true";
    case 'y':
        return QVariant::fromValue(uchar(rest.toUInt()));
    case 'u':
        return rest.toUInt();
    case 'i':
        return rest.toInt();
    case 'x':
        return rest.toLongLong();
    case 't':
        return rest.toULongLong();
    case 'd':
        return rest.toDouble();
    case 's':
        return rest;
    case 'o':
        return QVariant::fromValue(pathOf(rest));
    case 'g':
        return QVariant::fromValue(QDBusSignature(u"a{sv}"_s));
    case 'V':
        return QVariant::fromValue(QDBusVariant(rest));
    case 'a':
        return QStringList { rest, rest };
    case 'I':
        return QVariant::fromValue(QList<int> { rest.toInt(), -1, 0, rest.toInt() });
    case 'O':
        return QVariant::fromValue(QList { pathOf(rest), pathOf(rest) });
    case 'e':
        // Not known to QtDBus, it would leave a map half written, which libdbus aborts on.
        registerDBusMenuTypes();
        return QVariant::fromValue(
            QList<DBusMenuEvent> { { .number = 1, .event = rest, .data = QDBusVariant(rest) },
                                   { .number = 1001, .event = rest, .data = QDBusVariant(0) } });
    case 'P':
        return propertiesOf(text.substr(1));
    case 'v':
        return QVariantMap { { rest, rest } };
    }
    return {};
}

QVariantList valuesOf(std::string_view text)
{
    QVariantList values;
    while (!text.empty()) {
        if (const QVariant value = valueOf(takeUntil('|', text)); value.isValid())
            values.append(value);
    }
    return values;
}

} // namespace ferrin::fuzz
