// SPDX-License-Identifier: Apache-2.0
#include <support/PDFBuilder.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <support/PDFWriter.h>

namespace Tavrin::Testing
{

PDFPageBuilder &PDFBuilder::addPageWithoutBox()
{
    m_pageObjects.push_back(addObject("null"));
    return m_pages.emplace_back();
}

void PDFBuilder::namedDestination(const QByteArray &name, const Dest &dest, NameForm form,
                                  NameListing listing)
{
    auto &names = listing == NameListing::NameTree ? m_names : m_catalogNames;
    names.insert_or_assign(name, NamedDestination{dest, form});
}

int PDFBuilder::addObject(const QByteArray &source)
{
    m_objects.push_back(source);
    return int(m_objects.size()) - 1;
}

int PDFBuilder::addStream(const QByteArray &dictionaryEntries, const QByteArray &data)
{
    return addObject(PDFWriter::stream(dictionaryEntries, data));
}

QByteArray PDFBuilder::build() const
{
    return PDFWriter(*this).write();
}

std::optional<QByteArray> encrypted(const QByteArray &pdf, const QString &password)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("qpdf"));
    const QTemporaryDir folder;
    QFile input(folder.filePath(QStringLiteral("plain.pdf")));
    if (program.isEmpty() || !input.open(QIODevice::WriteOnly))
        return std::nullopt;
    input.write(pdf);
    input.close();
    QFile output(folder.filePath(QStringLiteral("encrypted.pdf")));
    const int status =
        QProcess::execute(program, {QStringLiteral("--encrypt"), password, QStringLiteral("owner"),
                                    QStringLiteral("256"), QStringLiteral("--"), input.fileName(),
                                    output.fileName()});
    if (status != 0 || !output.open(QIODevice::ReadOnly))
        return std::nullopt;
    return output.readAll();
}

} // namespace Tavrin::Testing
