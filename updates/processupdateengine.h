// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateengine.h"
#include "updates/updatemessages.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <memory>

namespace ferrin {

/// Has each task done by a helper process that ends with it, so that the network stack and whatever
/// a server sends never enter this one. A helper that ends without its last answer is a failure
/// like any other. A task that is running ends when another begins, or with this object.
class ProcessUpdateEngine final : public UpdateEngine
{
    Q_OBJECT

public:
    explicit ProcessUpdateEngine(QString helper, QStringList arguments = {});
    ~ProcessUpdateEngine() override;

    void check(const UpdateCheck &check) override;
    void download(const PackageRequest &request) override;
    void cancel() override;

private:
    void perform(const UpdateTask &task);
    void readAnswers();
    void tell(const UpdateAnswer &answer);
    void breakOff(const QString &detail);
    void letGo();

    QString m_helper;
    QStringList m_arguments;
    /// Null when there is no task.
    std::unique_ptr<QProcess> m_process;
};

} // namespace ferrin
