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

// Logical pixels. A picture that would be narrower by less stays as wide as it was, so that the
// item's neighbours stay where they are.
constexpr qreal toleratedDifference = 10;

// Taller panels have more room than the item needs.
constexpr int tallestPanel = 64;
constexpr int lowestPanel = 20;

std::vector<OfferedPicture> offersFor(const HostProfile &profile,
                                      const ItemPictures::Surroundings &surroundings)
{
    const auto pictures = profile.picturesFor(surroundings.isPanelStanding);
    std::vector<OfferedPicture> offers;
    const auto add = [&offers](const OfferedPicture &offer) {
        if (std::ranges::find(offers, offer) == offers.end())
            offers.push_back(offer);
    };
    for (const int height : surroundings.panelHeights) {
        if (height >= lowestPanel && height <= tallestPanel)
            add({ .form = pictures.front().form, .height = height });
    }
    std::ranges::for_each(pictures, add);
    return offers;
}

} // namespace

qreal ItemPictures::keptWidth(Painted &painted, const OfferedPicture &offer,
                              const ViewContext &context)
{
    qreal &width = painted.widths[{ offer.form, offer.height }];
    const qreal needed = widthNeeded(offer.form, painted.content, offer.height, context);
    if (width < needed || width - needed > toleratedDifference)
        width = needed;
    return width;
}

IconPixmapList ItemPictures::paintAll(const HostProfile &profile, Painted &painted)
{
    const Surroundings &surroundings = painted.surroundings;
    ViewContext context = painted.context;
    IconPixmapList pictures;
    qsizetype bytes = 0;
    for (const OfferedPicture &offer : offersFor(profile, surroundings)) {
        const qreal density = densityFor(profile, offer, surroundings.desktopScale);
        // Some hosts enlarge a coarse picture on a fine desktop, others shrink a fine one.
        context.isCoarse = std::min(density, surroundings.desktopScale) < finestCoarseScale;
        const QImage image = paintForm(offer.form, painted.content, offer.height, density, context,
                                       keptWidth(painted, offer, context));
        if (bytes + image.sizeInBytes() > byteBudget && !pictures.isEmpty())
            continue;
        bytes += image.sizeInBytes();
        pictures.append(toIconPixmap(image, profile.premultiplied));
    }
    return pictures;
}

const IconPixmapList &ItemPictures::pictures(const HostProfile &profile, const ItemContent &content,
                                             const ViewContext &context,
                                             const Surroundings &surroundings)
{
    Painted &painted = m_painted[&profile];
    const bool isCurrent = painted.surroundings == surroundings && painted.content == content
        && painted.context == context;
    if (isCurrent)
        return painted.pictures;
    if (painted.content.status != content.status || painted.context != context)
        painted.widths.clear();
    painted.content = content;
    painted.context = context;
    painted.surroundings = surroundings;
    painted.pictures = paintAll(profile, painted);
    return painted.pictures;
}

} // namespace ferrin
