// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/panelcolors/filecolors.h"

namespace ferrin {

class StyleSheet;

/// The colour of text on LXQt's panel: what the user set on the panel itself, else what the
/// desktop's theme says of it.
class LxqtColors final : public FileColors
{
    Q_OBJECT

public:
    using FileColors::FileColors;

private:
    [[nodiscard]] QStringList files() const override;
    [[nodiscard]] std::optional<QColor> readText() const override;
};

/// The colour of text on Waybar, as its style sheet tells: the user's own, or the one that it comes
/// with.
class WaybarColors final : public FileColors
{
    Q_OBJECT

public:
    using FileColors::FileColors;

    /// How the process was started, of which a word may be the style sheet. Call before `start`.
    void setArguments(const QStringList &arguments);

private:
    [[nodiscard]] QStringList files() const override;
    [[nodiscard]] std::optional<QColor> readText() const override;
    [[nodiscard]] QString file() const;

    /// Empty where the bar looks for it itself.
    QString m_given;
};

/// The words that a process was started with; empty when there is none such.
[[nodiscard]] QStringList argumentsFromKernel(uint processId);

} // namespace ferrin
