// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateengine.h"

#include <QByteArray>
#include <QDateTime>

#include <variant>

namespace ferrin {

/// What a feed as it was fetched means for this machine at this moment, or why it is not believed.
[[nodiscard]] std::variant<UpdateOffer, UpdateTrouble>
judgeFeed(const QByteArray &fetched, const UpdateCheck &check, const QDateTime &now);

} // namespace ferrin
