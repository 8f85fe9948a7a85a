// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace ferrin {

/// The item's icons as files of a symbolic icon theme, for hosts that draw icons by their names, in
/// the panel's own colour. All of them are written when the first is asked for, because toolkits
/// cache what a folder holds; they are gone with this object.
class IconFiles
{
public:
    /// The name of the content's icon; empty where the files cannot be written.
    [[nodiscard]] QString nameFor(const ItemContent &content);

    /// Where the icons are, for `IconThemePath`; empty before the first name.
    [[nodiscard]] QString folder() const;

private:
    void write();

    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace ferrin
