// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace ferrin {

/// A panel that items are drawn on.
struct SheetTheme
{
    QColor bar;
    QColor text;
    QColor red;
    QString fontFamily;
};

[[nodiscard]] SheetTheme lightTheme(const QString &fontFamily);
[[nodiscard]] SheetTheme darkTheme(const QString &fontFamily);

/// Every icon at four charges, at 1x and at 2x.
[[nodiscard]] QImage iconSheet(const SheetTheme &theme);

/// Every symbol of the windows at three heights, at 1x and at 2x.
[[nodiscard]] QImage symbolSheet(const SheetTheme &theme);

/// Every form with a selection of contents, in sizes that hosts request.
[[nodiscard]] QImage formSheet(const SheetTheme &theme);

} // namespace ferrin
