// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

namespace ferrin {

/// The same Markdown without anything that a view would load or lead to: images and links become
/// their words, and HTML is shown as it is written.
[[nodiscard]] QString harmlessMarkdown(const QString &markdown);

/// The same Markdown in letters of one size, as it reads well in a small space: headings are only
/// bold, and what is emphasised leans instead of being underlined.
[[nodiscard]] QString evenMarkdown(const QString &markdown);

} // namespace ferrin
