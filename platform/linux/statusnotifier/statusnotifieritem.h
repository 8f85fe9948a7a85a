// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"
#include "menubar/panelappearance.h"
#include "platform/linux/statusnotifier/busobject.h"
#include "platform/linux/statusnotifier/iconfiles.h"
#include "platform/linux/statusnotifier/itempictures.h"

#include <QHash>
#include <QPoint>
#include <QTimer>

#include <chrono>
#include <functional>

namespace ferrin {

class PanelColors;

/// The item on the bus, org.kde.StatusNotifierItem at /StatusNotifierItem. Answers each caller in
/// its host's own form, and signals a change only when something that a reader has seen has
/// changed. It never reads the battery: it shows the content that it is given.
class StatusNotifierItem final : public BusObject
{
    Q_OBJECT

public:
    static constexpr auto path = "/StatusNotifierItem";

    /// The colours and the resolver outlive it.
    StatusNotifierItem(const QDBusConnection &connection, HostResolver &resolver,
                       const PanelColors &colors, QObject *parent = nullptr);

    [[nodiscard]] const ItemContent &content() const noexcept { return m_content; }
    /// Signals what has changed on the next turn of the event loop, once for all the values that a
    /// refresh has changed.
    void setContent(const ItemContent &content);
    /// As the last host shows the item that has read its icon; absent while none has.
    [[nodiscard]] std::optional<PanelAppearance> panelAppearance() const;

    /// Whether the host's panel stands at a side of the screen. It lies by default.
    void setPanelStanding(bool isStanding);

    /// Whether the item has a tool tip. Has one by default.
    void setToolTipEnabled(bool isEnabled);

    /// How long after its first reading a host that draws labels is sent the label again; each
    /// further time twice as long, six times in all.
    void setLabelRepeatDelay(std::chrono::milliseconds delay) { m_labelRepeatDelay = delay; }
    /// How long a host's activation token is kept for the window that its click opens.
    void setTokenLifetime(std::chrono::milliseconds time) { m_tokenExpiry.setInterval(time); }

Q_SIGNALS:
    /// A host has read the icon for the first time, or left, or shows it in another form.
    void readersChanged();
    /// The host's own coordinates; null from a host whose coordinates are not the screen's.
    void activateRequested(QPoint position);
    void contextMenuRequested(QPoint position);

protected:
    void readProperties(const QString &caller,
                        std::function<void(const Properties &)> read) override;
    [[nodiscard]] QStringList propertyNames() const override;
    [[nodiscard]] std::optional<QVariantList> call(const QDBusMessage &message,
                                                   const HostProfile &profile) override;

private:
    /// Who has read what. A signal is for those to whom it brings something new; it is a broadcast
    /// where these are all who have read it.
    struct Reader
    {
        const HostProfile *profile = nullptr;
        bool hasIcon = false;
        bool hasToolTip = false;
    };

    /// What the hosts of a profile have seen of the item.
    struct Seen
    {
        /// One of them has read the icon; without, it is not painted for them.
        bool hasIcon = false;
        IconPixmapList pictures;
        QString label;
        QString iconName;

        bool operator==(const Seen &) const = default;
    };

    [[nodiscard]] QVariant property(const QString &name, const QString &caller,
                                    const HostProfile &profile);
    [[nodiscard]] Seen seenBy(const HostProfile &profile, bool hasIcon);
    [[nodiscard]] QString words() const;
    [[nodiscard]] QString toolTip() const;
    [[nodiscard]] QString moreWords() const;
    void followScreens();
    void remember(const QString &caller, const HostProfile &profile, const QString &property);
    void forget(const QString &caller);
    void scheduleUpdate();
    void sendUpdate();
    void announce(const QString &signal, bool Reader::*hasRead,
                  const std::function<bool(const HostProfile &)> &isNews);
    void sendLabelTo(const QString &reader, const QString &label);
    void repeatLabel(const QString &reader, int repeatsLeft, std::chrono::milliseconds delay);

    const PanelColors &m_colors;
    ItemContent m_content;
    ItemPictures m_pictures;
    /// The readers that are on the bus, by unique name.
    QHash<QString, Reader> m_readers;
    /// The profile of the last that has read the icon; null for none.
    const HostProfile *m_lastHost = nullptr;
    QHash<const HostProfile *, Seen> m_seen;
    QString m_seenToolTip;
    bool m_isToolTipEnabled = true;
    bool m_isPanelStanding = false;
    IconFiles m_iconFiles;
    QTimer m_update;
    QTimer m_tokenExpiry;
    std::chrono::milliseconds m_labelRepeatDelay { 100 };
};

} // namespace ferrin
