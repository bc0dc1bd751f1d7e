// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/model/Specification.h>

/// A kind of specification of the host's own: one that was published as a plain text. Its maps ask
/// for a file of type "txt" that holds the verifier.
class TextSpecification : public Tavrin::Specification
{
public:
    /// Has maps that ask for one text read by this class.
    static void registerType();

    /// The text, as far as a file is bound.
    const QString &text() const { return m_text; }
    /// Where the section of an entry begins and where the next one does, in UTF-16 units; both the
    /// end of the text if the heading is not there.
    std::pair<qsizetype, qsizetype> section(const Tavrin::SpecificationEntry &entry) const;

    Tavrin::EntryClass entryClass() const override;
    bool doesAuxiliaryFile(const QUrl &url,
                           const Tavrin::AuxiliaryFileRequirement &requirement) override;
    bool assignAuxiliaryFile(const QUrl &url,
                             const Tavrin::AuxiliaryFileRequirement &requirement) override;
    Tavrin::ViewControllerPtr
    detailViewController(const std::optional<QString> &label = {}) override;

private:
    QString m_text;
};
