// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/dbusmenu.h"

#include "platform/linux/statusnotifier/dbusmenutypes.h"
#include "platform/linux/statusnotifier/hostresolver.h"
#include "platform/linux/statusnotifier/hosttable.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

// Far above the numbers of the entries.
constexpr int stateNumber = 1001;
constexpr int openNumber = 1002;
constexpr int settingsNumber = 1003;
constexpr int separatorNumber = 1004;

// An underscore would mark the next letter as the entry's key.
QString withoutMnemonics(QString title)
{
    return title.replace(u'_', u"__"_s);
}

QVariantMap named(const QVariantMap &properties, const QStringList &names)
{
    if (names.isEmpty())
        return properties;
    QVariantMap result;
    for (const QString &name : names) {
        if (properties.contains(name))
            result.insert(name, properties.value(name));
    }
    return result;
}

QVariantMap labelled(const QString &title, bool isEnabled = true)
{
    return { { u"label"_s, withoutMnemonics(title) },
             { u"enabled"_s, isEnabled },
             { u"visible"_s, true } };
}

bool has(const QList<int> &all, int number)
{
    return number == 0 || all.contains(number);
}

QList<int> unknownAmong(const QList<int> &all, const QList<int> &numbers)
{
    QList<int> unknown;
    std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(unknown),
                 [&all](int number) { return !has(all, number); });
    return unknown;
}

} // namespace

DBusMenu::DBusMenu(const QDBusConnection &connection, HostResolver &resolver, QObject *parent)
    : BusObject(connection, resolver, QString::fromLatin1(path), u"com.canonical.dbusmenu"_s,
                parent)
{
    registerDBusMenuTypes();
}

void DBusMenu::setEntries(const std::vector<MenuEntry> &entries)
{
    if (m_entries == entries)
        return;
    m_entries = entries;
    ++m_revision;
    sendSignal(u"LayoutUpdated"_s, { m_revision, 0 });
}

void DBusMenu::setState(const QString &words)
{
    if (std::exchange(m_state, words) == words)
        return;
    ++m_revision;
    m_isStateNew = true;
}

void DBusMenu::readProperties(const QString &, std::function<void(const Properties &)> read)
{
    static const QVariantMap properties { { u"Version"_s, 3U },
                                          { u"TextDirection"_s, u"ltr"_s },
                                          { u"Status"_s, u"normal"_s },
                                          { u"IconThemePath"_s, QStringList() } };
    read([](const QString &name) { return properties.value(name); });
}

QStringList DBusMenu::propertyNames() const
{
    return { u"Version"_s, u"TextDirection"_s, u"Status"_s, u"IconThemePath"_s };
}

bool DBusMenu::leadsToWindows(const HostProfile &profile) const
{
    switch (profile.menu) {
    case MenuUse::Secondary:
        return false;
    case MenuUse::EveryClick:
        return true;
    case MenuUse::IndicatorsOnEveryClick:
        return resolver().hasIndicatorService();
    }
    Q_UNREACHABLE();
}

QList<int> DBusMenu::numbersFor(const HostProfile &profile) const
{
    QList<int> numbers;
    if (leadsToWindows(profile))
        numbers = { stateNumber, openNumber, settingsNumber, separatorNumber };
    for (int number = 1; std::cmp_less_equal(number, m_entries.size()); ++number)
        numbers.append(number);
    return numbers;
}

QVariantMap DBusMenu::entryProperties(int number, const QStringList &names) const
{
    switch (number) {
    case 0:
        return named({ { u"children-display"_s, u"submenu"_s } }, names);
    case stateNumber:
        return named(labelled(m_state, false), names);
    case openNumber:
        return named(labelled(u"Open Ferrin"_s), names);
    case settingsNumber:
        return named(labelled(u"Settings"_s), names);
    case separatorNumber:
        return named({ { u"type"_s, u"separator"_s }, { u"visible"_s, true } }, names);
    }
    return named(labelled(m_entries.at(size_t(number) - 1).title), names);
}

std::optional<QVariantList> DBusMenu::layout(const QList<int> &all, int parent, int depth,
                                             const QStringList &names) const
{
    if (!has(all, parent))
        return {};
    DBusMenuLayout result { .number = parent, .properties = entryProperties(parent, names) };
    if (parent == 0 && depth != 0) {
        for (const int number : all) {
            const DBusMenuLayout child { .number = number,
                                         .properties = entryProperties(number, names) };
            result.children.append(QVariant::fromValue(child));
        }
    }
    return QVariantList { m_revision, QVariant::fromValue(result) };
}

