// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin::Cli
{

/// What `tavrin inspect` tells of one page: boxes, visual lines in layout order, destinations,
/// outline items, annotations and the page's dictionary; and, of a document with entries, their
/// regions and what is left of the page as body text.
class PageInspection
{
public:
    struct Line {
        TextRange range;
        QString text;
        Rect bounds;
        TextFont font;
        /// Whether it can be a heading, and whether it is kept as body text.
        bool isHeading = false;
        bool isBody = true;
    };
    /// What an entry takes of the page.
    struct Region {
        QString label;
        Rect rect;
        bool isTextual = true;
    };
    struct Place {
        QString name;
        Point point;
    };

    PageInspection(const PDFSpecification &document, std::shared_ptr<HostPDFPage> page);

    /// Also reads the regions of the entries on the page.
    void collectEntries(const PDFSpecification &document);

    const HostPDFPage &page() const { return *m_page; }
    const std::vector<Line> &lines() const { return m_lines; }
    const std::vector<Place> &destinations() const { return m_destinations; }
    const std::vector<Place> &outline() const { return m_outline; }
    const std::vector<Region> &regions() const { return m_regions; }
    /// The margin of the body and the area that is read; only with entries.
    const std::optional<double> &leftMargin() const { return m_leftMargin; }
    const std::optional<Rect> &readingArea() const { return m_readingArea; }

    void print() const;
    QJsonObject json() const;

private:
    void collectLines();
    void markLines(const PDFSpecification &document);
    void printEntries() const;
    void collectDestinations(const PDFSpecification &document);
    void collectOutline(const PDFSpecification &document);

    std::shared_ptr<HostPDFPage> m_page;
    int m_pageCount;
    QString m_dictionary;
    std::vector<Line> m_lines;
    std::vector<Place> m_destinations;
    std::vector<Place> m_outline;
    std::vector<Region> m_regions;
    std::optional<double> m_leftMargin;
    std::optional<Rect> m_readingArea;
};

} // namespace Tavrin::Cli
