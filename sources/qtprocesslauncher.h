// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/processlauncher.h"

namespace ferrin {

/// The process launcher for every system that Qt runs on. The programs it starts look for theirs in
/// one folder of ours before any other. It keeps no process beyond the call that started it.
class QtProcessLauncher final : public ProcessLauncher
{
public:
    /// `firstInPath` is put before the folders of the PATH that this process has.
    explicit QtProcessLauncher(QString firstInPath);

    [[nodiscard]] std::optional<QByteArray> output(const QString &executable,
                                                   const QStringList &arguments) override;

private:
    QString m_firstInPath;
};

} // namespace ferrin
