// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/systemappearance.h"

#include "platform/linux/session/fontname.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>

#include <tuple>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

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

std::optional<bool> truthOf(const QVariant &value)
{
    return value.typeId() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

bool animates(const QVariant &gnomeSetting)
{
    return truthOf(gnomeSetting).value_or(true);
}

/// KDE multiplies the length of every animation by a number that it writes as text.
bool animatesByFactor(const QVariant &kdeSetting)
{
    bool isNumber = false;
    const double factor = kdeSetting.toDouble(&isNumber);
    return !isNumber || factor > 0;
}

std::optional<double> factorOf(const QVariant &value)
{
    // What GNOME itself takes.
    constexpr double least = 0.5;
    constexpr double most = 3;
    const bool isNumber = value.typeId() == QMetaType::Double;
    return isNumber && value.toDouble() >= least && value.toDouble() <= most
        ? std::optional(value.toDouble())
        : std::nullopt;
}

/// How far the display server enlarges everything. An X server does so by its resolution, which the
/// desktops set by the size of the text; elsewhere the two have nothing to do with each other.
double enlargement()
{
    const bool isByText = qGuiApp && QGuiApplication::platformName() == u"xcb";
    const QScreen *const screen = isByText ? QGuiApplication::primaryScreen() : nullptr;
    return screen ? screen->devicePixelRatio() : 1;
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

const QList<SystemAppearance::Setting> &SystemAppearance::settings()
{
    using Self = SystemAppearance;
    static const QString portal = u"org.freedesktop.appearance"_s;
    static const QString gnome = u"org.gnome.desktop.interface"_s;
    static const QList<Setting> all {
        { portal, u"color-scheme"_s,
          [](Self &self, const QVariant &value) {
              self.m_desktopPrefersDark = prefersDark(value);
          } },
        { portal, u"accent-color"_s,
          [](Self &self, const QVariant &value) {
              self.m_colors.portalAccent = accentOfPortal(value);
          } },
        { portal, u"contrast"_s,
          [](Self &self, const QVariant &value) {
              self.m_colors.portalHighContrast = highContrastOfPortal(value);
          } },
        { gnome, u"accent-color"_s,
          [](Self &self, const QVariant &value) {
              self.m_colors.gnomeAccent = accentOfGnome(textOf(value));
          } },
        { u"org.gnome.desktop.a11y.interface"_s, u"high-contrast"_s,
          [](Self &self, const QVariant &value) {
              self.m_colors.gnomeHighContrast = truthOf(value);
          } },
        { gnome, u"font-name"_s,
          [](Self &self, const QVariant &value) {
              self.m_gnomeFont = familyOfPangoName(textOf(value));
              self.m_text.gnomePoints = pointSizeOfPangoName(textOf(value));
          } },
        { gnome, u"text-scaling-factor"_s,
          [](Self &self, const QVariant &value) { self.m_text.gnomeFactor = factorOf(value); } },
        { gnome, u"enable-animations"_s,
          [](Self &self, const QVariant &value) { self.m_gnomeAnimates = animates(value); } },
        // Only KDE's portal has its settings, so where they are they are the right ones.
        { u"org.kde.kdeglobals.General"_s, u"font"_s,
          [](Self &self, const QVariant &value) {
              self.m_kdeFont = familyOfQtName(textOf(value));
              self.m_text.kdePoints = pointSizeOfQtName(textOf(value));
          } },
        { u"org.kde.kdeglobals.General"_s, u"AccentColor"_s,
          [](Self &self, const QVariant &value) {
              self.m_colors.kdeAccent = accentOfKde(textOf(value));
          } },
        { u"org.kde.kdeglobals.Colors:Selection"_s, u"BackgroundNormal"_s,
          [](Self &self, const QVariant &value) {
              self.m_colors.kdeSelection = accentOfKde(textOf(value));
          } },
        { u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s,
          [](Self &self, const QVariant &value) { self.m_kdeAnimates = animatesByFactor(value); } },
    };
    return all;
}

SystemAppearance::SystemAppearance(const QDBusConnection &session, QObject *parent)
    : QObject(parent)
    , m_portal(session)
    , m_isToolkitDark(isPaletteDark())
{
    connect(&m_portal, &SettingsPortal::valueChanged, this, &SystemAppearance::take);
    for (const Setting &setting : settings())
        m_portal.watch(setting.group, setting.key);
    // The resolution of an X server may follow the size of the text a moment later.
    if (const QScreen *const screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::geometryChanged, this, &SystemAppearance::update);
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
    const auto told = [this] {
        return std::tuple(m_desktopPrefersDark, m_isDesktopDark.value(), m_fontFamily.value(),
                          m_textScale.value(), m_accent.value(), m_isHighContrast.value());
    };
    const auto before = told();
    for (const Setting &setting : settings()) {
        if (setting.group == group && setting.key == key)
            setting.keep(*this, value);
    }
    update();
    if (before != told())
        Q_EMIT changed();
}

void SystemAppearance::update()
{
    const bool isDesktopDark = m_desktopPrefersDark.value_or(m_isToolkitDark);
    m_isDesktopDark = isDesktopDark;
    m_isDark = m_forced ? *m_forced == Appearance::dark : isDesktopDark;
    const QString desktopsFont = m_kdeFont.isEmpty() ? m_gnomeFont : m_kdeFont;
    m_fontFamily = desktopsFont.isEmpty() ? toolkitsFont() : desktopsFont;
    m_textScale = textScaleOf(m_text, enlargement());
    m_reducesMotion = !m_gnomeAnimates || !m_kdeAnimates;
    m_accent = m_colors.accent();
    m_isHighContrast = m_colors.isHighContrast();
}

} // namespace ferrin
