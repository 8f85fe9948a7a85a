// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updatesession.h"

#include <QObject>
#include <QProperty>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class Updater;

/// The updater as the views know it: its switches for the settings window, and its session, put
/// into words, for the window of updates. A child of the engine; the updater outlives it. It
/// decides nothing.
class SoftwareUpdates final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    Q_PROPERTY(bool hasFeed READ hasFeed CONSTANT)
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)
    Q_PROPERTY(QString installedVersion READ installedVersion CONSTANT)
    Q_PROPERTY(QString version READ version NOTIFY versionChanged)
    Q_PROPERTY(QString offer READ offer NOTIFY versionChanged)
    Q_PROPERTY(QString notes READ notes NOTIFY notesChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged)

public:
    enum class Stage {
        Idle = int(UpdateSession::Stage::idle),
        Checking = int(UpdateSession::Stage::checking),
        UpToDate = int(UpdateSession::Stage::upToDate),
        Available = int(UpdateSession::Stage::available),
        Downloading = int(UpdateSession::Stage::downloading),
        ReadyToInstall = int(UpdateSession::Stage::readyToInstall),
        Failed = int(UpdateSession::Stage::failed),
    };
    Q_ENUM(Stage)

    explicit SoftwareUpdates(Updater &updater, QObject *parent = nullptr);

    /// The engine's child.
    static SoftwareUpdates *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] bool hasFeed() const;
    [[nodiscard]] bool canCheckForUpdates() const;
    /// No properties: a view shows what these were when it was made.
    [[nodiscard]] Q_INVOKABLE bool automaticallyChecksForUpdates() const;
    Q_INVOKABLE void setAutomaticallyChecksForUpdates(bool checks);
    [[nodiscard]] Q_INVOKABLE bool automaticallyDownloadsUpdates() const;
    Q_INVOKABLE void setAutomaticallyDownloadsUpdates(bool downloads);

    [[nodiscard]] Stage stage() const;
    [[nodiscard]] QString installedVersion() const;
    /// What is offered; empty before an offer, as is all that describes it.
    [[nodiscard]] QString version() const;
    /// When it was released and how large it is, in a sentence.
    [[nodiscard]] QString offer() const;
    /// Markdown that loads and links to nothing.
    [[nodiscard]] QString notes() const;
    /// 0 to 1.
    [[nodiscard]] double progress() const;
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] QString failure() const;

public Q_SLOTS:
    void checkForUpdates();
    void cancel();
    void tryAgain();
    void download();
    void install();
    void skipThisVersion();
    void later();
    /// Ends the session whatever it is at; what was fetched of a package is kept.
    void dismiss();

Q_SIGNALS:
    void canCheckForUpdatesChanged();
    void stageChanged();
    void versionChanged();
    void notesChanged();
    void progressChanged();
    void failureChanged();

private:
    Updater &m_updater;
    UpdateSession &m_session;
    QPropertyNotifier m_follower;
};

} // namespace ferrin
