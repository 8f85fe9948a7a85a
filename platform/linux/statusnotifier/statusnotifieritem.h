// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"
#include "platform/linux/statusnotifier/busobject.h"
#include "platform/linux/statusnotifier/itempictures.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QPoint>
#include <QTimer>

namespace ferrin {

class PanelColors;

/// The item on the bus, org.kde.StatusNotifierItem at /StatusNotifierItem. Answers each caller in
/// its host's own form, and says that something is new only when what those who read it saw has
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
    /// Tells the hosts at once of all that a user would wait to see. Figures that merely move on
    /// are told of together and no oftener than the hosts' peace allows: at most two signals each
    /// time.
    void setContent(const ItemContent &content);
    /// A silenced item has no tool tip.
    void setSilenced(bool isSilenced);

    /// From one such news to the next.
    void setPeace(std::chrono::milliseconds peace) { m_peace = peace; }

Q_SIGNALS:
    /// The host's own coordinates, null from a host that is known to tell others than the screen's.
    void activateRequested(QPoint position);
    void contextMenuRequested(QPoint position);

protected:
    void readProperties(const QString &caller,
                        std::function<void(const Properties &)> read) override;
    [[nodiscard]] QStringList propertyNames() const override;
    [[nodiscard]] std::optional<QVariantList> call(const QDBusMessage &message,
                                                   const HostProfile &profile) override;

private:
    /// What the hosts of a profile have seen of the item.
    struct Seen
    {
        IconPixmapList pictures;
        QString label;

        bool operator==(const Seen &) const = default;
    };

    [[nodiscard]] QVariant property(const QString &name, const QString &caller,
                                    const HostProfile &profile);
    [[nodiscard]] Seen seenBy(const HostProfile &profile);
    [[nodiscard]] QString words() const;
    [[nodiscard]] QString toolTip() const;
    [[nodiscard]] QString moreWords() const;
    void remember(const QString &caller, const HostProfile &profile);
    void forget(const QString &caller);
    void scheduleNews(std::chrono::milliseconds delay);
    void sendNews();

    const PanelColors &m_colors;
    ItemContent m_content;
    ItemPictures m_pictures;
    /// The readers that are on the bus, by unique name.
    QHash<QString, const HostProfile *> m_readers;
    QHash<const HostProfile *, Seen> m_seen;
    QString m_seenToolTip;
    bool m_isSilenced = false;
    /// The content that the hosts were last told of.
    ItemContent m_told;
    QTimer m_news;
    QDeadlineTimer m_peaceEnds;
    /// A minute, and by how much a timer of the toolkit may be early.
    std::chrono::milliseconds m_peace { 64'000 };
};

} // namespace ferrin
