// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/itempictures.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

// Several hosts read every property at every signal; a message beyond this is a burden to them.
constexpr qsizetype byteBudget = 60'000;

// Nobody has more device pixels to a logical one.
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

IconPixmapList paintAll(const HostProfile &profile, const ItemContent &content,
                        const ViewContext &context, qreal desktopScale)
{
    IconPixmapList pictures;
    qsizetype bytes = 0;
    for (const OfferedPicture &offer : profile.pictures) {
        const QImage image = paintForm(offer.form, content, offer.height,
                                       densityFor(profile, offer, desktopScale), context);
        if (bytes + image.sizeInBytes() > byteBudget && !pictures.isEmpty())
            continue;
        bytes += image.sizeInBytes();
        pictures.append(toIconPixmap(image, profile.premultiplied));
    }
    return pictures;
}

} // namespace

const IconPixmapList &ItemPictures::pictures(const HostProfile &profile, const ItemContent &content,
                                             const ViewContext &context, qreal desktopScale)
{
    Painted &painted = m_painted[&profile];
    const bool isCurrent
        = painted.scale == desktopScale && painted.content == content && painted.context == context;
    if (isCurrent)
        return painted.pictures;
    painted.content = content;
    painted.context = context;
    painted.scale = desktopScale;
    painted.pictures = paintAll(profile, content, context, desktopScale);
    return painted.pictures;
}

} // namespace ferrin
