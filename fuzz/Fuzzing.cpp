// SPDX-License-Identifier: Apache-2.0
#include "Fuzzing.h"

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/StandardOutput.h>

#include <cstdio>
#include <cstdlib>

namespace Tavrin::Fuzzing
{

using namespace Qt::StringLiterals;

namespace
{

void showFatalOnly(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

void addEntry(PDFSpecification &specification, const QString &label, SpecificationEntryType type,
              const std::vector<int> &index, const std::optional<QString> &link)
{
    const auto entry = specification.newEntry();
    entry->setLabel(label);
    entry->setTitle(u"The title of "_s + label);
    entry->setType(type);
    entry->setIndex(index);
    std::static_pointer_cast<PDFSpecification::Entry>(entry)->setInternalLink(link);
    specification.add(entry);
}

} // namespace

QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data),
                                   static_cast<qsizetype>(size));
}

QString text(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(bytes(data, size));
}

void require(bool holds, const char *property)
{
    if (holds)
        return;
    std::fprintf(stderr, "This does not hold: %s\n", property);
    std::abort();
}

std::shared_ptr<PDFSpecification> specification()
{
    using Type = SpecificationEntryType;
    auto result = Specification::make<PDFSpecification>();
    result->setTitle(u"Fuzzed"_s);
    result->setIdentifier(u"fuzzed"_s);
    result->setRevision(u"1"_s);
    addEntry(*result, u"chapter.4"_s, Type::Chapter, {4}, std::nullopt);
    addEntry(*result, u"4.1"_s, Type::Section, {4, 1}, u"outline:Scope"_s);
    addEntry(*result, u"4.2"_s, Type::Section, {4, 2}, u"destination:0,72,700"_s);
    addEntry(*result, u"fig-1"_s, Type::Figure, {4, 1},
             u"rects:0,72.0,100.0,300.0,20.0;1,0.0,0.0,1.0,1.0"_s);
    addEntry(*result, u"tab-1"_s, Type::Table, {4, 1}, u"table.1"_s);
    return result;
}

} // namespace Tavrin::Fuzzing

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    static const Tavrin::StandardErrorRedirection errors([](const QString & /*message*/) {});
    static const Tavrin::StandardOutputRedirection progress([](const QString & /*message*/) {});
    qInstallMessageHandler(Tavrin::Fuzzing::showFatalOnly);
    return 0;
}
