// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/panelcolors/filecolors.h"

#include <QHash>

namespace ferrin {

/// The colour of text on Waybar by its style sheet: the user's own, or the one that it comes with.
/// https://github.com/Alexays/Waybar/wiki/Styling
class WaybarColors final : public FileColors
{
    Q_OBJECT

public:
    using FileColors::FileColors;

    /// A bar with this process and these arguments, of which one may be the style sheet. Each bar
    /// counts for as long as its process runs.
    void addBar(uint processId, const QStringList &arguments);

    /// Whether the desktop's colour scheme is dark, for which a bar may have a sheet of its own.
    void setDesktopDark(const std::optional<bool> &isDark);

    /// The sheets do not give the colour, or those of several bars disagree.
    [[nodiscard]] bool isUncertain() const override { return !text(); }

private:
    [[nodiscard]] QStringList files() const override;
    [[nodiscard]] std::optional<QColor> readText() const override;
    /// The sheets of the bars that run, each once.
    [[nodiscard]] QStringList sheets() const;
    [[nodiscard]] QString usualSheet() const;

    /// The style sheets that were given to the bars, by process; empty for the usual one.
    QHash<uint, QString> m_given;
    std::optional<bool> m_isDesktopDark;
};

} // namespace ferrin
