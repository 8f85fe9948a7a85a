// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"
#include "platform/linux/panelcolors/panelkind.h"

#include <QColor>
#include <QHash>
#include <QObject>
#include <QString>

#include <optional>

namespace ferrin {

/// What the status area needs to know of the desktop's look; the application keeps it current.
struct StatusAreaAppearance
{
    /// The user's own choice of light or dark; absent while it follows the system.
    std::optional<bool> forcedDark {};
    /// The desktop is dark, as far as can be told: by its own words or the toolkit's colours.
    bool desktopDark = false;
    /// The same by the desktop's own words; absent where it says nothing.
    std::optional<bool> desktopPrefersDark {};
    /// The desktop's interface font; empty for the toolkit's default.
    QString fontFamily {};

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

/// Which colours read on a host's panel. No host tells, so the best informed voice decides: the
/// user's choice, then what the host's own settings say, then the colours that the panel's tray
/// announces on X11, then what such hosts look like by default, then the desktop's own scheme.
/// Where all are silent the item brings along a ground of its own.
class PanelColors : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void setAppearance(const StatusAreaAppearance &appearance);
    [[nodiscard]] const StatusAreaAppearance &appearance() const noexcept { return m_appearance; }

    /// The text colour that the tray announced; absent where there is none.
    void setTrayText(const std::optional<QColor> &color);
    /// The text colour that the settings of the panel with this name tell; absent where they do
    /// not.
    void setPanelText(QLatin1StringView panel, const std::optional<QColor> &color);

    /// The text colour that i3 tells of its own bar; absent where it does not.
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

    StatusAreaAppearance m_appearance;
    std::optional<QColor> m_trayText;
    QHash<QLatin1StringView, QColor> m_panelTexts;
    std::optional<QColor> m_i3BarText;
};

} // namespace ferrin
