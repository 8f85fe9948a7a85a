// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace ferrin {

class BatteryDataProvider;
class DisplaySwitches;
class SettingsData;
class StatusBar;
class StatusItem;

/// Puts the content into the status item and keeps the item as wide as the content. One serves the
/// process. It decides neither what the content is (contentFor) nor how a host shows it (the
/// platform).
class MenuBarItemProvider : public QObject
{
    Q_OBJECT

public:
    /// What the provider is built from; all that it refers to outlives the provider.
    struct Parts
    {
        StatusBar &statusBar;
        /// Gives the provider of the snapshot. Not called before the first content is built,
        /// because the first view that reads the snapshot is what brings it to life.
        std::function<BatteryDataProvider &()> battery;
        SettingsData &settings;
        DisplaySwitches &switches;
        /// What widths are measured with; only its font matters here.
        ViewContext context;
    };

    explicit MenuBarItemProvider(const Parts &parts, QObject *parent = nullptr);
    ~MenuBarItemProvider() override;

    /// Hands over the parts of the process-wide provider; the application does so once, before
    /// anything asks for it.
    static void setParts(const Parts &parts);
    /// The one of the process, made on first use and never destroyed. Asking before its parts were
    /// handed over is a programming error and stops the process.
    [[nodiscard]] static MenuBarItemProvider &shared();

    /// A detached placeholder until the real item arrives, and again once that is gone.
    [[nodiscard]] StatusItem &statusItem() const;
    /// Replaces the item, which the bar goes on owning; `update()` fills the new one.
    void setStatusItem(StatusItem &item);

    /// The bar's thickness when the provider was made.
    [[nodiscard]] qreal viewHeight() const noexcept { return m_viewHeight; }

    /// Measures with another font from now on and rebuilds the content.
    void setContext(const ViewContext &context);

public Q_SLOTS:
    /// Makes the content view anew and installs it at the stored width.
    void update();

Q_SIGNALS:
    /// The user chose "Quit Ferrin": the application terminates itself.
    void quitRequested();

private:
    Parts m_parts;
    std::unique_ptr<StatusItem> m_placeholder;
    QPointer<StatusItem> m_statusItem;
    const qreal m_viewHeight;
};

} // namespace ferrin
