// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <concepts>
#include <memory>
#include <optional>
#include <utility>

class QPainter;

namespace ferrin {

/// What a view needs to know of the place that it is drawn in.
struct ViewContext
{
    /// The colour that reads on the host's bar; views add their own opacity.
    QColor text;
    /// The system's red, for a low battery.
    QColor red;
    /// The desktop's interface font.
    QString fontFamily;
    /// The ground that the whole item brings along, where the bar's colour cannot be known; views
    /// themselves take no notice.
    std::optional<QColor> chip = {};
    /// The screen has so few pixels that small text needs all of its tone, and whole pixels for its
    /// stems, to look as dark as the panel's own.
    bool isCoarse = false;

    bool operator==(const ViewContext &) const = default;
};

/// Device pixels to a logical one, from which on a screen is no longer coarse.
inline constexpr qreal finestCoarseScale = 1.5;

class AnyView;

/// A view that knows its ideal size and paints itself into a rectangle, both in logical pixels.
template <typename V>
concept PaintedView
    = requires(const V &view, QPainter &painter, const QRectF &bounds, const ViewContext &context)
{
    {
        view.idealSize(context)
        } -> std::convertible_to<QSizeF>;
    { view.paint(painter, bounds, context) };
};

/// A view that is made of other views.
template <typename V>
concept ComposedView = requires(const V &view, const ViewContext &context)
{
    {
        view.body(context)
        } -> std::same_as<AnyView>;
};

/// A menu-bar view is a value: it holds what it shows and nothing else.
template <typename V>
concept View
    = std::copyable<V> && std::equality_comparable<V> &&(PaintedView<V> || ComposedView<V>);

/// A view whose type is erased. Copies share the view, which never changes; the default one is
/// empty.
class AnyView
{
public:
    AnyView() = default;

    // The first question answers itself for copies of this; the second would never end for them.
    template <typename V>
    requires(!std::same_as<V, AnyView> && View<V>)
        AnyView(V view) // NOLINT(google-explicit-constructor): every view is an AnyView
        : m_view(std::make_shared<const Model<V>>(std::move(view)))
    {
    }

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const
    {
        return m_view ? m_view->idealSize(context) : QSizeF(0, 0);
    }

    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
    {
        if (m_view)
            m_view->paint(painter, bounds, context);
    }

    [[nodiscard]] bool isEmpty() const noexcept { return !m_view; }

    /// The view, when it is of this type; else null.
    template <View V>
    [[nodiscard]] const V *as() const
    {
        const auto *model = dynamic_cast<const Model<V> *>(m_view.get());
        return model ? &model->view : nullptr;
    }

    bool operator==(const AnyView &other) const
    {
        return m_view == other.m_view || (m_view && other.m_view && m_view->equals(*other.m_view));
    }

private:
    struct Concept
    {
        virtual ~Concept() = default;
        [[nodiscard]] virtual QSizeF idealSize(const ViewContext &context) const = 0;
        virtual void paint(QPainter &painter, const QRectF &bounds,
                           const ViewContext &context) const = 0;
        [[nodiscard]] virtual bool equals(const Concept &other) const = 0;
    };

    template <typename V>
    struct Model final : Concept
    {
        explicit Model(V v)
            : view(std::move(v))
        {
        }
        [[nodiscard]] QSizeF idealSize(const ViewContext &context) const override
        {
            if constexpr (ComposedView<V>)
                return view.body(context).idealSize(context);
            else
                return view.idealSize(context);
        }
        void paint(QPainter &painter, const QRectF &bounds,
                   const ViewContext &context) const override
        {
            if constexpr (ComposedView<V>)
                view.body(context).paint(painter, bounds, context);
            else
                view.paint(painter, bounds, context);
        }
        [[nodiscard]] bool equals(const Concept &other) const override
        {
            const auto *same = dynamic_cast<const Model *>(&other);
            return same && same->view == view;
        }
        V view;
    };

    std::shared_ptr<const Concept> m_view;
};

} // namespace ferrin
