// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QProperty>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class AppColor;

/// The user's choice of a colour scheme, by the schemes' texts. A chosen scheme is stored and
/// applied to the whole application at once. A child of the engine.
class ColorTheme final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// All of them, in the order in which they are offered.
    Q_PROPERTY(QStringList schemes READ schemes CONSTANT)
    Q_PROPERTY(QString selectedScheme READ selectedScheme WRITE setSelectedScheme NOTIFY
                   selectedSchemeChanged)

public:
    /// The stored choice outlives this.
    explicit ColorTheme(AppColor &color, QObject *parent = nullptr);

    /// The engine's child.
    static ColorTheme *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] QStringList schemes() const;
    [[nodiscard]] QString selectedScheme() const;
    /// Ignores text that is not a scheme's.
    void setSelectedScheme(const QString &scheme);

Q_SIGNALS:
    void selectedSchemeChanged();

private:
    AppColor &m_color;
    QPropertyNotifier m_follower;
};

} // namespace ferrin
