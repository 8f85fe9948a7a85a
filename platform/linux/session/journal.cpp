// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The place in the source would be this file, whoever logs.
#define SD_JOURNAL_SUPPRESS_LOCATION

#include "platform/linux/session/journal.h"

#ifdef FERRIN_SYSTEMD
#include <QFileInfo>

#include <sys/uio.h>
#include <systemd/sd-journal.h>
#include <vector>
#endif

namespace ferrin {

#ifdef FERRIN_SYSTEMD

using namespace Qt::StringLiterals;

bool isJournalRunning()
{
    return QFileInfo::exists(u"/run/systemd/journal/socket"_s);
}

bool sendToJournal(QByteArrayList fields)
{
    std::vector<iovec> parts;
    for (QByteArray &field : fields)
        parts.push_back({ field.data(), static_cast<std::size_t>(field.size()) });
    return sd_journal_sendv(parts.data(), static_cast<int>(parts.size())) >= 0;
}

#else

bool isJournalRunning()
{
    return false;
}

bool sendToJournal(QByteArrayList /*fields*/)
{
    return false;
}

#endif

} // namespace ferrin
