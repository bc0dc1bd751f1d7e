// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSignalSpy>
#include <QTest>

#include <support/Test.h>

#include <memory>
#include <vector>

#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/HostApplication.h>
#include <support/LogCapture.h>
#include <support/SampleDocument.h>
#include <support/TemporaryFiles.h>

namespace Tavrin::Testing
{

/// The manager that views use, with a store of its own and nothing registered, and a host that
/// keeps what it is given to display.
class SharedManagerFixture : public testing::Test
{
protected:
    SharedManagerFixture()
    {
        qputenv("XDG_DATA_HOME", files.path(u"data"_s).toLocal8Bit());
        setHostIdentifier(u"host"_s);
        manager.setSpecifications({});
        manager.setAuxiliaryFiles({});
        manager.setDetailViewControllerDisplayBlock(
            [this](const ViewControllerPtr &view) { details.push_back(view); });
        manager.setAuxiliaryFileBrowserDisplayBlock(
            [this](const ViewControllerPtr &view) { browsers.push_back(view); });
    }
    void TearDown() override
    {
        details.clear();
        browsers.clear();
        manager.setDetailViewControllerDisplayBlock({});
        manager.setAuxiliaryFileBrowserDisplayBlock({});
        manager.setAuxiliaryFileBrowserHelpText({});
        manager.setSpecifications({});
        manager.setAuxiliaryFiles({});
        setHostIdentifier({});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::shared_ptr<Specification> addSpecification(const QString &word)
    {
        manager.registerSpecification(sampleMap(word).write(files, u"maps/%1.xml"_s.arg(word)),
                                      files.url(u"spec.dtd"_s));
        return specification(word);
    }
    /// The one that is registered now: a removed file leaves another object.
    std::shared_ptr<Specification> specification(const QString &word) const
    {
        return manager.specificationWhere(
            [&](const Specification &candidate) { return candidate.identifier() == word; });
    }
    QUrl writeDocument(const QString &word, const QString &name) const
    {
        return files.write(name, sampleDocument(word));
    }
    QUrl import(const QString &word)
    {
        return manager.registerAuxiliaryFile(writeDocument(word, word + u".pdf"_s));
    }

    /// One that is registered and has its document.
    std::shared_ptr<Specification> addImported(const QString &word)
    {
        addSpecification(word);
        import(word);
        return specification(word);
    }

    TemporaryFiles files;
    SpecificationManager &manager = SpecificationManager::shared();
    std::vector<ViewControllerPtr> details;
    std::vector<ViewControllerPtr> browsers;
};

} // namespace Tavrin::Testing
