// SPDX-License-Identifier: Apache-2.0
#include <support/HostilePDF.h>

#include <support/PDFBuilder.h>
#include <support/PDFSource.h>

#include <map>

namespace Tavrin::Testing::HostilePDF
{

using PDFSource::reference;

namespace
{

PDFBuilder onePage()
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, QStringLiteral("A page"));
    return pdf;
}

QByteArray withPageTree(PDFBuilder pdf, int root, const QByteArray &source)
{
    pdf.setObject(root, source);
    pdf.catalogEntry("Pages", reference(root));
    return pdf.build();
}

/// Objects `item` and after are the outline's items.
QByteArray withOutline(PDFBuilder pdf, int item)
{
    const int root = pdf.addObject("<< /Type /Outlines /First " + reference(item) + " /Last " +
                                   reference(item) + " /Count 2 >>");
    pdf.catalogEntry("Outlines", reference(root));
    return pdf.build();
}

} // namespace

QByteArray cyclicPageTree()
{
    PDFBuilder pdf;
    const int root = pdf.addObject({});
    return withPageTree(pdf, root, "<< /Type /Pages /Count 1 /Kids [" + reference(root) + "] >>");
}

QByteArray hugePageCount()
{
    PDFBuilder pdf;
    const int root = pdf.addObject({});
    const int page =
        pdf.addObject("<< /Type /Page /MediaBox [0 0 612 792] /Parent " + reference(root) + " >>");
    return withPageTree(pdf, root,
                        "<< /Type /Pages /Count 2000000000 /Kids [" + reference(page) + "] >>");
}

QByteArray withoutPages()
{
    return PDFBuilder().build();
}

QByteArray deepPageTree(int depth)
{
    PDFBuilder pdf;
    int node = pdf.addObject("<< /Type /Page /MediaBox [0 0 612 792] >>");
    for (int level = 0; level < depth; ++level)
        node = pdf.addObject("<< /Type /Pages /Count 1 /Kids [" + reference(node) + "] >>");
    pdf.catalogEntry("Pages", reference(node));
    return pdf.build();
}

QByteArray wrongInnerPageCounts()
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, QStringLiteral("first"));
    pdf.addPage().text(72, 700, QStringLiteral("second"));
    const auto node = [&pdf](int page, const QByteArray &count) {
        return reference(pdf.addObject("<< /Type /Pages /Count " + count + " /Kids [" +
                                       reference(pdf.pageObject(page)) + "] >>"));
    };
    const QByteArray kids = node(0, "5") + ' ' + node(1, "0");
    const int root = pdf.addObject({});
    return withPageTree(pdf, root, "<< /Type /Pages /Count 2 /Kids [" + kids + "] >>");
}

QByteArray inlinePage()
{
    PDFBuilder pdf = onePage();
    const int font = pdf.addObject("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    const int content = pdf.addStream({}, "BT /F 10 Tf 72 700 Td (first) Tj ET");
    const int root = pdf.addObject({});
    return withPageTree(pdf, root,
                        "<< /Type /Pages /Count 2 /Kids [<< /Type /Page /MediaBox [0 0 612 792] "
                        "/Resources << /Font << /F " +
                            reference(font) + " >> >> /Contents " + reference(content) + " >> " +
                            reference(pdf.pageObject(0)) + "] >>");
}

QByteArray streamForPages()
{
    PDFBuilder pdf;
    pdf.catalogEntry("Pages", reference(pdf.addStream({}, "q Q")));
    return pdf.build();
}

QByteArray catalogLostInRepair()
{
    const QByteArray objects("%PDF-1.7\n<< /Annots [<< >> 3 0 obj\n"
                             "<< /Count 2 /Kids [4 0 R 7 0 R ] /Type /Font >>\n"
                             "7 0 obj\n<< /Count 0] >>\n]\n>>dobj\n"
                             "15 0 obj\n<< /Dests << /old << /Kids ] >> >> /Outlines R "
                             "/Pages 3 0 R /Type /Catalog >>\n");
    const std::map<int, int> offsets{{3, 27}, {4, 74}, {7, 83}, {15, 116}};
    QByteArray table("xref\n0 16\n0000000000 65535 f \n");
    for (int number = 1; number < 16; ++number) {
        const auto offset = offsets.find(number);
        const int value = offset == offsets.end() ? 0 : offset->second;
        table += QByteArray::number(value).rightJustified(10, '0') + " 00000 n \n";
    }
    return objects + table + "trailer\n<< /Root 15 0 R >>\nstartxref\n" +
           QByteArray::number(objects.size()) + "\n%%EOF\n";
}

QByteArray cyclicNameTree()
{
    PDFBuilder pdf = onePage();
    const int leaf = pdf.addObject("<< /Limits [(here) (here)] /Names [(here) << /D [" +
                                   reference(pdf.pageObject(0)) + " /XYZ 72 700 0] >>] >>");
    const int root = pdf.addObject({});
    pdf.setObject(root, "<< /Limits [(a) (z)] /Kids [" + reference(root) + ' ' + reference(leaf) +
                            "] >>");
    pdf.catalogEntry("Names", "<< /Dests " + reference(root) + " >>");
    return pdf.build();
}

QByteArray outlineLoop()
{
    PDFBuilder pdf = onePage();
    const int one = pdf.addObject({});
    const int two = pdf.addObject("<< /Title (two) /Next " + reference(one) + " >>");
    pdf.setObject(one, "<< /Title (one) /Next " + reference(two) + " >>");
    return withOutline(pdf, one);
}

QByteArray outlineChildLoop()
{
    PDFBuilder pdf = onePage();
    const int item = pdf.addObject({});
    pdf.setObject(item, "<< /Title (one) /First " + reference(item) + " /Last " + reference(item) +
                            " /Count 1 >>");
    return withOutline(pdf, item);
}

QByteArray deepOutline(int depth)
{
    PDFBuilder pdf = onePage();
    int child = 0;
    for (int level = depth - 1; level >= 0; --level) {
        const QByteArray down =
            child == 0 ? QByteArray()
                       : " /First " + reference(child) + " /Last " + reference(child) + " /Count 1";
        child = pdf.addObject("<< /Title (" + QByteArray::number(level) + ')' + down + " >>");
    }
    return withOutline(pdf, child);
}

QByteArray truncated()
{
    const QByteArray whole = onePage().build();
    return whole.left(whole.size() / 2);
}

} // namespace Tavrin::Testing::HostilePDF
