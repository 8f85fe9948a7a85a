// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/settingsdata.h"

#include "base/logging.h"
#include "state/defaultsstore.h"
#include "state/iconcatalogues.h"
#include "state/shareddefaults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QScopedValueRollback>

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString dischargingKey = u"dischargingIconSelected"_s;
const QString chargingKey = u"chargingIconSelected"_s;
const QString chargedKey = u"chargedIconSelected"_s;
const QString releaseKey = u"releaseVersionNumber"_s;
const QString widthKey = u"statusItemWidth"_s;

constexpr float defaultStatusItemWidth = 48;

Icon firstOf(std::span<const Icon> icons)
{
    if (icons.empty())
        qFatal("A list of available icons is empty");
    return icons.front();
}

// A lone text is no document to QJsonDocument, so it travels in an array.
std::optional<QByteArray> encoded(Icon icon)
{
    if (std::ranges::find(allIcons(), icon) == allIcons().end())
        return std::nullopt;
    const QByteArray array
        = QJsonDocument(QJsonArray { rawValue(icon) }).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

std::optional<Icon> decoded(const QByteArray &data)
{
    const QJsonArray array = QJsonDocument::fromJson('[' + data + ']').array();
    return array.size() == 1 ? iconFromRawValue(array.first().toString()) : std::nullopt;
}

} // namespace

IconsOnOffer IconsOnOffer::fromCatalogues()
{
    return { DischargingIconsAvailable::shared().list, ChargingIconsAvailable::shared().list,
             ChargedIconsAvailable::shared().list };
}

SettingsData &SettingsData::shared()
{
    static SettingsData settings(sharedDefaults(), Bundle::main());
    return settings;
}

SettingsData::SettingsData(DefaultsStore &defaults, const Bundle &bundle, const IconsOnOffer &icons)
    : m_defaults(defaults)
    , m_shortVersion(bundle.shortVersion())
    , m_dischargingDefault(firstOf(icons.discharging))
    , m_chargingDefault(firstOf(icons.charging))
    , m_chargedDefault(firstOf(icons.charged))
{
    connect(&m_defaults, &DefaultsStore::changed, this, [this](const QString &key) {
        if (key != m_keyBeingWritten)
            notify(key);
    });
    replaceUnlessOffered(dischargingKey, m_dischargingDefault, icons.discharging);
    replaceUnlessOffered(chargingKey, m_chargingDefault, icons.charging);
    replaceUnlessOffered(chargedKey, m_chargedDefault, icons.charged);
    updateReleaseVersion();
    m_defaults.registerDefaults({ { widthKey, defaultStatusItemWidth } });
}

// The readers below take part in the caller's binding only once the value stands: a default that is
// written while a binding is evaluated must not call that same binding again.

Icon SettingsData::dischargingIconSelected()
{
    const Icon icon = readOrReplace(dischargingKey, m_dischargingDefault);
    bindingStorage()->registerDependency(&m_discharging);
    return icon;
}

Icon SettingsData::chargingIconSelected()
{
    const Icon icon = readOrReplace(chargingKey, m_chargingDefault);
    bindingStorage()->registerDependency(&m_charging);
    return icon;
}

Icon SettingsData::chargedIconSelected()
{
    const Icon icon = readOrReplace(chargedKey, m_chargedDefault);
    bindingStorage()->registerDependency(&m_charged);
    return icon;
}

QString SettingsData::releaseVersionNumber()
{
    if (!m_defaults.string(releaseKey))
        write(releaseKey, m_shortVersion, &DefaultsStore::setMissingObject);
    return m_release.value();
}

void SettingsData::setDischargingIconSelected(Icon icon)
{
    encodeAndWrite(icon, dischargingKey);
}

void SettingsData::setChargingIconSelected(Icon icon)
{
    encodeAndWrite(icon, chargingKey);
}

void SettingsData::setChargedIconSelected(Icon icon)
{
    encodeAndWrite(icon, chargedKey);
}

void SettingsData::setReleaseVersionNumber(const QString &version)
{
    write(releaseKey, version);
}

void SettingsData::setStatusItemWidth(float width)
{
    write(widthKey, width);
}

std::optional<Icon> SettingsData::readAndDecode(const QString &key) const
{
    const auto data = m_defaults.data(key);
    if (!data)
        return std::nullopt;
    const auto icon = decoded(*data);
    if (!icon)
        qCCritical(logger, "Unable to decode key %s", qUtf8Printable(key));
    return icon;
}

void SettingsData::encodeAndWrite(Icon icon, const QString &key, Setter setter)
{
    if (const auto data = encoded(icon)) {
        write(key, *data, setter);
        return;
    }
    qCCritical(logger, "Unable to encode key %s", qUtf8Printable(key));
    notify(key);
}

void SettingsData::write(const QString &key, const QVariant &value, Setter setter)
{
    {
        const QScopedValueRollback guard(m_keyBeingWritten, key);
        (m_defaults.*setter)(key, value);
    }
    notify(key);
}

void SettingsData::notify(const QString &key)
{
    if (key == dischargingKey)
        m_discharging.notify();
    else if (key == chargingKey)
        m_charging.notify();
    else if (key == chargedKey)
        m_charged.notify();
    else if (key == releaseKey)
        m_release.notify();
    else if (key == widthKey)
        m_statusItemWidth.notify();
}

Icon SettingsData::readOrReplace(const QString &key, Icon fallback)
{
    if (const auto icon = readAndDecode(key))
        return *icon;
    encodeAndWrite(fallback, key, &DefaultsStore::setMissingObject);
    return fallback;
}

void SettingsData::replaceUnlessOffered(const QString &key, Icon fallback,
                                        std::span<const Icon> offered)
{
    const Icon selected = readOrReplace(key, fallback);
    if (std::ranges::find(offered, selected) == offered.end())
        encodeAndWrite(fallback, key);
}

void SettingsData::updateReleaseVersion()
{
    const QString stored = releaseVersionNumber();
    qCInfo(logger, "Current release: %s", qUtf8Printable(m_shortVersion));
    if (stored == m_shortVersion)
        return;
    qCInfo(logger, "Previous release: %s", qUtf8Printable(stored));
    setReleaseVersionNumber(m_shortVersion);
}

Icon SettingsData::storedDischargingIcon() const
{
    return readAndDecode(dischargingKey).value_or(m_dischargingDefault);
}

Icon SettingsData::storedChargingIcon() const
{
    return readAndDecode(chargingKey).value_or(m_chargingDefault);
}

Icon SettingsData::storedChargedIcon() const
{
    return readAndDecode(chargedKey).value_or(m_chargedDefault);
}

QString SettingsData::storedRelease() const
{
    return m_defaults.string(releaseKey).value_or(m_shortVersion);
}

float SettingsData::storedWidth() const
{
    if (const auto width = m_defaults.number(widthKey))
        return static_cast<float>(*width);
    // A stored value of another type hides the registered default from the store's reader.
    return m_defaults.object(widthKey).isValid() ? defaultStatusItemWidth : 0;
}

} // namespace ferrin
