// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/batterymemory.h"

#include <QString>

#include <map>
#include <string>

namespace ferrin {

/// What has been learned of the batteries, and the file that keeps it across starts. The file is
/// read once, written at most once in ten minutes and replaced in one step. What cannot be read or
/// written costs one log line; the memory then lasts as long as the process.
class MemoryStore
{
public:
    /// An empty path keeps nothing.
    explicit MemoryStore(QString path);

    /// `batteries.json` in the program's folder of `$XDG_STATE_HOME`, which is `~/.local/state`
    /// where it is not set.
    [[nodiscard]] static QString usualPath();

    /// The memory of a battery, empty when there is none. The key tells batteries of different
    /// make apart, not two of one make.
    [[nodiscard]] const BatteryMemory &find(const std::string &key) const;

    /// For whoever changes it; save() will write it.
    [[nodiscard]] BatteryMemory &change(const std::string &key);

    /// Writes the file if anything changed and ten minutes have passed since it was last written.
    /// `elapsed` also counts while the machine sleeps.
    void save(Hours elapsed);

    /// Writes the file if anything changed: the program ends.
    void saveNow();

private:
    void load();
    void complain(const QString &trouble);

    QString m_path;
    std::map<std::string, BatteryMemory> m_memories;
    std::optional<Hours> m_saved;
    bool m_changed = false;
    bool m_complained = false;
};

} // namespace ferrin
