// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/statusitemidentity.h"

namespace ferrin {

using namespace Qt::StringLiterals;

QString StatusItemIdentity::text() const
{
    if (const auto *position = std::get_if<int>(&value))
        return u"index %1"_s.arg(*position);
    return u"ID \"%1\""_s.arg(std::get<QString>(value));
}

} // namespace ferrin
