// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The floor of opening a window: `bench_barewindow COUNT` opens a bare Qt Quick window of the
// dashboard's size, with an engine of its own as the toolkit makes it, and prints one line of
// milliseconds for each opening.

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickView>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication::setDesktopSettingsAware(false);
    const QGuiApplication app(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);

    for (int i = 0; i < app.arguments().value(1).toInt(); ++i) {
        QEventLoop loop;
        QElapsedTimer timer;
        timer.start();
        {
            QQuickView view(QUrl(u"qrc:/bench/Bare.qml"_s));
            view.resize(370, 230);
            QObject::connect(&view, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
            view.show();
            loop.exec();
            std::printf("%.2f\n", double(timer.nsecsElapsed()) / 1e6);
        }
        QTimer::singleShot(300, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return EXIT_SUCCESS;
}
