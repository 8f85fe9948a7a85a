// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appcolorscheme.h"

#include "state/defaultsstore.h"
#include "state/shareddefaults.h"

#include <algorithm>
#include <array>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString appColorKey = u"appColor"_s;

constexpr std::array schemes { AppColorScheme::system, AppColorScheme::light,
                               AppColorScheme::dark };

} // namespace

std::span<const AppColorScheme> allAppColorSchemes()
{
    return schemes;
}

QString rawValue(AppColorScheme scheme)
{
    switch (scheme) {
    case AppColorScheme::system:
        return u"System"_s;
    case AppColorScheme::light:
        return u"Light"_s;
    case AppColorScheme::dark:
        return u"Dark"_s;
    }
    Q_UNREACHABLE();
}

std::optional<AppColorScheme> appColorSchemeFromRawValue(QStringView text)
{
    const auto *const found = std::ranges::find_if(
        schemes, [text](AppColorScheme scheme) { return rawValue(scheme) == text; });
    return found != schemes.end() ? std::optional(*found) : std::nullopt;
}

AppColor &AppColor::shared()
{
    static AppColor color(sharedDefaults());
    return color;
}

AppColor::AppColor(DefaultsStore &defaults)
    : m_defaults(defaults)
{
    connect(&m_defaults, &DefaultsStore::changed, this, [this](const QString &key) {
        if (key == appColorKey)
            readFromStore();
    });
    readFromStore();
}

void AppColor::setScheme(AppColorScheme scheme)
{
    m_defaults.setObject(appColorKey, rawValue(scheme));
}

void AppColor::readFromStore()
{
    const auto stored = m_defaults.string(appColorKey);
    const auto scheme = stored ? appColorSchemeFromRawValue(*stored) : std::nullopt;
    m_scheme = scheme.value_or(AppColorScheme::system);
}

} // namespace ferrin
