// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace ferrin {

class FramedWindow;

/// A popover that explains a part of a popover: a window of its own, because it is larger than what
/// it explains. It has an arrow to the part, takes no focus, and one at a time is open. The content
/// is made when it opens and dropped when it closes; its width is its own, its height follows.
///
/// It closes at Escape, at a press on the window of its anchor (which the press still reaches),
/// when the anchor is hidden, and with the anchor's window.
class PopoverWindow : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_CLASSINFO("DefaultProperty", "content")
    Q_PROPERTY(QQuickItem *anchor READ anchor WRITE setAnchor NOTIFY anchorChanged)
    Q_PROPERTY(QQmlComponent *content READ content WRITE setContent NOTIFY contentChanged)
    /// Told to those who do not see which part the arrow points to.
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)

public:
    explicit PopoverWindow(QObject *parent = nullptr);
    ~PopoverWindow() override;

    [[nodiscard]] QQuickItem *anchor() const { return m_anchor; }
    void setAnchor(QQuickItem *anchor);
    [[nodiscard]] QQmlComponent *content() const { return m_content; }
    void setContent(QQmlComponent *content);
    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString &title);
    [[nodiscard]] bool isShown() const { return !m_window.isNull(); }

    /// Does nothing while it is shown, and without an anchor in a visible window.
    Q_INVOKABLE void open();
    Q_INVOKABLE void close();

    [[nodiscard]] bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void anchorChanged();
    void contentChanged();
    void titleChanged();
    void shownChanged();
    void opened();
    void closed();
    /// It is about to close because of a press beside it in the anchor's window; the item under the
    /// pointer hears of the press after this.
    void pressedElsewhere();

private:
    [[nodiscard]] bool fill(FramedWindow &window);
    void follow(QQuickWindow &parent);
    void place();

    QPointer<QQuickItem> m_anchor;
    QPointer<QQmlComponent> m_content;
    QString m_title;
    QPointer<FramedWindow> m_window;
};

} // namespace ferrin
