// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

#include <Tavrin/manager/SpecificationManager.h>

namespace Tavrin::Testing
{

/// Takes pictures of windows in their states, for people to look at. Each set of pictures is taken
/// in every mode: light, dark, German, and from the right to the left.
class Studio
{
public:
    /// Takes one set. Windows that it leaves behind are closed.
    using Pictures = void (*)(Studio &studio);

    /// Pictures go below the folder, into a folder each mode. `sample` names the map of the samples
    /// that scenes with a real document show, and `corpus` the folder of the PDFs.
    Studio(QString folder, QString corpus);
    ~Studio();

    void takeAll(Pictures pictures);

    /// Lets the window settle and saves what it shows.
    void shoot(QWidget &window, const QString &name);
    /// Waits, while events are handled; complains if it was in vain.
    static bool waitFor(const std::function<bool()> &condition);

    /// One of the PDFs.
    QString document(const QString &name) const;
    /// Registers the sample of that name, such as "slepc", and binds its PDF where it lies.
    std::shared_ptr<Specification> bindSample(SpecificationManager &manager,
                                              const QString &name) const;

private:
    void takeIn(const QString &mode, Pictures pictures);

    QString m_folder;
    QString m_corpus;
    QString m_mode;
};

} // namespace Tavrin::Testing
