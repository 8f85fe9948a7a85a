// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/bundle.h"

#include <QFile>
#include <QJsonDocument>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

const Bundle &Bundle::main()
{
    static const Bundle bundle([] {
        QFile file(u":/bundle.json"_s);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }());
    return bundle;
}

Bundle::Bundle(QJsonObject information)
    : m_information(std::move(information))
{
}

std::optional<QString> Bundle::information(const QString &key) const
{
    const QJsonValue value = m_information.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

QString Bundle::identifier() const
{
    const auto identifier = information(u"CFBundleIdentifier"_s);
    if (!identifier || identifier->isEmpty())
        qFatal("The bundle has no identifier");
    return *identifier;
}

QString Bundle::shortVersion() const
{
    return information(u"CFBundleShortVersionString"_s).value_or(QString());
}

} // namespace ferrin
