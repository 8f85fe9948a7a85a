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
    Q_PROPERTY(bool isSupported READ isSupported NOTIFY isSupportedChanged)
    Q_PROPERTY(QString note READ note NOTIFY noteChanged)
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)
    Q_PROPERTY(QString installedVersion READ installedVersion CONSTANT)
    Q_PROPERTY(QString version READ version NOTIFY releaseChanged)
    Q_PROPERTY(QString offer READ offer NOTIFY releaseChanged)
    Q_PROPERTY(QString notes READ notes NOTIFY releaseChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    Q_PROPERTY(bool canCancel READ canCancel NOTIFY progressChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged)

public:
    enum class Stage {
        Idle = int(UpdateSession::Stage::idle),
        Checking = int(UpdateSession::Stage::checking),
        UpToDate = int(UpdateSession::Stage::upToDate),
        Available = int(UpdateSession::Stage::available),
        Downloading = int(UpdateSession::Stage::downloading),
        ReadyToInstall = int(UpdateSession::Stage::readyToInstall),
        Installing = int(UpdateSession::Stage::installing),
        Installed = int(UpdateSession::Stage::installed),
        Failed = int(UpdateSession::Stage::failed),
    };
    Q_ENUM(Stage)

    explicit SoftwareUpdates(Updater &updater, QObject *parent = nullptr);

    /// The engine's child.
    static SoftwareUpdates *create(QQmlEngine *engine, QJSEngine *);

    /// Whether the system can keep this copy current; without it the block is disabled.
    [[nodiscard]] bool isSupported() const;
    /// What the block has to say beyond its controls: why it is disabled, what was found in the
    /// background, why that failed. Mostly empty.
    [[nodiscard]] QString note() const;
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
    /// When it was released and how large it is, as far as that is known, in sentences.
    [[nodiscard]] QString offer() const;
    /// Plain text.
    [[nodiscard]] QString notes() const;
    /// 0 to 1; less than 0 while it is unknown.
    [[nodiscard]] double progress() const;
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] bool canCancel() const;
    [[nodiscard]] QString failure() const;

public Q_SLOTS:
    void refreshSupport();
    void checkForUpdates();
    void cancel();
    void tryAgain();
    void download();
    void install();
    void skipThisVersion();
    void later();
    /// The user closed the window. Only an installation goes on.
    void dismiss();

Q_SIGNALS:
    void isSupportedChanged();
    void noteChanged();
    void canCheckForUpdatesChanged();
    void stageChanged();
    void releaseChanged();
    void progressChanged();
    void failureChanged();

private:
    void follow();
    [[nodiscard]] QString backgroundNote() const;
    [[nodiscard]] QString downloadedText() const;

    Updater &m_updater;
    UpdateSession &m_session;
    QPropertyNotifier m_canCheckFollower;
    QPropertyNotifier m_supportFollower;
};

} // namespace ferrin
