// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerservice.h"

#include "platform/linux/power/upower/upowerdescription.h"

#include <QVariantMap>

#include <numeric>
#include <utility>

namespace ferrin {

namespace {

struct Picture
{
    QList<UPowerDevice> sources;
    QList<QVariantMap> descriptions;
    std::optional<bool> onBattery;
};

std::shared_ptr<const Picture> pictureOf(const UPowerPicture &devices)
{
    auto picture = std::make_shared<Picture>();
    picture->onBattery = devices.onBattery();
    picture->sources = powerSourcesInOrder(devices.devices(), picture->onBattery);
    for (const UPowerDevice &source : std::as_const(picture->sources))
        picture->descriptions.append(describe(source, picture->onBattery));
    return picture;
}

const Picture *pictureIn(const PowerSourcesService::Snapshot &snapshot)
{
    return static_cast<const Picture *>(snapshot.get());
}

} // namespace

UPowerService::UPowerService(const QDBusConnection &bus, SteadyNow now, QObject *parent)
    : QObject(parent)
    , m_picture(bus, now)
    , m_settling(std::move(now))
{
    connect(&m_picture, &UPowerPicture::changed, this, [this] { m_snapshot.reset(); });
    connect(&m_picture, &UPowerPicture::powerStateChanged, this, [this] {
        const std::optional<bool> onBattery = m_picture.onBattery();
        Q_EMIT powerStateChanged(onBattery ? std::optional(!*onBattery) : std::nullopt);
    });
    m_picture.waitForFirstPicture(firstPictureBudget);
}

PowerSourcesService::Snapshot UPowerService::copyInfo()
{
    m_picture.noteSilence();
    if (!m_picture.isKnown())
        return {};
    if (!m_snapshot)
        m_snapshot = pictureOf(m_picture);
    return m_snapshot;
}

std::optional<QList<PowerSourcesService::SourceHandle>>
UPowerService::copyList(const Snapshot &snapshot)
{
    if (!snapshot)
        return std::nullopt;
    QList<SourceHandle> handles(pictureIn(snapshot)->sources.size());
    std::iota(handles.begin(), handles.end(), 0);
    return handles;
}

QVariant UPowerService::description(const Snapshot &snapshot, SourceHandle handle)
{
    const Picture *picture = pictureIn(snapshot);
    if (!picture || handle < 0 || handle >= picture->sources.size())
        return {};
    const QVariantMap &description = picture->descriptions.at(handle);
    if (!m_settling.isRunning())
        return description;
    return describeSettling(description,
                            settlingFlowOf(picture->sources.at(handle), picture->onBattery,
                                           m_settling.onExternalPower()));
}

void UPowerService::settle(std::optional<bool> onExternalPower)
{
    m_settling.begin(onExternalPower);
}

} // namespace ferrin
