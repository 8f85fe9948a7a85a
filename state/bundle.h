// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace ferrin {

/// What the program knows of itself: its information keys, compiled in and never changed.
class Bundle
{
public:
    /// The running program's.
    [[nodiscard]] static const Bundle &main();

    explicit Bundle(QJsonObject information);

    /// The text under an information key; absent when the key is missing or holds no text.
    [[nodiscard]] std::optional<QString> information(const QString &key) const;

    /// Reverse-DNS name of the program; it names the defaults suite, the log's subsystem and the
    /// program on the session bus. A bundle without one stops the process.
    [[nodiscard]] QString identifier() const;

    /// The release, as people read it: "0.1.0". Empty when the bundle does not say.
    [[nodiscard]] QString shortVersion() const;

private:
    QJsonObject m_information;
};

} // namespace ferrin
