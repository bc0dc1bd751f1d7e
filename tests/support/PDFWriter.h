// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <support/PDFBuilder.h>

namespace Tavrin::Testing
{

/// Writes what a PDFBuilder has gathered, on a copy of its objects.
class PDFWriter
{
public:
    explicit PDFWriter(const PDFBuilder &builder);

    QByteArray write();

    static QByteArray stream(const QByteArray &dictionaryEntries, const QByteArray &data);

private:
    using Entries = PDFBuilder::Entries;

    using Names = std::map<QByteArray, PDFBuilder::NamedDestination>;

    int add(const QByteArray &source);
    void setObject(int number, const Entries &entries);
    int addCatalog();

    int addPages();
    int addPageNode(int first, int end, int parent);
    /// The array of references to pages `first` up to `end`, which it adds.
    QByteArray addPageObjects(int first, int end, int parent);
    Entries pageEntries(const PDFPageBuilder &page, int parent);
    QByteArray annotationsSource(const PDFPageBuilder &page) const;
    QByteArray fontsSource(const PDFPageBuilder &page);
    int fontObject(Font font);

    int addOutline();
    /// Says how many items there are on all levels.
    int addOutlineItems(const std::vector<OutlineItem> &items, int parent, Entries &parentEntries);
    Entries outlineEntries(const OutlineItem &item) const;

    QByteArray namedSource(const PDFBuilder::NamedDestination &named) const;
    QByteArray catalogNames() const;
    QByteArray nameTree();
    QByteArray leafNames(Names::const_iterator first, Names::const_iterator end) const;
    QByteArray pageLabels() const;

    static QByteArray dictionary(const Entries &entries);
    QByteArray file(const QByteArray &trailer) const;

    const PDFBuilder &m_builder;
    std::vector<QByteArray> m_objects;
    std::map<Font, int> m_fontObjects;
};

} // namespace Tavrin::Testing
