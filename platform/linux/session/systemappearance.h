// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/desktopcolors.h"
#include "platform/linux/session/settingsportal.h"
#include "platform/linux/session/textscale.h"
#include "state/applicationappearance.h"

#include <QList>
#include <QObject>
#include <QProperty>
#include <QString>

#include <optional>

namespace ferrin {

/// How the application looks on this desktop: dark or light, forced or as the desktop prefers, in
/// which font, size and accent, how strong its contrasts are, and whether anything moves. The
/// desktop is asked through its settings portal, without waiting; until it answers, and where there
/// is none, the toolkit's palette and font decide. Every value may change at any time. Owned by the
/// application; it repaints nothing itself.
class SystemAppearance : public QObject, public ApplicationAppearance
{
    Q_OBJECT

public:
    explicit SystemAppearance(const QDBusConnection &session, QObject *parent = nullptr);

    void setAppearance(std::optional<Appearance> appearance) override;

    /// What the user forced; absent while the desktop is followed.
    [[nodiscard]] std::optional<Appearance> forcedAppearance() const { return m_forced; }
    /// What the desktop prefers, whatever is forced.
    [[nodiscard]] bool isDesktopDark() const { return m_isDesktopDark; }
    /// The same by the desktop's own words; absent while it has none.
    [[nodiscard]] std::optional<bool> desktopPrefersDark() const { return m_desktopPrefersDark; }

Q_SIGNALS:
    /// One of the values above has changed.
    void changed();

private:
    /// A setting of the portal, and what is kept of its value.
    struct Setting
    {
        QString group;
        QString key;
        void (*keep)(SystemAppearance &, const QVariant &);
    };
    static const QList<Setting> &settings();

    void take(const QString &group, const QString &key, const QVariant &value);
    void update();

    SettingsPortal m_portal;
    std::optional<Appearance> m_forced;
    /// What the toolkit looks like by itself: title bars change the palette later.
    bool m_isToolkitDark;
    /// The desktop's preference; absent when it has none.
    std::optional<bool> m_desktopPrefersDark;
    QString m_gnomeFont;
    QString m_kdeFont;
    TextSettings m_text;
    DesktopColors m_colors;
    bool m_gnomeAnimates = true;
    bool m_kdeAnimates = true;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SystemAppearance, bool, m_isDesktopDark, false)
};

} // namespace ferrin
