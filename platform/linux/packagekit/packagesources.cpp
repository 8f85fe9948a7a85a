// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/packagesources.h"

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

bool isOfAny(const QStringList &found, const QStringList &origins)
{
    return std::ranges::any_of(origins, [&](const QString &origin) {
        return found.contains(origin, Qt::CaseInsensitive);
    });
}

} // namespace

QStringList sourceNames(const QByteArray &targets, const QStringList &origins)
{
    QStringList names;
    for (const QString &line : QString::fromUtf8(targets).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList words = line.split(u' ');
        if (words.size() != 4 || !isOfAny(words.first(2), origins))
            continue;
        QString address = words[2];
        while (address.endsWith(u'/'))
            address.chop(1);
        names << address + u' ' + words[3] + u' ' << address + u"/dists/"_s + words[3] + u'/'
              << address + u'/' + words[3];
    }
    names.removeDuplicates();
    return names;
}

bool isOfOtherSources(const QString &errors, const QStringList &names)
{
    QStringList lines = errors.split(u'\n', Qt::SkipEmptyParts);
    // Warnings repeat what is an error, or what is none.
    lines.removeIf([](const QString &line) { return !line.startsWith("E: "_L1); });
    const auto isOfAnother = [&](const QString &line) {
        return line.contains("://"_L1) && std::ranges::none_of(names, [&](const QString &name) {
                   return line.contains(name);
               });
    };
    return !names.isEmpty() && !lines.isEmpty() && std::ranges::all_of(lines, isOfAnother);
}

} // namespace ferrin
