// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/bindable.h"
#include "updates/release.h"
#include "updates/updateengine.h"
#include "updates/updatefailure.h"

#include <QObject>
#include <QProperty>
#include <QString>

#include <optional>

namespace ferrin {

class UpdateRecords;

/// Where the updater stands between asking the package service and the installed version. One
/// session after the other, in one object that lives as long as the updater, whose it is; a window
/// shows what the properties say and calls the slots. A slot that makes no sense at the present
/// stage does nothing.
///
/// A background session, one that nobody asked for, never asks for a window: it tells of an offer
/// by `offered` and of a failure by `trouble`. Its public functions are many because each property
/// has two and each button has one.
class UpdateSession : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)

public:
    enum class Stage {
        idle,
        checking,
        upToDate,
        available,
        downloading,
        /// The service has the verified package.
        readyToInstall,
        installing,
        installed,
        failed,
    };
    Q_ENUM(Stage)

    /// The engine and the records outlive the session.
    UpdateSession(UpdateEngine &engine, UpdateRecords &records);

    [[nodiscard]] Stage stage() const { return m_stage; }
    /// What is offered; absent before an offer.
    [[nodiscard]] std::optional<Release> release() const { return m_release; }
    [[nodiscard]] UpdateProgress progress() const { return m_progress; }
    /// In plain words; empty unless `failed`.
    [[nodiscard]] QString failure() const { return m_failure; }
    /// Why the last background session failed, in plain words; empty when it did not.
    [[nodiscard]] QString trouble() const { return m_trouble; }
    /// Nobody has asked to see the session yet.
    [[nodiscard]] bool isBackground() const { return m_isBackground; }

    [[nodiscard]] Bindable<Stage> bindableStage() const { return &m_stage; }
    [[nodiscard]] Bindable<bool> bindableIsBackground() const { return &m_isBackground; }

    /// Begins anew in place of a session that only waits for the user, and asks to be shown. One
    /// that is at work continues.
    void begin();
    /// Begins where nothing else goes on; a version that the user skipped is not offered.
    void beginInBackground(bool downloads);
    /// True when nothing goes on, or only an offer that nobody has looked at.
    [[nodiscard]] bool canBeginInBackground() const;
    /// Shows what goes on; begins when that is over.
    void present();

public Q_SLOTS:
    /// Stops a check, which ends the session, a download, or an installation where that is safe.
    void cancel();
    /// After a failure: takes the step again that failed.
    void tryAgain();
    void download();
    void install();
    /// Ends the session, and no background one offers this version again.
    void skipThisVersion();
    /// Ends the session; the next one offers the same again.
    void later();
    /// The user looks away. An installation continues in the background; all else ends.
    void dismiss();

Q_SIGNALS:
    void stageChanged();
    void releaseChanged();
    void progressChanged();
    void failureChanged();
    void troubleChanged();
    void isBackgroundChanged();
    /// The user wants to see how it goes.
    void presentationRequested();
    /// A background session has something to offer, or has downloaded it.
    void offered();

private:
    enum class Step { check, download, install };

    void check();
    void takeAnswer(const std::optional<Release> &release);
    void takeOffer(const Release &release);
    void takeDownload();
    void takeInstallation();
    void fail(const UpdateTrouble &trouble);
    void startStep(Step step, Stage stage);
    void offer();
    void end();
    [[nodiscard]] UpdateManner manner() const;
    [[nodiscard]] bool isAnyOf(std::initializer_list<Stage> stages) const;

    UpdateEngine &m_engine;
    UpdateRecords &m_records;
    Step m_step = Step::check;
    bool m_downloadsByItself = false;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(UpdateSession, Stage, m_stage, Stage::idle,
                                         &UpdateSession::stageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, std::optional<Release>, m_release,
                               &UpdateSession::releaseChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, UpdateProgress, m_progress,
                               &UpdateSession::progressChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, QString, m_failure, &UpdateSession::failureChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, QString, m_trouble, &UpdateSession::troubleChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, bool, m_isBackground,
                               &UpdateSession::isBackgroundChanged)
};

} // namespace ferrin
