// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updatefeed.h"

namespace ferrin {

UpdateFeed UpdateFeed::ofThisBuild()
{
    return { .address = QUrl(QStringLiteral(FERRIN_FEED_URL)),
             .publicKey = QByteArray::fromBase64(FERRIN_FEED_PUBLIC_KEY),
             .architecture = QStringLiteral(FERRIN_DEBIAN_ARCHITECTURE) };
}

} // namespace ferrin
