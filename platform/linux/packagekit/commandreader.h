// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace ferrin {

/// Runs a small program of the package system and hands over what it printed, empty when there is
/// no such program, or it fails, prints too much or takes too long. Tests hand in another.
using CommandReader
    = std::function<void(QObject *context, const QString &program, const QStringList &arguments,
                         const std::function<void(const QByteArray &)> &answer)>;

/// The one that starts processes, which end with the context.
void readCommand(QObject *context, const QString &program, const QStringList &arguments,
                 const std::function<void(const QByteArray &)> &answer);

} // namespace ferrin
