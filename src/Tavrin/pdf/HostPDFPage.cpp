// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/HostPDFPage.h>

#include <Tavrin/pdf/HostPDFDocument.h>
#include <Tavrin/pdf/PageText.h>

#include <utility>

namespace Tavrin
{

HostPDFPage::HostPDFPage(const std::shared_ptr<HostPDFDocument> &document, int index,
                         const PageGeometry &geometry)
    : m_document(document), m_index(index), m_geometry(geometry)
{
}

HostPDFPage::~HostPDFPage() = default;

std::shared_ptr<HostPDFDocument> HostPDFPage::document() const
{
    return m_document.lock();
}

QString HostPDFPage::label() const
{
    const auto owner = document();
    const auto printed = owner ? owner->engine().pageLabel(m_index) : std::nullopt;
    return printed && !printed->isEmpty() ? *printed : QString::number(m_index + 1);
}

Rect HostPDFPage::bounds(PDFBox box) const
{
    return m_geometry.box(box);
}

int HostPDFPage::rotation() const
{
    return m_geometry.rotation;
}

std::shared_ptr<const PageText> HostPDFPage::text() const
{
    std::call_once(m_textOnce, [this] {
        const auto owner = document();
        const auto glyphs = owner ? owner->engine().pageGlyphs(m_index) : std::nullopt;
        if (glyphs)
            m_text = std::make_shared<const PageText>(*glyphs, m_geometry);
    });
    return m_text;
}

std::optional<QString> HostPDFPage::string() const
{
    const auto known = text();
    return known ? std::optional(known->string()) : std::nullopt;
}

std::optional<StyledText> HostPDFPage::attributedString() const
{
    const auto known = text();
    return known ? std::optional(known->styledText()) : std::nullopt;
}

Rect HostPDFPage::characterBounds(qsizetype index) const
{
    const auto known = text();
    return known ? known->characterBounds(index) : Rect::null();
}

std::optional<qsizetype> HostPDFPage::characterIndex(Point point) const
{
    const auto known = text();
    return known ? known->characterIndex(point) : std::nullopt;
}

std::vector<TextRange> HostPDFPage::visualLines() const
{
    std::vector<TextRange> ranges;
    if (const auto known = text()) {
        for (const PageTextLine &line : known->lines())
            ranges.push_back(line.range);
    }
    return ranges;
}

std::optional<HostPDFSelection> HostPDFPage::selectionForLine(Point point) const
{
    const auto known = text();
    const auto line = known ? known->lineAt(point) : std::nullopt;
    return line ? std::optional(selection(*line)) : std::nullopt;
}

std::optional<HostPDFSelection> HostPDFPage::selectionForWord(Point point) const
{
    const auto known = text();
    const auto word = known ? known->wordAt(point) : std::nullopt;
    return word ? std::optional(selection(*word)) : std::nullopt;
}

HostPDFSelection HostPDFPage::selection(TextRange range) const
{
    const qsizetype length = string().value_or(QString()).size();
    const qsizetype from = qBound<qsizetype>(0, range.location, length);
    const qsizetype to = qBound(from, range.end(), length);
    const auto self = std::const_pointer_cast<HostPDFPage>(shared_from_this());
    return to > from ? HostPDFSelection(self, {{from, to - from}}) : HostPDFSelection();
}

HostPDFSelection HostPDFPage::selection(const Rect &rect) const
{
    const auto known = text();
    auto ranges = known ? known->rangesIn(rect) : std::vector<TextRange>();
    const auto self = std::const_pointer_cast<HostPDFPage>(shared_from_this());
    return ranges.empty() ? HostPDFSelection() : HostPDFSelection(self, std::move(ranges));
}

std::vector<HostPDFAnnotation> HostPDFPage::annotations() const
{
    std::vector<HostPDFAnnotation> result;
    const auto owner = document();
    if (!owner)
        return result;
    for (const PDFAnnotationRecord &record : owner->engine().annotations(m_index)) {
        auto page = record.destination ? owner->page(record.destination->page) : nullptr;
        std::optional<HostPDFDestination> target;
        if (page)
            target.emplace(std::move(page), record.destination->point);
        result.push_back({record.type, record.bounds, record.contents, target, record.url});
    }
    return result;
}

QImage HostPDFPage::draw(const Rect &area, const PageDrawing &drawing) const
{
    const auto owner = document();
    return owner ? owner->engine().draw(m_index, area, drawing) : QImage();
}

} // namespace Tavrin
