// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/waylandoutputs.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <wayland-client.h>
#include <xdg-output-unstable-v1.h>

namespace ferrin {

namespace {

// The first that tells names.
constexpr quint32 namingVersion = ZXDG_OUTPUT_V1_NAME_SINCE_VERSION;

bool isNamed(const char *interface, const wl_interface &wanted)
{
    return std::strcmp(interface, wanted.name) == 0;
}

} // namespace

class WaylandOutputs::Output
{
public:
    Output(wl_output *output, quint32 global)
        : m_output(output)
        , m_global(global)
    {
    }
    ~Output()
    {
        if (m_description)
            zxdg_output_v1_destroy(m_description);
        wl_output_destroy(m_output);
    }
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    [[nodiscard]] wl_output *output() const noexcept { return m_output; }
    [[nodiscard]] quint32 global() const noexcept { return m_global; }
    [[nodiscard]] const QString &name() const noexcept { return m_name; }
    [[nodiscard]] bool awaitsName() const { return m_description && m_name.isEmpty(); }

    void askForName(zxdg_output_manager_v1 *manager)
    {
        m_description = zxdg_output_manager_v1_get_xdg_output(manager, m_output);
        zxdg_output_v1_add_listener(m_description, &callbacks, this);
    }

private:
    static void takePosition(void *, zxdg_output_v1 *, qint32, qint32) { }
    static void takeSize(void *, zxdg_output_v1 *, qint32, qint32) { }
    static void takeDone(void *, zxdg_output_v1 *) { }
    static void takeName(void *self, zxdg_output_v1 *, const char *name)
    {
        static_cast<Output *>(self)->m_name = QString::fromUtf8(name);
    }
    static void takeDescription(void *, zxdg_output_v1 *, const char *) { }
    static constexpr zxdg_output_v1_listener callbacks { takePosition, takeSize, takeDone, takeName,
                                                         takeDescription };

    wl_output *m_output;
    quint32 m_global;
    zxdg_output_v1 *m_description = nullptr;
    QString m_name;
};

WaylandOutputs::WaylandOutputs() = default;

WaylandOutputs::~WaylandOutputs()
{
    clear();
}

void WaylandOutputs::clear()
{
    m_outputs.clear();
    if (m_manager)
        zxdg_output_manager_v1_destroy(std::exchange(m_manager, nullptr));
}

void WaylandOutputs::add(wl_registry *registry, quint32 global, const char *interface,
                         quint32 version)
{
    if (isNamed(interface, wl_output_interface)) {
        auto *const output
            = static_cast<wl_output *>(wl_registry_bind(registry, global, &wl_output_interface, 1));
        m_outputs.push_back(std::make_unique<Output>(output, global));
        if (m_manager)
            m_outputs.back()->askForName(m_manager);
    } else if (isNamed(interface, zxdg_output_manager_v1_interface) && version >= namingVersion) {
        m_manager = static_cast<zxdg_output_manager_v1 *>(
            wl_registry_bind(registry, global, &zxdg_output_manager_v1_interface, namingVersion));
        for (const auto &output : m_outputs)
            output->askForName(m_manager);
    }
}

void WaylandOutputs::remove(quint32 global)
{
    std::erase_if(m_outputs, [global](const auto &output) { return output->global() == global; });
}

bool WaylandOutputs::awaitsNames() const
{
    return std::ranges::any_of(m_outputs, [](const auto &output) { return output->awaitsName(); });
}

wl_output *WaylandOutputs::named(const QString &name) const
{
    const auto found = std::ranges::find_if(
        m_outputs, [&name](const auto &output) { return output->name() == name; });
    return found == m_outputs.end() ? nullptr : (*found)->output();
}

} // namespace ferrin
