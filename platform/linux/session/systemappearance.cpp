// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/systemappearance.h"

#include "platform/linux/session/fontname.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString schemeGroup = u"org.freedesktop.appearance"_s;
const QString schemeKey = u"color-scheme"_s;
const QString gnomeGroup = u"org.gnome.desktop.interface"_s;
const QString gnomeFontKey = u"font-name"_s;
// Only KDE's portal has this one, so where it is there it is the right one of the two.
const QString kdeFontGroup = u"org.kde.kdeglobals.General"_s;
const QString kdeFontKey = u"font"_s;
const QString gnomeAnimationsKey = u"enable-animations"_s;
const QString kdeAnimationsGroup = u"org.kde.kdeglobals.KDE"_s;
const QString kdeAnimationsKey = u"AnimationDurationFactor"_s;

std::optional<bool> prefersDark(const QVariant &value)
{
    constexpr uint dark = 1;
    constexpr uint light = 2;
    if (value.typeId() != QMetaType::UInt)
        return std::nullopt;
    if (value.toUInt() == dark)
        return true;
    return value.toUInt() == light ? std::optional(false) : std::nullopt;
}

QString textOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

bool animates(const QVariant &gnomeSetting)
{
    return gnomeSetting.typeId() != QMetaType::Bool || gnomeSetting.toBool();
}

/// KDE multiplies the length of every animation by a number that it writes as text.
bool animatesByFactor(const QVariant &kdeSetting)
{
    bool isNumber = false;
    const double factor = kdeSetting.toDouble(&isNumber);
    return !isNumber || factor > 0;
}

bool isPaletteDark()
{
    return qGuiApp && QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

QString toolkitsFont()
{
    return qGuiApp ? QGuiApplication::font().family() : QString();
}

} // namespace

SystemAppearance::SystemAppearance(const QDBusConnection &session, QObject *parent)
    : QObject(parent)
    , m_portal(session)
{
    connect(&m_portal, &SettingsPortal::valueChanged, this, &SystemAppearance::take);
    m_portal.watch(schemeGroup, schemeKey);
    m_portal.watch(gnomeGroup, gnomeFontKey);
    m_portal.watch(kdeFontGroup, kdeFontKey);
    m_portal.watch(gnomeGroup, gnomeAnimationsKey);
    m_portal.watch(kdeAnimationsGroup, kdeAnimationsKey);
    update();
}

void SystemAppearance::setAppearance(std::optional<Appearance> appearance)
{
    if (m_forced == appearance)
        return;
    m_forced = appearance;
    update();
    Q_EMIT changed();
}

void SystemAppearance::take(const QString &group, const QString &key, const QVariant &value)
{
    const std::optional<bool> preferredBefore = m_desktopPrefersDark;
    if (group == schemeGroup && key == schemeKey)
        m_desktopPrefersDark = prefersDark(value);
    else if (group == gnomeGroup && key == gnomeAnimationsKey)
        m_gnomeAnimates = animates(value);
    else if (group == kdeAnimationsGroup)
        m_kdeAnimates = animatesByFactor(value);
    else if (group == gnomeGroup)
        m_gnomeFont = familyOfPangoName(textOf(value));
    else if (group == kdeFontGroup)
        m_kdeFont = familyOfQtName(textOf(value));

    const bool wasDark = m_isDesktopDark;
    const QString fontBefore = m_fontFamily;
    update();
    if (preferredBefore != m_desktopPrefersDark || wasDark != m_isDesktopDark
        || fontBefore != m_fontFamily)
        Q_EMIT changed();
}

void SystemAppearance::update()
{
    const bool isDesktopDark = m_desktopPrefersDark.value_or(isPaletteDark());
    m_isDesktopDark = isDesktopDark;
    m_isDark = m_forced ? *m_forced == Appearance::dark : isDesktopDark;
    const QString desktopsFont = m_kdeFont.isEmpty() ? m_gnomeFont : m_kdeFont;
    m_fontFamily = desktopsFont.isEmpty() ? toolkitsFont() : desktopsFont;
    m_reducesMotion = !m_gnomeAnimates || !m_kdeAnimates;
}

} // namespace ferrin
