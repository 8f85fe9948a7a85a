// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

namespace ferrin {

/// The desktop's own way to install a package file, which asks the user and gets the rights that it
/// needs by itself. The platform implements it.
class PackageInstaller
{
public:
    virtual ~PackageInstaller() = default;

    /// Hands the file over and does not wait; false when there is nobody to take it.
    [[nodiscard]] virtual bool install(const QString &path) = 0;
};

} // namespace ferrin
