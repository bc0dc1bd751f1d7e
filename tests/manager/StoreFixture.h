// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <support/Test.h>

#include <QDir>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/HostApplication.h>
#include <support/SampleDocument.h>
#include <support/StandardErrorCapture.h>
#include <support/TemporaryFiles.h>

#include <support/LogCapture.h>

namespace Tavrin::Testing
{

/// A user's data directory of its own, maps, and documents that they recognise.
class StoreFixture : public testing::Test
{
protected:
    StoreFixture()
    {
        qputenv("XDG_DATA_HOME", files.path(u"data"_s).toLocal8Bit());
        setHostIdentifier(u"host"_s);
    }
    void TearDown() override { setHostIdentifier({}); }

    QString storePath(const QString &name = {}) const
    {
        return files.path(u"data/tavrin/host"_s) + (name.isEmpty() ? QString() : u'/' + name);
    }
    QUrl storeUrl(const QString &name) const { return QUrl::fromLocalFile(storePath(name)); }
    QByteArray storedBytes(const QString &name) const
    {
        return files.read(u"data/tavrin/host/"_s + name);
    }

    /// Everything that lies in the store, hidden or not, by name.
    QStringList storeContents() const
    {
        return QDir(storePath()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    void writeMap(const QString &word) const
    {
        sampleMap(word).write(files, u"maps/%1.xml"_s.arg(word));
        files.write(u"maps/%1.dtd"_s.arg(word), MapBuilder::grammar());
    }
    QUrl writeDocument(const QString &word, const QString &name) const
    {
        return files.write(name, sampleDocument(word));
    }

    /// A manager as after a start of the host.
    std::unique_ptr<SpecificationManager> start() const
    {
        auto manager = std::make_unique<SpecificationManager>();
        manager->loadSpecInformation(files.url(u"maps"_s));
        return manager;
    }

    /// The file that a specification has bound; absent without one.
    static std::optional<QUrl> boundFile(const SpecificationManager &manager,
                                         const QString &identifier)
    {
        const auto specification = manager.specificationWhere(
            [&](const Specification &spec) { return spec.identifier() == identifier; });
        return specification->auxiliaryFileRequirements().front()->fileURL;
    }

    TemporaryFiles files;
    LogCapture log;
    StandardErrorCapture errors;
};

/// Takes what it is told to, and notes what it is offered.
class Taker : public Specification
{
public:
    std::function<bool(const QUrl &)> recognises = [](const QUrl &) { return true; };
    std::function<bool(const QUrl &)> takes = [](const QUrl &) { return true; };
    QStringList offered;

    static std::shared_ptr<Taker> make(int requirements = 1)
    {
        auto taker = Specification::make<Taker>();
        for (int i = 0; i < requirements; ++i)
            taker->addAuxiliaryFileRequirement(
                std::make_shared<AuxiliaryFileRequirement>(u"pdf"_s, QString(), QString()));
        return taker;
    }

    bool doesAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &) override
    {
        return recognises(url);
    }
    bool assignAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &) override
    {
        offered.append(url.fileName());
        return takes(url);
    }
};

} // namespace Tavrin::Testing
