// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

/// The application's name, version and build number, read once from the bundle. A missing one is a
/// programming error and stops the process.
class BundleInformation final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString name MEMBER m_name CONSTANT)
    Q_PROPERTY(QString appVersion MEMBER m_appVersion CONSTANT)
    Q_PROPERTY(QString buildNumber MEMBER m_buildNumber CONSTANT)

public:
    explicit BundleInformation(QObject *parent = nullptr);

    /// Created on first use and owned by the engine.
    static BundleInformation *create(QQmlEngine *engine, QJSEngine *);

    /// A text that is compiled in, by the name of its resource; empty when it cannot be read, which
    /// is not logged.
    Q_INVOKABLE [[nodiscard]] QString text(const QString &resource) const;

private:
    QString m_name;
    QString m_appVersion;
    QString m_buildNumber;
};

} // namespace ferrin
