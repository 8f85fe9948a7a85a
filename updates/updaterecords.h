// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace ferrin {

class DefaultsStore;

/// What the updater service remembers across launches, each under a key of its own in the defaults
/// store. It caches nothing; a value that cannot be read counts as absent.
class UpdateRecords
{
public:
    /// The store outlives this.
    explicit UpdateRecords(DefaultsStore &store);

    /// True unless the user has said otherwise.
    [[nodiscard]] bool automaticallyChecksForUpdates() const;
    void setAutomaticallyChecksForUpdates(bool checks);
    /// False unless the user has said otherwise.
    [[nodiscard]] bool automaticallyDownloadsUpdates() const;
    void setAutomaticallyDownloadsUpdates(bool downloads);

    /// When the last check began, whoever asked for it.
    [[nodiscard]] std::optional<QDateTime> lastCheck() const;
    void setLastCheck(const QDateTime &moment);

    /// The version that the user does not want to hear of again.
    [[nodiscard]] QString skippedVersion() const;
    void setSkippedVersion(const QString &version);

private:
    [[nodiscard]] std::optional<QDateTime> moment(const QString &key) const;
    void setMoment(const QString &key, const QDateTime &moment);

    DefaultsStore &m_store;
};

} // namespace ferrin
