// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMenu>
#include <QObject>
#include <QPointer>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <Tavrin/interface/tokens/TokenFieldDelegate.h>
#include <Tavrin/manager/ManagerPointer.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/SpecificationEntry.h>
#include <Tavrin/platform/NotificationCenter.h>

namespace Tavrin
{

class SpecEntrySelectionViewController;
class TokenField;

/// Makes a token field one of references to specification entries, of those that a
/// SpecificationManager knows.
///
/// The user types part of a title or label and picks a completion; the field then holds the
/// entry's spec URL and shows its number and title. A text that is no completion stays a token of
/// that very text. Tokens of known entries have a menu where the host can show detail views.
///
/// Main thread, but for the initial suggestions, which any thread may supply.
///
/// The field holds its delegate weakly, so the host keeps this object:
///
/// \snippet citing/main.cpp field
///
/// What is stored is QStrings: spec URLs, and the texts that nobody knew. Completions come from one
/// specification: the primary one if it has its files, else the first in the manager's list that
/// has. When files come or go, tokens are shown anew by themselves. The menu, and with it the ways
/// to look at an entry, is there only if the manager has a detailViewControllerDisplayBlock.
class TAVRIN_WIDGETS_EXPORT SpecEntryTokenFieldDelegate
    : public QObject,
      public TokenFieldDelegate,
      public std::enable_shared_from_this<SpecEntryTokenFieldDelegate>
{
    Q_OBJECT

public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    /// Waits of one millisecond each, for the initial suggestions. The longest wait, then, is a
    /// second.
    static constexpr int initialSuggestionTimeout = 1'000;

    /// Without a field. setTokenField() gives it one.
    static std::shared_ptr<SpecEntryTokenFieldDelegate>
    make(SpecificationManager &manager = SpecificationManager::shared());
    /// For a field, in which every kind of line end, and nothing else, ends a token.
    ///
    /// The field isn't owned, and may go first.
    static std::shared_ptr<SpecEntryTokenFieldDelegate>
    make(TokenField &field, SpecificationManager &manager = SpecificationManager::shared());
    ~SpecEntryTokenFieldDelegate() override;

    /// Each of its characters ends a token; "\n" at first. Goes to the field at once.
    const QString &tokenSeparators() const { return m_tokenSeparators; }
    /// Goes to the field at once, if there is one. Ends of lines end tokens whatever is set.
    void setTokenSeparators(const QString &separators);

    /// Null if there is none, or if it is gone.
    TokenField *tokenField() const;
    /// Becomes the field's delegate, and gives it the separators.
    ///
    /// A former field loses this delegate. Null leaves none.
    void setTokenField(TokenField *field);

    /// Whether the URLs of new tokens name the revision. True at first.
    ///
    /// The URLs of tokens that are there already stay. The specification itself is named always.
    bool constrainsURLsToSourceSpec() const { return m_constrainsURLsToSourceSpec; }
    void setConstrainsURLsToSourceSpec(bool constrains)
    {
        m_constrainsURLsToSourceSpec = constrains;
    }

    /// The labels of the entries that are offered while nothing is typed. Any thread.
    ///
    /// Labels that the specification of the completions does not have are left out. Absent at
    /// first, which is not the same as none: see waitForInitialSuggestions().
    std::optional<QStringList> initialSuggestions() const;
    /// Any thread: a host that computes them does so in the background, and sets an empty list if
    /// there are none, so that nobody waits.
    void setInitialSuggestions(const std::optional<QStringList> &labels);
    /// Whether such an offer waits, and blocks the main thread, until there are suggestions or a
    /// second has passed. Setting it to false ends a wait. Any thread. False at first.
    bool waitForInitialSuggestions() const { return m_waitForInitialSuggestions; }
    void setWaitForInitialSuggestions(bool waits) { m_waitForInitialSuggestions = waits; }

    /// The sheet in progress, or null.
    QWidget *specBrowserWindow() const { return m_specBrowserWindow; }
    /// The menu of all tokens, made on first use. Its object name is the string of the token that
    /// it is shown for.
    QMenu &tokenMenu();

    /// The entries of the tokens, without those of unknown references. Empty if the field holds
    /// anything but strings.
    ///
    /// In the order of the tokens. Looks each one up anew, so tables may be loaded; empty without a
    /// field, too.
    std::vector<EntryPtr> selectedEntries() const;

    // Changes of the field's list, each of which the user can undo. Where the field holds anything
    // but strings they log that and change nothing.
    /// Puts a token behind the others: a spec URL, or any text. Text that isn't a token yet becomes
    /// one.
    void insert(const QString &tokenString);
    /// Nothing happens beyond the ends.
    ///
    /// Puts another token in the place of the one at an index from 0.
    void replaceToken(int index, const QString &string);
    /// The first of that string, and so below.
    void replaceToken(const QString &tokenString, const QString &string);
    /// Takes the first token of that string out; nothing happens if there is none.
    void deleteToken(const QString &tokenString);

    /// Has the user choose an entry in a sheet over the field's window, and inserts it.
    ///
    /// Returns at once. Nothing happens without a field, while its window is hidden, or while there
    /// is a sheet already.
    void insertTokenFromSpecEntryBrowser();

    // Actions of the menu, for the token that it is shown for.
    /// Has the user choose another entry in the document, beginning at the token's own, and puts it
    /// in its place.
    void viewTokenEntryInSpec();
    /// Shows the summary of the token's entry in a popover over the field.
    void previewTokenSpecReference();
    /// Takes the token out.
    void deleteTokenEntry();

    Completions completions(const QString &substring) override;
    QVariant representedObject(const QString &editingString) override;
    QVariantList representedObjects(const QStringList &editingStrings) override;
    QString displayString(const QVariant &representedObject) override;
    QString editingString(const QVariant &representedObject) override;
    bool hasMenu(const QVariant &representedObject) override;
    QMenu *menu(const QVariant &representedObject) override;

private:
    using Choice = std::function<void(const SpecEntrySelectionViewController &controller)>;

    explicit SpecEntryTokenFieldDelegate(SpecificationManager &manager);

    void specsChanged();
    EntryPtr entryFor(const QVariant &representedObject) const;
    std::shared_ptr<Specification> searchSpecification() const;
    std::optional<QStringList> awaitInitialSuggestions() const;
    QString reference(const SpecificationEntry &entry) const;
    std::optional<QStringList> strings() const;
    /// What the operations above begin with: absent if the list can't be read, which is logged.
    std::optional<QStringList> stringsToChange() const;
    void openSelectionSheet(const EntryPtr &entry, Choice chosen);

    ManagerPointer m_manager;
    QString m_tokenSeparators = QStringLiteral("\n");
    QPointer<QWidget> m_tokenField;
    bool m_constrainsURLsToSourceSpec = true;
    mutable std::mutex m_suggestionsMutex;
    std::optional<QStringList> m_initialSuggestions;
    std::atomic<bool> m_waitForInitialSuggestions = false;
    QPointer<QWidget> m_specBrowserWindow;
    std::unique_ptr<QMenu> m_tokenMenu;
    NotificationCenter::TokenPtr m_filesChanged;
};

} // namespace Tavrin
