// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace ferrin {

/// The colours in a panel's style sheet, of GTK's dialect or of Qt's: enough of either to learn
/// what a panel looks like, and no more. Whatever is not understood is absent. Reading takes time
/// in proportion to the size of the sheet, whatever is in it.
class StyleSheet
{
public:
    /// The sheet in this file with those that it imports; empty where there is none.
    [[nodiscard]] static StyleSheet read(const QString &file);

    /// What the last rule for exactly this selector says of the property. Of a gradient the middle;
    /// absent for nothing, for a picture, and for colours of the toolkit's.
    [[nodiscard]] std::optional<QColor> color(const QString &selector,
                                              const QString &property) const;
    /// The text colour that the first of these selectors gives.
    [[nodiscard]] std::optional<QColor> firstColor(const QStringList &selectors) const;
    /// The ground that the last rule for exactly this selector gives.
    [[nodiscard]] std::optional<QColor> ground(const QString &selector) const;

    /// The classes by which rules single out some of a selector's elements, such as "top" of
    /// "window#bar.top #clock"; the first few.
    [[nodiscard]] QStringList classesOf(const QString &selector) const;

    /// Every file that was read.
    [[nodiscard]] const QStringList &files() const noexcept { return m_files; }

private:
    struct Rule
    {
        QStringList selectors;
        /// What stands between the braces.
        QString declarations;
    };

    void add(const QString &file, int depth);
    void addRules(QStringView text);
    void addRule(QStringView selectors, QStringView declarations);
    [[nodiscard]] QString valueOf(const QString &selector, const QString &property) const;
    [[nodiscard]] std::optional<QColor> colorIn(const QString &value, int &wordsLeft) const;
    [[nodiscard]] std::optional<QColor> colorOf(const QString &word, int &wordsLeft) const;

    /// In their order. They are taken apart when they are asked for, since few ever are.
    QList<Rule> m_rules;
    /// By name.
    QHash<QString, QString> m_definitions;
    QStringList m_files;
};

} // namespace ferrin
