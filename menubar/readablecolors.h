// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QList>

namespace ferrin {

// Colours that are changed in their lightness until they can be read. Contrasts are those of
// menubar/contrast.h, and all colours opaque.

/// The colour nearest to the wish, of its hue, that has the least contrast with every ground; the
/// better of black and white where there is none.
[[nodiscard]] QColor readableColor(const QColor &wish, const QList<QColor> &grounds, double least);

/// The same for a ground of its own, such as a button's: it stands out from the grounds around it
/// as graphics must, or more where texts must have more than usual, and white or black text on it
/// has the least contrast. White is preferred, as desktops do.
[[nodiscard]] QColor prominentColor(const QColor &wish, const QList<QColor> &grounds, double least);

/// White where it has the least contrast with the ground, else black.
[[nodiscard]] QColor whiteOrBlackOn(const QColor &ground, double least);

/// The hue of the accent in a colour of ours: as bright as ours, so that all of its contrasts
/// remain, and no more vivid than either. Ours for an invalid accent.
[[nodiscard]] QColor colorInHueOf(const QColor &accent, const QColor &own);

} // namespace ferrin
