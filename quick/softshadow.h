// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

class QImage;
class QPainterPath;
class QSize;

namespace ferrin {

/// The soft shadow of a filled outline within this size, both in logical pixels. The image has half
/// the resolution in each direction and must be scaled up to the size, which the blur hides.
[[nodiscard]] QImage softShadow(const QPainterPath &outline, const QSize &size, qreal softness,
                                int darkness);

} // namespace ferrin
