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

QString Bundle::required(const QString &key, const char *meaning) const
{
    const auto text = information(key);
    if (!text || text->isEmpty())
        qFatal("The bundle has no %s", meaning);
    return *text;
}

QString Bundle::identifier() const
{
    return required(u"CFBundleIdentifier"_s, "identifier");
}

QString Bundle::name() const
{
    return required(u"CFBundleName"_s, "name");
}

QString Bundle::shortVersion() const
{
    return required(u"CFBundleShortVersionString"_s, "version");
}

QString Bundle::buildNumber() const
{
    return required(u"CFBundleVersion"_s, "build number");
}

} // namespace ferrin
