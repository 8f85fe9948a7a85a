// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <optional>

namespace ferrin {

/// What the package source's metadata tells of a release.
struct ReleaseNotes
{
    /// Plain text: paragraphs, and items that begin with "• ".
    QString text;
    std::optional<QDate> date;

    friend bool operator==(const ReleaseNotes &, const ReleaseNotes &) = default;
};

/// The notes of a version out of an AppStream component in XML; empty when they are not there.
/// https://www.freedesktop.org/software/appstream/docs/sect-Metadata-Releases.html
[[nodiscard]] ReleaseNotes notesFromAppStream(const QByteArray &xml, const QString &version);

/// Notes that fit into a window: without control characters, and cut where they grow too long.
[[nodiscard]] QString harmlessNotes(const QString &text);

} // namespace ferrin
