// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace ferrin {

/// A newer version of the program that the system's package sources offer.
struct Release
{
    /// As people read it: "1.3.0".
    QString version;
    /// What the package service calls it; nobody else interprets this.
    QString package;
    std::optional<QDate> date;
    /// Of the download, in bytes.
    std::optional<qint64> size;
    /// Plain text from outside; empty where there are none.
    QString notes;

    friend bool operator==(const Release &, const Release &) = default;
};

} // namespace ferrin
