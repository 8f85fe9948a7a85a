// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace ferrin {

/// What the program knows of itself: its information keys, compiled in and never changed. The four
/// that every bundle defines have functions of their own; a bundle without the one that is asked
/// for stops the process.
class Bundle
{
public:
    /// The running program's.
    [[nodiscard]] static const Bundle &main();

    explicit Bundle(QJsonObject information);

    /// The text under an information key; absent when the key is missing or holds no text.
    [[nodiscard]] std::optional<QString> information(const QString &key) const;

    /// Reverse-DNS name of the program; it names the defaults suite, the log's subsystem and the
    /// program on the session bus.
    [[nodiscard]] QString identifier() const;
    /// What people call the program.
    [[nodiscard]] QString name() const;
    /// The release, as people read it: "0.1.0".
    [[nodiscard]] QString shortVersion() const;
    /// Tells builds of one release apart.
    [[nodiscard]] QString buildNumber() const;

private:
    [[nodiscard]] QString required(const QString &key, const char *meaning) const;

    QJsonObject m_information;
};

} // namespace ferrin
