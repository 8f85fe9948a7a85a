// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/dbusmenu.h"

#include "platform/linux/statusarea/dbusmenutypes.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

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

} // namespace

DBusMenu::DBusMenu(const QDBusConnection &connection, QObject *parent)
    : BusObject(connection, QString::fromLatin1(path), u"com.canonical.dbusmenu"_s, parent)
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

bool DBusMenu::has(int number) const
{
    return number >= 0 && std::cmp_less_equal(number, m_entries.size());
}

QVariantMap DBusMenu::entryProperties(int number, const QStringList &names) const
{
    if (number == 0)
        return named({ { u"children-display"_s, u"submenu"_s } }, names);
    const MenuEntry &entry = m_entries.at(size_t(number) - 1);
    return named({ { u"label"_s, withoutMnemonics(entry.title) },
                   { u"enabled"_s, true },
                   { u"visible"_s, true } },
                 names);
}

std::optional<QVariantList> DBusMenu::layout(int parent, int depth, const QStringList &names) const
{
    if (!has(parent))
        return {};
    DBusMenuLayout result { .number = parent, .properties = entryProperties(parent, names) };
    for (int number = 1; parent == 0 && depth != 0 && has(number); ++number) {
        const DBusMenuLayout child { .number = number,
                                     .properties = entryProperties(number, names) };
        result.children.append(QVariant::fromValue(child));
    }
    return QVariantList { m_revision, QVariant::fromValue(result) };
}

QVariantList DBusMenu::groupProperties(QList<int> numbers, const QStringList &names) const
{
    if (numbers.isEmpty()) {
        numbers.resize(qsizetype(m_entries.size()) + 1);
        std::iota(numbers.begin(), numbers.end(), 0);
    }
    QList<DBusMenuProperties> result;
    for (const int number : std::as_const(numbers)) {
        if (has(number))
            result.append({ number, entryProperties(number, names) });
    }
    return { QVariant::fromValue(result) };
}

std::optional<QVariantList> DBusMenu::entryProperty(int number, const QString &name) const
{
    const QVariant value = has(number) ? entryProperties(number, {}).value(name) : QVariant();
    if (!value.isValid())
        return {};
    return QVariantList { QVariant::fromValue(QDBusVariant(value)) };
}

QList<int> DBusMenu::unknownAmong(const QList<int> &numbers) const
{
    QList<int> unknown;
    std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(unknown),
                 [this](int number) { return !has(number); });
    return unknown;
}

bool DBusMenu::takeEvent(int number, const QString &event)
{
    if (!has(number))
        return false;
    if (number > 0 && event == u"clicked") {
        const QString id = m_entries.at(size_t(number) - 1).id;
        // The entry may end the program; the caller gets its answer first.
        QMetaObject::invokeMethod(
            this, [this, id] { Q_EMIT triggered(id); }, Qt::QueuedConnection);
    }
    return true;
}

QVariantList DBusMenu::takeEvents(const QVariant &events)
{
    QList<int> unknown;
    const auto all = qdbus_cast<QList<DBusMenuEvent>>(events);
    for (const DBusMenuEvent &event : all) {
        if (!takeEvent(event.number, event.event))
            unknown.append(event.number);
    }
    return { QVariant::fromValue(unknown) };
}

std::optional<QVariantList> DBusMenu::call(const QDBusMessage &message)
{
    const QString method = message.member() + u'(' + message.signature() + u')';
    const QVariantList arguments = message.arguments();
    if (method == u"GetLayout(iias)")
        return layout(arguments.at(0).toInt(), arguments.at(1).toInt(),
                      arguments.at(2).toStringList());
    if (method == u"GetGroupProperties(aias)")
        return groupProperties(qdbus_cast<QList<int>>(arguments.at(0)),
                               arguments.at(1).toStringList());
    if (method == u"GetProperty(is)")
        return entryProperty(arguments.at(0).toInt(), arguments.at(1).toString());
    if (method == u"Event(isvu)")
        return takeEvent(arguments.at(0).toInt(), arguments.at(1).toString())
            ? std::optional(QVariantList {})
            : std::nullopt;
    if (method == u"EventGroup(a(isvu))")
        return takeEvents(arguments.at(0));
    if (method == u"AboutToShow(i)")
        return has(arguments.at(0).toInt()) ? std::optional(QVariantList { false }) : std::nullopt;
    if (method == u"AboutToShowGroup(ai)")
        return QVariantList { QVariant::fromValue(QList<int>()),
                              QVariant::fromValue(
                                  unknownAmong(qdbus_cast<QList<int>>(arguments.at(0)))) };
    return {};
}

} // namespace ferrin
