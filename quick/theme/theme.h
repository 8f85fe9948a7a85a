// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QObject>
#include <QProperty>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

/// The application's appearance as QML reads it; `Colors` and `Fonts` depend on it.
class Theme final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY fontFamilyChanged)
    /// The factor by which windows and all that is in them are larger than they are made; 1 to 3.
    Q_PROPERTY(double textScale READ textScale NOTIFY textScaleChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY reducesMotionChanged)
    /// The desktop's own accent, which may have no contrast with anything; invalid without one.
    Q_PROPERTY(QColor accent READ accent NOTIFY accentChanged)
    Q_PROPERTY(bool isHighContrast READ isHighContrast NOTIFY isHighContrastChanged)
    /// The application reads from right to left. The root of each window mirrors what is in it.
    Q_PROPERTY(bool isMirrored READ isMirrored NOTIFY isMirroredChanged)

public:
    /// Follows the application's appearance; without one it keeps the defaults.
    explicit Theme(QObject *parent = nullptr);

    static Theme *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] bool isDark() const { return m_isDark; }
    [[nodiscard]] QString fontFamily() const { return m_fontFamily; }
    [[nodiscard]] double textScale() const { return m_textScale; }
    /// The desktop asks for no animations.
    [[nodiscard]] bool reducesMotion() const { return m_reducesMotion; }
    [[nodiscard]] QColor accent() const { return m_accent; }
    [[nodiscard]] bool isHighContrast() const { return m_isHighContrast; }

    // The functions of menubar/readablecolors.h for QML, with the grounds as a list of colours.
    Q_INVOKABLE [[nodiscard]] QColor readable(const QColor &wish, const QVariantList &grounds,
                                              double least) const;
    Q_INVOKABLE [[nodiscard]] QColor prominent(const QColor &wish, const QVariantList &grounds,
                                               double least) const;
    Q_INVOKABLE [[nodiscard]] QColor textOn(const QColor &ground, double least) const;
    Q_INVOKABLE [[nodiscard]] QColor inHueOf(const QColor &accent, const QColor &own) const;
    [[nodiscard]] static bool isMirrored();

Q_SIGNALS:
    void isDarkChanged();
    void fontFamilyChanged();
    void textScaleChanged();
    void reducesMotionChanged();
    void accentChanged();
    void isHighContrastChanged();
    void isMirroredChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY(Theme, bool, m_isDark, &Theme::isDarkChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Theme, QString, m_fontFamily, &Theme::fontFamilyChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Theme, double, m_textScale, 1, &Theme::textScaleChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Theme, bool, m_reducesMotion, &Theme::reducesMotionChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Theme, QColor, m_accent, &Theme::accentChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Theme, bool, m_isHighContrast, &Theme::isHighContrastChanged)
};

} // namespace ferrin
