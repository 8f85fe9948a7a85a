// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QFont>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>
#include <QVariant>

#include <memory>

namespace ferrin::test {

/// The QML singleton itself.
inline QObject *singletonOf(QQmlEngine &engine, const QByteArray &singleton)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Ferrin.Quick\n"
                      "QtObject { readonly property QtObject singleton: "
                          + singleton + " }",
                      QUrl(QStringLiteral("singleton")));
    const std::unique_ptr<QObject> made(component.create());
    if (!made)
        qFatal("%s", qPrintable(component.errorString()));
    return made->property("singleton").value<QObject *>();
}

/// What the QML singleton says of a name now; invalid for a name that it does not know.
inline QVariant singletonValue(QQmlEngine &engine, const QByteArray &singleton, const char *name)
{
    return singletonOf(engine, singleton)->property(name);
}

inline QColor namedColor(QQmlEngine &engine, const char *name)
{
    return singletonValue(engine, "Colors", name).value<QColor>();
}

inline QFont namedFont(QQmlEngine &engine, const char *name)
{
    return singletonValue(engine, "Fonts", name).value<QFont>();
}

} // namespace ferrin::test