QVariantList DBusMenu::groupProperties(const QList<int> &all, QList<int> numbers,
                                       const QStringList &names) const
{
    if (numbers.isEmpty())
        numbers = QList<int> { 0 } + all;
    QList<DBusMenuProperties> result;
    for (const int number : std::as_const(numbers)) {
        if (has(all, number))
            result.append({ number, entryProperties(number, names) });
    }
    return { QVariant::fromValue(result) };
}

std::optional<QVariantList> DBusMenu::entryProperty(const QList<int> &all, int number,
                                                    const QString &name) const
{
    const QVariant value = has(all, number) ? entryProperties(number, {}).value(name) : QVariant();
    if (!value.isValid())
        return {};
    return QVariantList { QVariant::fromValue(QDBusVariant(value)) };
}

void DBusMenu::trigger(int number)
{
    switch (number) {
    case openNumber:
        Q_EMIT openRequested();
        break;
    case settingsNumber:
        Q_EMIT settingsRequested();
        break;
    default:
        if (number > 0 && std::cmp_less_equal(number, m_entries.size()))
            Q_EMIT triggered(m_entries.at(size_t(number) - 1).id);
    }
}

bool DBusMenu::takeEvent(const QList<int> &all, int number, const QString &event)
{
    if (!has(all, number))
        return false;
    if (event == u"clicked") {
        // The entry may end the program; the caller gets its answer first.
        QMetaObject::invokeMethod(
            this, [this, number] { trigger(number); }, Qt::QueuedConnection);
    }
    return true;
}

QVariantList DBusMenu::takeEvents(const QList<int> &all, const QVariant &events)
{
    QList<int> unknown;
    const auto list = qdbus_cast<QList<DBusMenuEvent>>(events);
    for (const DBusMenuEvent &event : list) {
        if (!takeEvent(all, event.number, event.event))
            unknown.append(event.number);
    }
    return { QVariant::fromValue(unknown) };
}

void DBusMenu::announceState(const QString &caller, const HostProfile &profile)
{
    if (!leadsToWindows(profile) || !std::exchange(m_isStateNew, false))
        return;
    const QList<DBusMenuProperties> changed { { stateNumber,
                                                entryProperties(stateNumber, { u"label"_s }) } };
    sendSignalTo(caller, u"ItemsPropertiesUpdated"_s,
                 { QVariant::fromValue(changed), QVariant::fromValue(QList<DBusMenuRemovals>()) });
}

std::optional<QVariantList> DBusMenu::call(const QDBusMessage &message, const HostProfile &profile)
{
    const QString method = message.member() + u'(' + message.signature() + u')';
    const QVariantList arguments = message.arguments();
    const QList<int> all = numbersFor(profile);
    const auto optionally = [](bool exists, const QVariantList &answer) {
        return exists ? std::optional(answer) : std::nullopt;
    };
    if (method == u"GetLayout(iias)")
        return layout(all, arguments.at(0).toInt(), arguments.at(1).toInt(),
                      arguments.at(2).toStringList());
    if (method == u"GetGroupProperties(aias)")
        return groupProperties(all, qdbus_cast<QList<int>>(arguments.at(0)),
                               arguments.at(1).toStringList());
    if (method == u"GetProperty(is)")
        return entryProperty(all, arguments.at(0).toInt(), arguments.at(1).toString());
    if (method == u"Event(isvu)")
        return optionally(takeEvent(all, arguments.at(0).toInt(), arguments.at(1).toString()), {});
    if (method == u"EventGroup(a(isvu))")
        return takeEvents(all, arguments.at(0));
    if (method == u"AboutToShow(i)") {
        announceState(message.service(), profile);
        return optionally(has(all, arguments.at(0).toInt()), { false });
    }
    if (method == u"AboutToShowGroup(ai)") {
        announceState(message.service(), profile);
        const QList<int> unknown = unknownAmong(all, qdbus_cast<QList<int>>(arguments.at(0)));
        return QVariantList { QVariant::fromValue(QList<int>()), QVariant::fromValue(unknown) };
    }
    return {};
}

} // namespace ferrin
