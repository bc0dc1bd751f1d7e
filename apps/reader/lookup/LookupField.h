// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>

#include <Tavrin/manager/EntryFinder.h>

class QCompleter;

namespace Tavrin::Reader
{

class SuggestionModel;

/// A field that takes a label, a spec URL, a reference or words, and offers entries as one types.
class LookupField : public QLineEdit
{
    Q_OBJECT

public:
    /// The finder must outlive the field.
    explicit LookupField(EntryFinder &finder, QWidget *parent = nullptr);

    SuggestionModel &suggestions() const { return *m_model; }

Q_SIGNALS:
    /// An entry was chosen from those offered.
    void entryChosen(const std::shared_ptr<Tavrin::SpecificationEntry> &entry);
    /// Return was pressed without choosing one.
    void referenceEntered(const QString &text);

private:
    void suggest(const QString &text);
    void enter();

    EntryFinder &m_finder;
    SuggestionModel *m_model;
    QCompleter *m_completer;
    /// What was chosen by Return in the list, which the field hears of too.
    bool m_wasChosen = false;
};

} // namespace Tavrin::Reader
