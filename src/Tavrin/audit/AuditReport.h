// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/audit/AuditReference.h>
#include <Tavrin/audit/AuditShare.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin
{

/// What an audit asks for besides what it finds. By default nothing is demanded. What came of it is
/// in AuditReport::requirements and AuditReport::areDemandsMet().
struct AuditDemands {
    /// Patterns of entries that have to be cited, each by itself: "*" stands for any characters,
    /// "?" for one. Held against label, number ("4.2.1") and name ("Figure 3-7"), in any case.
    ///
    /// A demand is met by a citation of the entry itself; that what lies above it is cited is not
    /// enough. A pattern that matches nothing is not met.
    QStringList required;
    /// The percentage that has to be covered. From 0 to 100; compared with what is really covered,
    /// not with the share as it is printed.
    std::optional<double> minimumCoverage{};
};

/// What a list of references covers of a specification, by itself without any text of it. Made by
/// PDFSpecAuditor::report(); the same in every format that it is written in.
///
/// A value that keeps the specification and its entries alive. Writing it reads the texts
/// (PDFSpecAuditor::write), and AuditSentences puts the counts into words.
struct TAVRIN_CORE_EXPORT AuditReport {
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    /// An entry that an entry names as related.
    struct Relation {
        /// Kind, number and title.
        QString title;
        EntryPtr entry;
    };

    /// An entry, or a part of one, with all that cites it.
    struct Citation {
        EntryPtr entry;
        /// In the order in which they were given.
        std::vector<AuditReference> references;
        std::vector<Relation> related;
        /// The position of its chapter in `chapters`.
        std::size_t chapter = 0;
    };

    /// A reference that no entry answers to. A reference to several entries may be known in part.
    struct Unknown {
        AuditReference reference;
        /// The part of the reference that is unknown: "Tables 2.9" of "Tables 2.1 and 2.9".
        QString written;
        /// The entry that was perhaps meant, or null.
        ///
        /// A suggestion for people; it is counted nowhere.
        EntryPtr nearest;
    };

    /// An entry with nothing above it, and how much is covered of what lies below it; of itself,
    /// if nothing does. An entry is covered if it is cited, or lies below one that is.
    struct Chapter {
        /// Null for figures and tables that lie in no chapter.
        EntryPtr entry;
        /// Of what lies below it, however deep.
        AuditShare share{};
        /// How many of its entries are cited by themselves, itself included.
        int cited = 0;

        /// Number and title.
        QString title() const;
    };

    /// A pattern, and the entries that it demands.
    struct Requirement {
        QString pattern;
        int matched = 0;
        std::vector<EntryPtr> missing{};

        /// A pattern that matches nothing demands something that isn't there.
        bool isMet() const { return matched > 0 && missing.empty(); }
    };

    /// What was audited.
    std::shared_ptr<PDFSpecification> specification;
    /// How many references were given.
    int referenceCount = 0;
    /// In document order: chapter by chapter, and within one by place; those without a place
    /// follow, by kind and number.
    std::vector<Citation> citations;
    /// In the order in which they were given.
    std::vector<Unknown> unknown;
    /// In document order; what lies in none comes last.
    std::vector<Chapter> chapters;
    /// The sum of the chapters.
    AuditShare coverage;
    /// One for each pattern of the demands, in their order.
    std::vector<Requirement> requirements;
    /// As it was demanded.
    std::optional<double> minimumCoverage;

    /// How many entries are cited; parts of one entry count once.
    int citedEntries() const;
    /// Whether as much is covered as was demanded: true without such a demand, and where there is
    /// nothing to cover.
    bool isCoverageMet() const;
    /// Whether every demand is met. Unknown references are no matter of demands.
    bool areDemandsMet() const;
};

} // namespace Tavrin
