// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

struct wl_output;
struct wl_registry;
struct zxdg_output_manager_v1;

namespace ferrin {

/// The compositor's outputs by their names, which are those of Qt's screens. The names are told by
/// xdg-output, which older compositors have as well; where it is missing no output is found.
class WaylandOutputs
{
public:
    WaylandOutputs();
    ~WaylandOutputs();

    /// Takes a global of the registry, if it has to do with outputs. The name of an output follows
    /// with the compositor's next answer.
    void add(wl_registry *registry, quint32 global, const char *interface, quint32 version);
    void remove(quint32 global);
    void clear();

    /// Whether an answer is still awaited.
    [[nodiscard]] bool awaitsNames() const;
    /// Null for a name that no output has.
    [[nodiscard]] wl_output *named(const QString &name) const;

private:
    class Output;

    zxdg_output_manager_v1 *m_manager = nullptr;
    std::vector<std::unique_ptr<Output>> m_outputs;
};

} // namespace ferrin
