// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QUrl>

namespace ferrin {

/// Where users turn to with their questions. The application knows; the views only offer it.
struct Vendor
{
    /// The page of frequently asked questions, on the web or on this machine.
    QUrl faq;
    /// Opens a new mail to the support.
    QUrl supportMail;
};

} // namespace ferrin
