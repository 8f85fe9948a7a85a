// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/bundle.h"
#include "updates/network/networkupdateengine.h"
#include "updates/network/updatehelper.h"

#include <QCoreApplication>
#include <QNetworkProxyFactory>

using namespace ferrin;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(Bundle::main().shortVersion());
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    NetworkUpdateEngine engine({});
    const UpdateHelper helper(engine);
    return QCoreApplication::exec();
}
