// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/oncelog.h"

#include "base/logging.h"

namespace ferrin {

using namespace Qt::StringLiterals;

void OnceLog::error(const QString &message, const QString &detail)
{
    constexpr qsizetype maxDetailLength = 200;
    if (!m_logged.insert(message).second)
        return;
    const QString text = detail.left(maxDetailLength).simplified();
    const QString line = text.isEmpty() ? message : message + u": "_s + text;
    qCCritical(logger, "%ls", qUtf16Printable(line));
}

} // namespace ferrin
