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

/// An explanation beside a part of the dashboard, with an arrow to it: a window of its own, because
/// it may be larger than the dashboard. It takes no focus, and only one is open at a time. The
/// content is created when it opens and destroyed when it closes; it has a fixed width and any
/// height.
///
/// It closes on Escape, on a press in the anchor's window (which still receives the press), when
/// the anchor is hidden, and with the anchor's window.
class PopoverWindow : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_CLASSINFO("DefaultProperty", "content")
    Q_PROPERTY(QQuickItem *anchor READ anchor WRITE setAnchor NOTIFY anchorChanged)
    Q_PROPERTY(QQmlComponent *content READ content WRITE setContent NOTIFY contentChanged)
    /// The window's accessible title: what is explained.
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
    /// It is about to close because of a press in the anchor's window. Emitted before the item
    /// under the pointer receives the press.
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
