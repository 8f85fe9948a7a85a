// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

namespace ferrin {

/// The same Markdown without anything that a view would load or lead to: images and links become
/// their words, and HTML is shown as it is written.
[[nodiscard]] QString harmlessMarkdown(const QString &markdown);

} // namespace ferrin
