// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

class QImage;
class QPainterPath;
class QSize;

namespace ferrin {

/// The soft shadow of a filled outline in a picture of this size, both in logical pixels. The
/// picture is of half the resolution, which a shadow's softness does not show.
[[nodiscard]] QImage softShadow(const QPainterPath &outline, const QSize &size, qreal softness,
                                int darkness);

} // namespace ferrin
