// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QUrl>

namespace ferrin {

/// Where users turn to with their questions. The application provides it.
struct Vendor
{
    /// The page of frequently asked questions, on the web or on this machine.
    QUrl faq;
    /// Opens a new mail to the support; empty: there is no support address.
    QUrl supportMail;
};

} // namespace ferrin
