// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/bindable.h"
#include "state/bundle.h"
#include "state/defaultsstore.h"
#include "state/icon.h"

#include <QObject>
#include <QProperty>
#include <QString>

#include <optional>
#include <span>

namespace ferrin {

/// The icons on offer in the three battery states; by default the catalogues.
struct IconsOnOffer
{
    std::span<const Icon> discharging;
    std::span<const Icon> charging;
    std::span<const Icon> charged;

    [[nodiscard]] static IconsOnOffer fromCatalogues();
};

/// The user's persistent choices that are more than a switch: the icon of each battery state, the
/// width that the status item last had, and the release that ran last. It caches nothing: every
/// value is read from the defaults store, every binding that read one is evaluated again when it is
/// set here or changes in the store. A value that cannot be read is replaced by its default in the
/// store, on first read. One instance serves the process; it never shows an error.
class SettingsData : public QObject
{
    Q_OBJECT

public:
    /// The process's, over the shared defaults, made on first use.
    [[nodiscard]] static SettingsData &shared();

    /// Runs the start-up checks. The store must outlive this. An empty list is a programming error
    /// and stops the process.
    SettingsData(DefaultsStore &defaults, const Bundle &bundle,
                 const IconsOnOffer &icons = IconsOnOffer::fromCatalogues());

    [[nodiscard]] DefaultsStore &defaults() const noexcept { return m_defaults; }

    /// Reading one that is absent or cannot be decoded stores its default first.
    [[nodiscard]] Icon dischargingIconSelected();
    [[nodiscard]] Icon chargingIconSelected();
    [[nodiscard]] Icon chargedIconSelected();
    [[nodiscard]] QString releaseVersionNumber();
    /// Logical pixels.
    [[nodiscard]] float statusItemWidth() const { return m_statusItemWidth.value(); }

    /// Setting a persistent value tells its readers even when it is the present one.
    void setDischargingIconSelected(Icon icon);
    void setChargingIconSelected(Icon icon);
    void setChargedIconSelected(Icon icon);
    void setReleaseVersionNumber(const QString &version);
    void setStatusItemWidth(float width);

    [[nodiscard]] Icon dischargingIconSelectedDefault() const { return m_dischargingDefault; }
    [[nodiscard]] Icon chargingIconSelectedDefault() const { return m_chargingDefault; }
    [[nodiscard]] Icon chargedIconSelectedDefault() const { return m_chargedDefault; }
    void setDischargingIconSelectedDefault(Icon icon) { m_dischargingDefault = icon; }
    void setChargingIconSelectedDefault(Icon icon) { m_chargingDefault = icon; }
    void setChargedIconSelectedDefault(Icon icon) { m_chargedDefault = icon; }

    [[nodiscard]] Bindable<Icon> bindableDischargingIconSelected() { return &m_discharging; }
    [[nodiscard]] Bindable<Icon> bindableChargingIconSelected() { return &m_charging; }
    [[nodiscard]] Bindable<Icon> bindableChargedIconSelected() { return &m_charged; }
    [[nodiscard]] Bindable<QString> bindableReleaseVersionNumber() { return &m_release; }
    [[nodiscard]] Bindable<float> bindableStatusItemWidth() { return &m_statusItemWidth; }
    [[nodiscard]] Bindable<Icon> bindableDischargingIconSelectedDefault()
    {
        return &m_dischargingDefault;
    }
    [[nodiscard]] Bindable<Icon> bindableChargingIconSelectedDefault()
    {
        return &m_chargingDefault;
    }
    [[nodiscard]] Bindable<Icon> bindableChargedIconSelectedDefault() { return &m_chargedDefault; }

private:
    [[nodiscard]] std::optional<Icon> readAndDecode(const QString &key) const;
    using Setter = void (DefaultsStore::*)(const QString &, const QVariant &);
    void encodeAndWrite(Icon icon, const QString &key, Setter setter = &DefaultsStore::setObject);
    void write(const QString &key, const QVariant &value,
               Setter setter = &DefaultsStore::setObject);
    void notify(const QString &key);

    [[nodiscard]] Icon readOrReplace(const QString &key, Icon fallback);
    void replaceUnlessOffered(const QString &key, Icon fallback, std::span<const Icon> offered);
    void updateReleaseVersion();

    // What a binding sees through a bindable: the value or its default, with nothing written.
    [[nodiscard]] Icon storedDischargingIcon() const;
    [[nodiscard]] Icon storedChargingIcon() const;
    [[nodiscard]] Icon storedChargedIcon() const;
    [[nodiscard]] QString storedRelease() const;
    [[nodiscard]] float storedWidth() const;

    DefaultsStore &m_defaults;
    QString m_shortVersion;
    /// Empty unless a setter is at work, which then tells the readers itself.
    QString m_keyBeingWritten;

    Q_OBJECT_BINDABLE_PROPERTY(SettingsData, Icon, m_dischargingDefault)
    Q_OBJECT_BINDABLE_PROPERTY(SettingsData, Icon, m_chargingDefault)
    Q_OBJECT_BINDABLE_PROPERTY(SettingsData, Icon, m_chargedDefault)
    Q_OBJECT_COMPUTED_PROPERTY(SettingsData, Icon, m_discharging,
                               &SettingsData::storedDischargingIcon)
    Q_OBJECT_COMPUTED_PROPERTY(SettingsData, Icon, m_charging, &SettingsData::storedChargingIcon)
    Q_OBJECT_COMPUTED_PROPERTY(SettingsData, Icon, m_charged, &SettingsData::storedChargedIcon)
    Q_OBJECT_COMPUTED_PROPERTY(SettingsData, QString, m_release, &SettingsData::storedRelease)
    Q_OBJECT_COMPUTED_PROPERTY(SettingsData, float, m_statusItemWidth, &SettingsData::storedWidth)
};

} // namespace ferrin
