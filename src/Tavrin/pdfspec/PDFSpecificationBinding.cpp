// SPDX-License-Identifier: Apache-2.0
// The specification's part that recognises a file and binds it.
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <QFileInfo>
#include <QScopeGuard>

#include <mutex>
#include <typeinfo>
#include <utility>

#include <Tavrin/model/ViewControllerFactory.h>
#include <Tavrin/pdfspec/FirstPageMemory.h>
#include <Tavrin/pdfspec/PrintReader.h>
#include <Tavrin/pdfspec/VerifierText.h>
#include <Tavrin/platform/DecimalForm.h>
#include <Tavrin/platform/HostPDFError.h>
#include <Tavrin/platform/Logging.h>
#include <Tavrin/platform/StandardError.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// Opens a document; a failure is told in the log with its reason, and gives null.
std::shared_ptr<CachingPDFDocument> openDocument(const QUrl &url)
{
    try {
        return CachingPDFDocument::open(url);
    } catch (const HostPDFError &error) {
        qCWarning(pdfLog).noquote() << QString::fromUtf8(error.what());
        return nullptr;
    }
}

std::shared_ptr<CachingPDFDocument> openCandidate(const QUrl &url)
{
    auto document = openDocument(url);
    if (!document)
        standardError(u"Unable to open the PDF at %1."_s.arg(url.toString()));
    return document;
}

} // namespace

/// What a candidate file offers for recognition.
struct PDFSpecification::AuxFileMetadata {
    QUrl url;
    FirstPage page;
    /// Null if all else was known without opening the file.
    std::shared_ptr<CachingPDFDocument> document;
};

std::optional<PDFSpecification::AuxFileMetadata>
PDFSpecification::loadPDFFileMetadata(const QUrl &url) const
{
    if (m_candidate && m_candidate->url == url)
        return *m_candidate;
    FirstPageMemory &memory = FirstPageMemory::shared();
    const FileVersion version(url.toLocalFile());
    if (auto known = memory.page(version))
        return AuxFileMetadata{url, *std::move(known), nullptr};
    auto document = openCandidate(url);
    if (!document)
        return std::nullopt;
    const auto &attributes = document->documentAttributes();
    FirstPage page{attributes.value(u"Title"_s), attributes.value(u"Author"_s),
                   document->textForPage(0).value_or(QString())};
    memory.remember(version, page);
    return AuxFileMetadata{url, std::move(page), std::move(document)};
}

QStringList PDFSpecification::formatVerifierText(const QString &text) const
{
    return VerifierText::words(text);
}

bool PDFSpecification::doesAuxiliaryFile(const QUrl &url,
                                         const AuxiliaryFileRequirement &requirement)
{
    if (QFileInfo(url.path()).suffix() != requirement.fileType)
        return false;
    const auto metadata = loadPDFFileMetadata(url);
    return metadata && VerifierText::match(formatVerifierText(metadata->page.text),
                                           formatVerifierText(requirement.verifier));
}

bool PDFSpecification::assignAuxiliaryFile(const QUrl &url,
                                           const AuxiliaryFileRequirement &requirement)
{
    const auto metadata = loadPDFFileMetadata(url);
    if (!metadata || !recognisesCandidate(*metadata, requirement))
        return false;
    const auto document = metadata->document ? metadata->document : openCandidate(url);
    if (!document)
        return false;
    m_pdfURL = url;
    if (entries().isEmpty()) {
        // A subclass may load its table in a way of its own; this class reads the map.
        if (typeid(*this) != typeid(PDFSpecification))
            loadStructure();
        else if (specMapURL())
            Specification::loadStructure(*specMapURL(), dtdURL());
    }
    loadPDFStructure(document);
    readPageBounds(requirement.readInfo);
    tellBound();
    return true;
}

bool PDFSpecification::recognisesCandidate(const AuxFileMetadata &metadata,
                                           const AuxiliaryFileRequirement &requirement)
{
    // Recognising reads what was just read; the file is not opened for it once more.
    m_candidate = std::make_shared<AuxFileMetadata>(metadata);
    const auto forget = qScopeGuard([this] { m_candidate = nullptr; });
    return doesAuxiliaryFile(metadata.url, requirement);
}

void PDFSpecification::setPageBounds(const std::optional<Rect> &bounds)
{
    const std::unique_lock lock(m_bindingMutex);
    m_pageBounds = bounds;
    m_print->forgetPages();
}

void PDFSpecification::readPageBounds(const QString &readInfo)
{
    std::vector<double> numbers;
    const QStringList parts = readInfo.split(u',');
    for (const QString &part : parts) {
        if (const auto number = parseDecimal(part))
            numbers.push_back(*number);
    }
    if (numbers.size() == 4 && parts.size() == 4) {
        setPageBounds(Rect{{numbers[0], numbers[1]}, {numbers[2], numbers[3]}});
        return;
    }
    standardError(u"Unable to parse PDF read info: %1. Expected a string of the form "
                  "x,y,width,height. Falling back to default page bounds."_s.arg(readInfo));
}

void PDFSpecification::loadPDFDocument(const QUrl &url)
{
    if (const auto document = openDocument(url)) {
        loadPDFStructure(document);
        tellBound();
    } else {
        standardError(u"Couldn't load document from URL "_s + url.toString());
    }
}

void PDFSpecification::tellBound()
{
    auto *factory = viewControllerFactory();
    if (const auto self = factory ? weak_from_this().lock() : nullptr)
        factory->documentBound(self);
}

} // namespace Tavrin
