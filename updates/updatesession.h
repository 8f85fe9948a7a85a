// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/release.h"
#include "updates/updateengine.h"
#include "updates/updatefailure.h"
#include "updates/updatefeed.h"

#include <QBindable>
#include <QObject>
#include <QProperty>
#include <QString>

#include <optional>

namespace ferrin {

class PackageInstaller;
class UpdateRecords;

/// Where the updater stands between asking the server and handing a package over. One session after
/// the other, in one object that lives as long as the updater, whose it is; a window shows what the
/// properties say and calls the slots. A slot that makes no sense at the present stage does
/// nothing.
///
/// A quiet session, one that nobody asked for, keeps its troubles to the log and ends where it
/// would have nothing to offer; it speaks up by `presentationRequested`. Its public functions are
/// many because each property has two and each button has one.
class UpdateSession : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Stage stage READ stage BINDABLE bindableStage NOTIFY stageChanged)
    Q_PROPERTY(QString version READ version BINDABLE bindableVersion NOTIFY versionChanged)
    Q_PROPERTY(QString notes READ notes BINDABLE bindableNotes NOTIFY notesChanged)
    Q_PROPERTY(qint64 received READ received BINDABLE bindableReceived NOTIFY receivedChanged)
    Q_PROPERTY(qint64 total READ total BINDABLE bindableTotal NOTIFY totalChanged)
    Q_PROPERTY(QString failure READ failure BINDABLE bindableFailure NOTIFY failureChanged)

public:
    enum class Stage {
        idle,
        checking,
        upToDate,
        available,
        downloading,
        /// The package lies verified on the disk.
        readyToInstall,
        failed,
    };
    Q_ENUM(Stage)

    struct Parts
    {
        UpdateFeed feed;
        QString installedVersion;
        /// Where downloads go, absolute.
        QString folder;
        UpdateEngine &engine;
        UpdateRecords &records;
        PackageInstaller &installer;
    };

    /// All of the parts outlive the session.
    explicit UpdateSession(const Parts &parts);

    [[nodiscard]] Stage stage() const { return m_stage; }
    /// What is offered; empty before an offer.
    [[nodiscard]] QString version() const { return m_version; }
    /// Markdown, to be shown without anything that it may link to.
    [[nodiscard]] QString notes() const { return m_notes; }
    /// Bytes of the package on the disk, and of all of it.
    [[nodiscard]] qint64 received() const { return m_received; }
    [[nodiscard]] qint64 total() const { return m_total; }
    /// In plain words; empty unless `failed`.
    [[nodiscard]] QString failure() const { return m_failure; }
    /// All there is to know of what is offered, its date included.
    [[nodiscard]] const std::optional<Release> &release() const noexcept { return m_release; }

    /// Read-only.
    [[nodiscard]] QBindable<Stage> bindableStage() const { return &m_stage; }
    [[nodiscard]] QBindable<QString> bindableVersion() const { return &m_version; }
    [[nodiscard]] QBindable<QString> bindableNotes() const { return &m_notes; }
    [[nodiscard]] QBindable<qint64> bindableReceived() const { return &m_received; }
    [[nodiscard]] QBindable<qint64> bindableTotal() const { return &m_total; }
    [[nodiscard]] QBindable<QString> bindableFailure() const { return &m_failure; }

    /// Begins anew, in place of a session that only waits for the user. One that is at work goes
    /// on, and is quiet no longer.
    void begin();
    /// Begins where nothing else goes on; a version that the user skipped is not offered.
    void beginQuietly(bool downloads);

public Q_SLOTS:
    /// Stops a check, which ends the session, or a download, which goes back to the offer.
    void cancel();
    /// After a failure: takes the step again that failed.
    void tryAgain();
    void download();
    /// Hands the package over once more verified, and ends the session.
    void install();
    /// Ends the session, and no quiet one offers this version again.
    void skipThisVersion();
    /// Ends the session; the next one offers the same again.
    void later();

Q_SIGNALS:
    void stageChanged();
    void versionChanged();
    void notesChanged();
    void receivedChanged();
    void totalChanged();
    void failureChanged();
    /// The user should see how it goes.
    void presentationRequested();

private:
    enum class Step { check, download, install };

    void check();
    void takeOffer(const UpdateOffer &offer);
    void takePackage(const QString &path);
    void fail(const UpdateTrouble &trouble);
    void setRelease(const std::optional<Release> &release);
    void present();
    void end();
    [[nodiscard]] bool isAnyOf(std::initializer_list<Stage> stages) const;

    Parts m_parts;
    std::optional<Release> m_release;
    QString m_packagePath;
    Step m_step = Step::check;
    bool m_isQuiet = false;
    bool m_downloadsByItself = false;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(UpdateSession, Stage, m_stage, Stage::idle,
                                         &UpdateSession::stageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, QString, m_version, &UpdateSession::versionChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, QString, m_notes, &UpdateSession::notesChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, qint64, m_received, &UpdateSession::receivedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, qint64, m_total, &UpdateSession::totalChanged)
    Q_OBJECT_BINDABLE_PROPERTY(UpdateSession, QString, m_failure, &UpdateSession::failureChanged)
};

} // namespace ferrin
