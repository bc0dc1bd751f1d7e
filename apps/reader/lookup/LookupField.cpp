// SPDX-License-Identifier: Apache-2.0
#include <reader/lookup/LookupField.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QTimer>

#include <utility>

#include <Tavrin/platform/StringLocalizer.h>

#include <reader/lookup/SuggestionDelegate.h>
#include <reader/lookup/SuggestionModel.h>

namespace Tavrin::Reader
{

namespace
{

/// More than a list shows without scrolling, and few enough to be made between two keystrokes.
constexpr std::size_t mostSuggestions = 30;
constexpr int visibleSuggestions = 10;

} // namespace

LookupField::LookupField(EntryFinder &finder, QWidget *parent)
    : QLineEdit(parent),
      m_finder(finder),
      m_model(new SuggestionModel(this)),
      m_completer(new QCompleter(m_model, this))
{
    setPlaceholderText(localized("Number, title or spec URL", "placeholder of the lookup field"));
    setAccessibleName(localized("Look up", "name of the lookup field"));
    setClearButtonEnabled(true);
    // The model holds what matches already.
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setMaxVisibleItems(visibleSuggestions);
    m_completer->popup()->setItemDelegate(new SuggestionDelegate(m_completer));
    m_completer->popup()->setAccessibleName(localized("Suggestions", "name of a list"));
    connect(this, &QLineEdit::textEdited, this, &LookupField::suggest);
    setCompleter(m_completer);
    connect(m_completer, qOverload<const QModelIndex &>(&QCompleter::activated), this,
            [this](const QModelIndex &index) {
                if (const auto entry = m_model->entry(m_model->index(index.row()))) {
                    m_wasChosen = true;
                    QTimer::singleShot(0, this, [this] { m_wasChosen = false; });
                    Q_EMIT entryChosen(entry);
                }
            });
    connect(this, &QLineEdit::returnPressed, this, &LookupField::enter);
}

void LookupField::suggest(const QString &text)
{
    m_model->setHits(m_finder.suggestions(text, mostSuggestions));
}

void LookupField::enter()
{
    if (!std::exchange(m_wasChosen, false) && !text().trimmed().isEmpty())
        Q_EMIT referenceEntered(text().trimmed());
}

} // namespace Tavrin::Reader
