// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace ferrin {

/// The program's own information keys, which are compiled in and constant. The four keys that every
/// bundle defines have functions of their own; such a function stops the process when its key is
/// missing.
class Bundle
{
public:
    /// The bundle of the running program.
    [[nodiscard]] static const Bundle &main();

    explicit Bundle(QJsonObject information);

    /// The text under an information key; absent when the key is missing or holds no text.
    [[nodiscard]] std::optional<QString> information(const QString &key) const;

    /// Reverse-DNS name of the program; it names the defaults suite, the log's subsystem and the
    /// program on the session bus.
    [[nodiscard]] QString identifier() const;
    /// The name that is shown to the user.
    [[nodiscard]] QString name() const;
    /// The release as it is shown to the user: "0.1.0".
    [[nodiscard]] QString shortVersion() const;
    /// Distinguishes builds of the same release.
    [[nodiscard]] QString buildNumber() const;

private:
    [[nodiscard]] QString required(const QString &key, const char *meaning) const;

    QJsonObject m_information;
};

} // namespace ferrin
