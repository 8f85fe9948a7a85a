// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The floor of opening a window: in the place of the dashboard a bare Qt Quick window of its size,
// made as the toolkit's own examples make one.

#include "app/windows.h"

#include <QObject>
#include <QQuickView>

namespace ferrin {

namespace {

class BareWindows final : public Windows
{
public:
    BareWindows() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

    void showDashboard(const ItemPlace &) override
    {
        m_view = std::make_unique<QQuickView>(QUrl(QStringLiteral("qrc:/bench/Bare.qml")));
        m_view->resize(414, 274);
        m_view->show();
    }
    void hideDashboard() override { m_view.release()->deleteLater(); }
    [[nodiscard]] bool isOfDashboard(const QWindow &window) const override
    {
        return &window == m_view.get();
    }
    void openWindow(const QString &) override { }

private:
    std::unique_ptr<QQuickView> m_view;
};

} // namespace

class BareWindowsPlugin final : public QObject, public WindowsFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID FerrinWindowsFactory_iid)
    Q_INTERFACES(ferrin::WindowsFactory)

public:
    [[nodiscard]] std::unique_ptr<Windows> create(const WindowsPlatform &) override
    {
        return std::make_unique<BareWindows>();
    }
};

} // namespace ferrin

#include "barewindow.moc"
