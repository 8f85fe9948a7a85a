// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updatefeed.h"

namespace ferrin {

// In the place of the build's own.
UpdateFeed UpdateFeed::ofThisBuild()
{
    return { .address = QUrl(qEnvironmentVariable("FERRIN_TEST_FEED")),
             .publicKey = QByteArray::fromBase64(qgetenv("FERRIN_TEST_FEED_KEY")),
             .architecture = QStringLiteral("amd64") };
}

} // namespace ferrin
