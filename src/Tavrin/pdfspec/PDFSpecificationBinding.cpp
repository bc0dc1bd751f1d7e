// SPDX-License-Identifier: Apache-2.0
// The specification's part that recognises a file and binds it.
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <QFileInfo>

#include <mutex>
#include <typeinfo>
#include <utility>

#include <Tavrin/model/ViewControllerFactory.h>
#include <Tavrin/pdfspec/CandidateReading.h>
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
        return CandidateReading::document(url);
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

/// By what the file is recognised; nothing if it can't be opened.
std::optional<FirstPage> firstPage(const QUrl &url)
{
    FirstPageMemory &memory = FirstPageMemory::shared();
    const FileVersion version(url.toLocalFile());
    if (auto known = memory.page(version))
        return known;
    const auto document = openCandidate(url);
    if (!document)
        return std::nullopt;
    const auto &attributes = document->documentAttributes();
    FirstPage page{attributes.value(u"Title"_s), attributes.value(u"Author"_s),
                   document->textForPage(0).value_or(QString())};
    memory.remember(version, page);
    return page;
}

} // namespace

QStringList PDFSpecification::formatVerifierText(const QString &text) const
{
    return VerifierText::words(text);
}

bool PDFSpecification::doesAuxiliaryFile(const QUrl &url,
                                         const AuxiliaryFileRequirement &requirement)
{
    if (QFileInfo(url.path()).suffix() != requirement.fileType)
        return false;
    const auto page = firstPage(url);
    return page && VerifierText::match(formatVerifierText(page->text),
                                       formatVerifierText(requirement.verifier));
}

bool PDFSpecification::assignAuxiliaryFile(const QUrl &url,
                                           const AuxiliaryFileRequirement &requirement)
{
    const CandidateReading once;
    if (!doesAuxiliaryFile(url, requirement))
        return false;
    const auto document = openCandidate(url);
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
