// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/processlauncher.h"

namespace ferrin {

/// A process launcher on top of QProcess. The programs that it starts find the programs of one
/// folder of ours before any other, because that folder comes first in their PATH.
class QtProcessLauncher final : public ProcessLauncher
{
public:
    /// `firstInPath` is put in front of this process's own PATH.
    explicit QtProcessLauncher(QString firstInPath);

    [[nodiscard]] std::optional<QByteArray> output(const QString &executable,
                                                   const QStringList &arguments) override;

private:
    QString m_firstInPath;
};

} // namespace ferrin
