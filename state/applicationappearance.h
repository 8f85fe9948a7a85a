// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QProperty>
#include <QString>

#include <optional>

namespace ferrin {

enum class Appearance { light, dark };

/// A colour that the desktop's user chose, in sRGB; each part is 0 to 1.
struct AccentColor
{
    double red = 0;
    double green = 0;
    double blue = 0;

    bool operator==(const AccentColor &) const = default;
};

/// The appearance of the whole application, implemented by the platform. The object registers
/// itself: AppColorSchemeProvider uses it as long as it exists. Every value may change at any time.
class ApplicationAppearance
{
public:
    /// Null before the application has started and after it has ended.
    [[nodiscard]] static ApplicationAppearance *shared() noexcept;

    ApplicationAppearance();
    virtual ~ApplicationAppearance();
    ApplicationAppearance(const ApplicationAppearance &) = delete;
    ApplicationAppearance &operator=(const ApplicationAppearance &) = delete;

    /// Forces an appearance; absent follows the desktop, its changes included.
    virtual void setAppearance(std::optional<Appearance> appearance) = 0;

    /// The appearance in effect: the forced one, else the one that the desktop prefers.
    [[nodiscard]] bool isDark() const { return m_isDark; }
    /// The interface font; never empty while there is a graphical application.
    [[nodiscard]] QString fontFamily() const { return m_fontFamily; }
    /// How many times larger than usual the desktop wants texts, and all that surrounds them; 1
    /// to 3.
    [[nodiscard]] double textScale() const { return m_textScale; }
    /// Whether the desktop asks for reduced motion.
    [[nodiscard]] bool reducesMotion() const { return m_reducesMotion; }
    /// The desktop's accent, whatever its contrast; absent where it has none.
    [[nodiscard]] std::optional<AccentColor> accent() const { return m_accent; }
    /// Whether the desktop asks for a higher contrast than usual.
    [[nodiscard]] bool isHighContrast() const { return m_isHighContrast; }

protected:
    QProperty<bool> m_isDark { false };
    QProperty<QString> m_fontFamily;
    QProperty<double> m_textScale { 1 };
    QProperty<bool> m_reducesMotion { false };
    QProperty<std::optional<AccentColor>> m_accent;
    QProperty<bool> m_isHighContrast { false };
};

} // namespace ferrin
