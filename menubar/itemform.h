// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

#include <QImage>

namespace ferrin {

/// The forms in which an item's content is painted. All are made from the same elements.
enum class ItemForm {
    /// The view itself, two lines of text beside the icon.
    Wide,
    /// Everything in one row, for bars whose icons are 16 px high.
    OneLine,
    /// A square cell: one element fills it, two share it, three fit (the charge within the glyph,
    /// the time below).
    Square,
    /// The icon alone in a square cell, for hosts that show the texts themselves as a label;
    /// transparent where the user wants no icon.
    Glyph,
};

/// One picture of the content: `height` logical pixels high (squares as wide as high, the others as
/// wide as their content needs), `scale` device pixels a logical one, straight alpha
/// (Format_ARGB32), device pixel ratio 1 on the image itself. With a chip in the context it stands
/// on one, which fills the picture. A picture that would be narrower than `leastWidth` logical
/// pixels is made that wide.
[[nodiscard]] QImage paintForm(ItemForm form, const ItemContent &content, int height, qreal scale,
                               const ViewContext &context, qreal leastWidth = 0);

/// The width that the content needs in this form, logical pixels.
[[nodiscard]] qreal widthNeeded(ItemForm form, const ItemContent &content, int height,
                                const ViewContext &context);

/// The texts of the content in one line for hosts that draw a label themselves: "37% 4:29". Empty
/// when the content shows only an icon.
[[nodiscard]] QString labelFor(const ItemContent &content);

} // namespace ferrin
