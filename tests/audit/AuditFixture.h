// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QBuffer>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <Tavrin/audit/PDFSpecAuditor.h>
#include <pdfspec/ReadingFixture.h>

namespace Tavrin::Testing
{

/// A specification of two chapters and an appendix, with a picture, to be audited.
class AuditFixture : public ReadingFixture
{
protected:
    AuditFixture()
    {
        addPages(5);
        specification->setTitle(u"The <Engine> & its \"parts\""_s);
        specification->setIdentifier(u"engine"_s);
        specification->setRevision(u"7"_s);
        addChapter(u"1"_s, u"Scope"_s, 1, 740);
        addSection(u"1.1"_s, u"Purpose"_s, 1, 600);
        addSection(u"1.2"_s, u"Words"_s, 1, 460);
        addChapter(u"2"_s, u"Motion"_s, 2, 740);
        addSection(u"2.1"_s, u"Speed"_s, 2, 600);
        addSection(u"2.1.1"_s, u"Units"_s, 2, 460);
        addChapter(u"A"_s, u"Tables"_s, 3, 740)->setIndex({3});
        addSection(u"A.1"_s, u"Limits"_s, 3, 600)->setIndex({3, 1});
        page(2)
            .fill({{150, 200}, {200, 100}}, qRgb(255, 0, 0))
            .text(200, 180, u"Figure 2-1: Red"_s, body);
        red = figure(u"Figure 2-1"_s, u"Red"_s, 2, 305);
        red->setIndex({2, 1});
    }

    EntryPtr addChapter(const QString &label, const QString &title, int index, double y)
    {
        auto entry = addSection(label, title, index, y);
        entry->setType(SpecificationEntryType::Chapter);
        return entry;
    }
    /// With a heading and a few lines below it.
    EntryPtr addSection(const QString &label, const QString &title, int index, double y)
    {
        page(index)
            .text(left, y - 20, label + u' ' + title, heading)
            .column(left, y - 40, 12, lines(title, 4), body);
        auto entry = section(label, title, index, y);
        std::vector<int> numbers;
        for (const QString &number : label.split(u'.'))
            numbers.push_back(number.toInt());
        entry->setIndex(numbers);
        return entry;
    }

    static std::vector<AuditReference> references(const QStringList &texts)
    {
        std::vector<AuditReference> result;
        for (const QString &text : texts)
            result.push_back({text, {}, {}});
        return result;
    }
    AuditReport report(const QStringList &texts, const AuditDemands &demands = {}) const
    {
        return auditor().report(references(texts), demands);
    }
    PDFSpecAuditor auditor() const { return PDFSpecAuditor(specification); }

    static QByteArray written(const AuditReport &report, AuditFormat format)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        PDFSpecAuditor::write(report, format, buffer);
        return buffer.data();
    }
    static QStringList labels(const std::vector<AuditReport::EntryPtr> &entries)
    {
        QStringList result;
        for (const auto &entry : entries)
            result += entry->label();
        return result;
    }
    static QStringList cited(const AuditReport &report)
    {
        QStringList result;
        for (const AuditReport::Citation &citation : report.citations)
            result += citation.entry->label();
        return result;
    }

    EntryPtr red;
};

/// Runs the event loop until a completion has come. Says how it came, and in which thread.
class CompletionWaiter
{
public:
    PDFSpecAuditor::Completion completion()
    {
        return [this](bool success) {
            m_success = success;
            isOnMainThread = QThread::currentThread() == QCoreApplication::instance()->thread();
        };
    }
    std::optional<bool> wait()
    {
        const QDeadlineTimer deadline(60000);
        while (!m_success && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        return m_success;
    }

    bool isOnMainThread = false;

private:
    std::optional<bool> m_success;
};

} // namespace Tavrin::Testing
