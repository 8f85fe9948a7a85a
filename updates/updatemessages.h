// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateengine.h"

#include <QByteArray>

#include <optional>
#include <variant>

namespace ferrin {

/// Bytes.
struct UpdateProgress
{
    qint64 received = 0;
    qint64 total = 0;

    friend bool operator==(const UpdateProgress &, const UpdateProgress &) = default;
};

struct DownloadedPackage
{
    QString path;

    friend bool operator==(const DownloadedPackage &, const DownloadedPackage &) = default;
};

/// What the program and the update helper say to each other: a line of JSON each, one task there,
/// any number of progresses and one last answer back.
using UpdateTask = std::variant<UpdateCheck, PackageRequest>;
using UpdateAnswer = std::variant<UpdateOffer, UpdateProgress, DownloadedPackage, UpdateTrouble>;

[[nodiscard]] QByteArray lineFrom(const UpdateTask &task);
[[nodiscard]] std::optional<UpdateTask> taskFromLine(const QByteArray &line);

[[nodiscard]] QByteArray lineFrom(const UpdateAnswer &answer);
[[nodiscard]] std::optional<UpdateAnswer> answerFromLine(const QByteArray &line);

} // namespace ferrin
