// SPDX-License-Identifier: Apache-2.0
#include <support/PDFWriter.h>

#include <support/PDFSource.h>

namespace Tavrin::Testing
{

using PDFSource::reference;

namespace
{

constexpr const char *fontNames[] = {
    "Helvetica",   "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique",
    "Times-Roman", "Times-Bold",     "Times-Italic",      "Times-BoldItalic",
    "Courier",     "Courier-Bold",   "Courier-Oblique",   "Courier-BoldOblique",
    "Symbol",
};

} // namespace

PDFWriter::PDFWriter(const PDFBuilder &builder) : m_builder(builder), m_objects(builder.m_objects)
{
}

QByteArray PDFWriter::write()
{
    Entries trailer{{"Root", reference(addCatalog())}};
    if (!m_builder.m_info.empty())
        trailer["Info"] = reference(add(dictionary(m_builder.m_info)));
    trailer["Size"] = QByteArray::number(m_objects.size());
    for (const auto &[key, source] : m_builder.m_trailer)
        trailer[key] = source;
    return file(dictionary(trailer));
}

QByteArray PDFWriter::stream(const QByteArray &dictionaryEntries, const QByteArray &data)
{
    return "<< " + dictionaryEntries + " /Length " + QByteArray::number(data.size()) +
           " >>\nstream\n" + data + "\nendstream";
}

int PDFWriter::add(const QByteArray &source)
{
    m_objects.push_back(source);
    return int(m_objects.size()) - 1;
}

void PDFWriter::setObject(int number, const Entries &entries)
{
    m_objects[std::size_t(number)] = dictionary(entries);
}

int PDFWriter::addCatalog()
{
    Entries catalog{{"Type", "/Catalog"}, {"Pages", reference(addPages())}};
    if (!m_builder.m_outline.empty())
        catalog["Outlines"] = reference(addOutline());
    if (!m_builder.m_names.empty())
        catalog["Names"] = "<< /Dests " + nameTree() + " >>";
    if (!m_builder.m_catalogNames.empty())
        catalog["Dests"] = catalogNames();
    if (!m_builder.m_labels.empty())
        catalog["PageLabels"] = pageLabels();
    for (const auto &[key, source] : m_builder.m_catalog)
        catalog[key] = source;
    return add(dictionary(catalog));
}

int PDFWriter::addPages()
{
    const int root = add({});
    const int total = int(m_builder.m_pages.size());
    const int width = m_builder.m_pagesPerNode;
    Entries entries = m_builder.m_inherited;
    if (width <= 0) {
        entries.insert({"Kids", addPageObjects(0, total, root)});
    } else {
        QByteArray nodes;
        for (int first = 0; first < total; first += width)
            nodes += reference(addPageNode(first, qMin(first + width, total), root)) + ' ';
        entries.insert({"Kids", '[' + nodes + ']'});
    }
    entries.insert({"Type", "/Pages"});
    entries.insert({"Count", QByteArray::number(total)});
    setObject(root, entries);
    return root;
}

int PDFWriter::addPageNode(int first, int end, int parent)
{
    const int node = add({});
    setObject(node, {{"Type", "/Pages"},
                     {"Parent", reference(parent)},
                     {"Count", QByteArray::number(end - first)},
                     {"Kids", addPageObjects(first, end, node)}});
    return node;
}

QByteArray PDFWriter::addPageObjects(int first, int end, int parent)
{
    QByteArray kids("[");
    for (int page = first; page < end; ++page) {
        const int object = m_builder.pageObject(page);
        setObject(object, pageEntries(m_builder.m_pages[std::size_t(page)], parent));
        kids += reference(object) + ' ';
    }
    return kids + ']';
}

PDFWriter::Entries PDFWriter::pageEntries(const PDFPageBuilder &page, int parent)
{
    Entries entries = page.m_entries;
    entries.insert({"Type", "/Page"});
    entries.insert({"Parent", reference(parent)});
    entries.insert({"Contents", reference(add(stream({}, page.m_content)))});
    entries.insert({"Resources", "<< /Font << " + fontsSource(page) + ">> >>"});
    if (!page.m_annotations.empty())
        entries.insert({"Annots", annotationsSource(page)});
    return entries;
}

QByteArray PDFWriter::annotationsSource(const PDFPageBuilder &page) const
{
    QByteArray source("[");
    for (const PDFPageBuilder::Annotation &annotation : page.m_annotations)
        source += annotation.before + annotation.dest.source(m_builder.m_pageObjects) +
                  annotation.after + '\n';
    return source + ']';
}

QByteArray PDFWriter::fontsSource(const PDFPageBuilder &page)
{
    QByteArray source;
    for (const Font font : page.m_fonts)
        source += "/F" + QByteArray::number(int(font)) + ' ' + reference(fontObject(font)) + ' ';
    return source;
}

int PDFWriter::fontObject(Font font)
{
    const auto known = m_fontObjects.find(font);
    if (known != m_fontObjects.end())
        return known->second;
    Entries entries{{"Type", "/Font"},
                    {"Subtype", "/Type1"},
                    {"BaseFont", PDFSource::name(fontNames[int(font)])}};
    if (font != Font::Symbol)
        entries["Encoding"] = "/WinAnsiEncoding";
    return m_fontObjects[font] = add(dictionary(entries));
}

int PDFWriter::addOutline()
{
    const int root = add({});
    Entries entries{{"Type", "/Outlines"}};
    addOutlineItems(m_builder.m_outline, root, entries);
    setObject(root, entries);
    return root;
}

int PDFWriter::addOutlineItems(const std::vector<OutlineItem> &items, int parent,
                               Entries &parentEntries)
{
    if (items.empty())
        return 0;
    const int first = int(m_objects.size());
    const int last = first + int(items.size()) - 1;
    m_objects.resize(m_objects.size() + items.size());
    int descendants = int(items.size());
    for (int object = first; object <= last; ++object) {
        const OutlineItem &item = items[std::size_t(object - first)];
        Entries entries = outlineEntries(item);
        entries["Parent"] = reference(parent);
        if (object > first)
            entries["Prev"] = reference(object - 1);
        if (object < last)
            entries["Next"] = reference(object + 1);
        descendants += addOutlineItems(item.children, object, entries);
        setObject(object, entries);
    }
    parentEntries["First"] = reference(first);
    parentEntries["Last"] = reference(last);
    parentEntries["Count"] = QByteArray::number(descendants);
    return descendants;
}

PDFWriter::Entries PDFWriter::outlineEntries(const OutlineItem &item) const
{
    Entries entries{{"Title", PDFSource::textString(item.title)}};
    if (!item.dest)
        return entries;
    const QByteArray dest = item.dest->source(m_builder.m_pageObjects);
    if (item.target == OutlineItem::Target::Dest)
        entries["Dest"] = dest;
    else
        entries["A"] = "<< /S /GoTo /D " + dest + " >>";
    return entries;
}

QByteArray PDFWriter::namedSource(const PDFBuilder::NamedDestination &named) const
{
    const QByteArray dest = named.dest.source(m_builder.m_pageObjects);
    return named.form == NameForm::BareArray ? dest : "<< /D " + dest + " >>";
}

QByteArray PDFWriter::catalogNames() const
{
    Entries entries;
    for (const auto &[name, named] : m_builder.m_catalogNames)
        entries[name] = namedSource(named);
    return dictionary(entries);
}

QByteArray PDFWriter::nameTree()
{
    const Names &names = m_builder.m_names;
    const int width = m_builder.m_namesPerLeaf;
    if (width <= 0)
        return "<< " + leafNames(names.begin(), names.end()) + " >>";
    QByteArray kids;
    for (auto first = names.begin(); first != names.end();) {
        const auto end = std::next(first, qMin(width, int(std::distance(first, names.end()))));
        const QByteArray limits =
            PDFSource::string(first->first) + PDFSource::string(std::prev(end)->first);
        kids +=
            reference(add("<< /Limits [" + limits + "] " + leafNames(first, end) + " >>")) + ' ';
        first = end;
    }
    return "<< /Kids [" + kids + "] >>";
}

QByteArray PDFWriter::leafNames(Names::const_iterator first, Names::const_iterator end) const
{
    QByteArray source("/Names [");
    for (; first != end; ++first)
        source += PDFSource::string(first->first) + ' ' + namedSource(first->second) + '\n';
    return source + ']';
}

QByteArray PDFWriter::pageLabels() const
{
    QByteArray source("<< /Nums [");
    for (const auto &[firstPage, label] : m_builder.m_labels)
        source += QByteArray::number(firstPage) + ' ' + label + ' ';
    return source + "] >>";
}

QByteArray PDFWriter::dictionary(const Entries &entries)
{
    QByteArray source("<<");
    for (const auto &[key, value] : entries)
        source += ' ' + PDFSource::name(key) + ' ' + value;
    return source + " >>";
}

QByteArray PDFWriter::file(const QByteArray &trailer) const
{
    QByteArray bytes("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");
    QByteArray table("0000000000 65535 f \n");
    for (std::size_t number = 1; number < m_objects.size(); ++number) {
        table += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
        bytes += QByteArray::number(number) + " 0 obj\n" + m_objects[number] + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(bytes.size());
    return bytes + "xref\n0 " + QByteArray::number(m_objects.size()) + '\n' + table + "trailer\n" +
           trailer + "\nstartxref\n" + start + "\n%%EOF\n";
}

} // namespace Tavrin::Testing
