// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

class QImage;
class QPainterPath;
class QSize;

namespace ferrin {

/// The soft shadow of a filled outline within this size, both in logical pixels. The picture has
/// half as many pixels each way and is to be drawn over the whole size: a shadow's softness hides
/// that.
[[nodiscard]] QImage softShadow(const QPainterPath &outline, const QSize &size, qreal softness,
                                int darkness);

} // namespace ferrin
