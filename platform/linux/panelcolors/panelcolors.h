// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"
#include "platform/linux/panelcolors/panelkind.h"

#include <QColor>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include <optional>

namespace ferrin {

/// What the status area needs to know of the desktop's look; the application keeps it current.
struct StatusAreaAppearance
{
    /// The user's theme for Ferrin's windows; absent while it follows the system.
    std::optional<bool> forcedDark {};
    /// The desktop is dark by its colour scheme or, where it has none, the toolkit's palette.
    bool desktopDark = false;
    /// The desktop's colour scheme is a dark one; absent where it has none.
    std::optional<bool> desktopPrefersDark {};
    /// The desktop's interface font; empty for the toolkit's default.
    QString fontFamily {};
    /// How many times larger than usual the desktop wants texts; 1 to 3.
    double textScale = 1;
    /// The desktop's accent, whatever its contrast; invalid where it has none.
    QColor accent {};
    /// The desktop asks for a higher contrast than usual.
    bool isHighContrast = false;

    bool operator==(const StatusAreaAppearance &) const = default;
};

/// What an item in an XEmbed tray finds around it.
struct TraySurroundings
{
    /// Absent where the tray keeps it to itself.
    std::optional<QColor> ground {};
    /// The tray is that of i3's own bar.
    bool isI3Bar = false;
};

/// Which colours read on a host's panel. No host says, so the best source decides: the panel's own
/// settings, then the colours that its tray announces on X11, then how such panels usually look,
/// then the desktop's colour scheme. Where none of them knows, and where the user's theme
/// contradicts the scheme, the item brings its own ground, the chip. The theme is that of the
/// windows: it never overrules what is known of a panel.
class PanelColors : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void setAppearance(const StatusAreaAppearance &appearance);
    [[nodiscard]] const StatusAreaAppearance &appearance() const noexcept { return m_appearance; }

    /// The text colour that the tray announced; absent where there is none.
    void setTrayText(const std::optional<QColor> &color);
    /// The text colour by the settings of the panel with this name; absent where they say nothing.
    void setPanelText(QLatin1StringView panel, const std::optional<QColor> &color);
    /// The panel's settings are there, but leave open what it looks like: the item is to bring its
    /// own ground.
    void setPanelUncertain(QLatin1StringView panel, bool isUncertain);

    /// The text colour of i3's own bar by its configuration; absent where that says nothing.
    void setI3BarText(const std::optional<QColor> &color);

    [[nodiscard]] ViewContext contextFor(const PanelKind &panel) const;
    [[nodiscard]] ViewContext contextForTray(const TraySurroundings &tray) const;
    /// On a ground of our own, which is dark or light as the desktop is.
    [[nodiscard]] ViewContext contextForOwnBar() const;
    /// The own bar's ground is dark.
    [[nodiscard]] bool isOwnBarDark() const noexcept;

Q_SIGNALS:
    void changed();

private:
    /// Absent where nothing can be known.
    [[nodiscard]] std::optional<QColor> textFor(const PanelKind &panel) const;
    [[nodiscard]] ViewContext contextWith(const QColor &text) const;
    [[nodiscard]] ViewContext contextOnChip() const;
    /// The desktop's colour scheme, unless the user's theme contradicts it.
    [[nodiscard]] std::optional<QColor> textByScheme() const;

    StatusAreaAppearance m_appearance;
    std::optional<QColor> m_trayText;
    QHash<QLatin1StringView, QColor> m_panelTexts;
    QSet<QLatin1StringView> m_uncertainPanels;
    std::optional<QColor> m_i3BarText;
};

} // namespace ferrin
