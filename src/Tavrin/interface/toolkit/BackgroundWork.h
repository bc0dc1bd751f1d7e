// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace Tavrin
{

/// One piece of long work on backgroundPool(), with progress. Dropping the object gives up what is
/// not done; what the work holds lives until it ends. Main thread.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// Takes a fraction from 0 to 1. Called by the work, on its thread; ends the work by throwing
    /// if it was given up, so it must not be kept from passing through.
    using Progress = std::function<void(double done)>;
    using Work = std::function<void(const Progress &)>;

    using QObject::QObject;
    ~BackgroundWork() override;

    /// Begins. Once.
    void start(const Work &work);

Q_SIGNALS:
    /// Some times a second at most.
    void progressed(double done);
    /// The work has ended. The error is what a std::exception that it threw said, else empty.
    void finished(const QString &error);

private:
    struct Run;

    std::shared_ptr<Run> m_run;
};

} // namespace Tavrin
