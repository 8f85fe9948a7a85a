// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/itempictures.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ferrin {

namespace {

// Bytes. Several hosts read every property at every signal, so a message has to stay small.
constexpr qsizetype byteBudget = 60'000;

// Device pixels to a logical one.
constexpr qreal greatestDensity = 3;
// A desktop at 1.25 is better served by one pixel too few than by nearly twice as many.
constexpr qreal fractionIgnored = 0.25;

qreal densityFor(const HostProfile &profile, const OfferedPicture &offer, qreal desktopScale)
{
    switch (profile.scale) {
    case ScalePolicy::Never:
        return offer.density;
    case ScalePolicy::DesktopOnly:
        return std::clamp(offer.density * std::ceil(desktopScale - fractionIgnored), 1.0,
                          greatestDensity);
    }
    Q_UNREACHABLE();
}

// Taller panels have more room than the item needs.
constexpr int tallestPanel = 64;
constexpr int lowestPanel = 20;

std::vector<OfferedPicture> offersFor(const HostProfile &profile, const QList<int> &panelHeights)
{
    std::vector<OfferedPicture> offers;
    const auto add = [&offers](const OfferedPicture &offer) {
        if (std::ranges::find(offers, offer) == offers.end())
            offers.push_back(offer);
    };
    for (const int height : panelHeights) {
        if (height >= lowestPanel && height <= tallestPanel)
            add({ .form = profile.pictures.front().form, .height = height });
    }
    std::ranges::for_each(profile.pictures, add);
    return offers;
}

IconPixmapList paintAll(const HostProfile &profile, const ItemContent &content,
                        const ViewContext &context, const ItemPictures::Surroundings &surroundings)
{
    constexpr qreal finestCoarseScale = 1.5;
    ViewContext onScreen = context;
    onScreen.isCoarse = surroundings.desktopScale < finestCoarseScale;
    IconPixmapList pictures;
    qsizetype bytes = 0;
    for (const OfferedPicture &offer : offersFor(profile, surroundings.panelHeights)) {
        const QImage image
            = paintForm(offer.form, content, offer.height,
                        densityFor(profile, offer, surroundings.desktopScale), onScreen);
        if (bytes + image.sizeInBytes() > byteBudget && !pictures.isEmpty())
            continue;
        bytes += image.sizeInBytes();
        pictures.append(toIconPixmap(image, profile.premultiplied));
    }
    return pictures;
}

} // namespace

const IconPixmapList &ItemPictures::pictures(const HostProfile &profile, const ItemContent &content,
                                             const ViewContext &context,
                                             const Surroundings &surroundings)
{
    Painted &painted = m_painted[&profile];
    const bool isCurrent = painted.surroundings == surroundings && painted.content == content
        && painted.context == context;
    if (isCurrent)
        return painted.pictures;
    painted.content = content;
    painted.context = context;
    painted.surroundings = surroundings;
    painted.pictures = paintAll(profile, content, context, surroundings);
    return painted.pictures;
}

} // namespace ferrin
