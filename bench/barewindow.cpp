// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The baseline for opening a window: empty Qt Quick windows in place of the dashboard and the
// settings, of the same sizes, created as in Qt's examples. As in the program, the dashboard is
// created again for each opening, and the settings are kept.

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
        m_view = bareView(QSize(414, 274));
        m_view->show();
    }
    void hideDashboard() override { m_view.release()->deleteLater(); }
    [[nodiscard]] bool isOfDashboard(const QWindow &window) const override
    {
        return &window == m_view.get();
    }
    void openWindow(const QString &, const ItemPlace &) override
    {
        if (!m_settings)
            m_settings = bareView(QSize(701, 500));
        m_settings->show();
    }
    [[nodiscard]] bool isAnyShown() const override { return m_view || m_settings; }

private:
    static std::unique_ptr<QQuickView> bareView(QSize size)
    {
        auto view = std::make_unique<QQuickView>(QUrl(QStringLiteral("qrc:/bench/Bare.qml")));
        view->resize(size);
        return view;
    }

    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<QQuickView> m_settings;
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
