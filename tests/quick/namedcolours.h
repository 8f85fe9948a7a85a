// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

#include <memory>

namespace ferrin::test {

/// The named colour, as it is now; invalid for a name that is none.
inline QColor namedColour(QQmlEngine &engine, const char *name)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Ferrin.Quick\n"
                      "QtObject { readonly property QtObject colours: Colours }",
                      QUrl(QStringLiteral("colours")));
    const std::unique_ptr<QObject> made(component.create());
    if (!made)
        qFatal("%s", qPrintable(component.errorString()));
    return made->property("colours").value<QObject *>()->property(name).value<QColor>();
}

} // namespace ferrin::test
