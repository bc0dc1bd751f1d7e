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
class TAVRIN_WIDGETS_EXPORT SpecEntryTokenFieldDelegate
    : public QObject,
      public TokenFieldDelegate,
      public std::enable_shared_from_this<SpecEntryTokenFieldDelegate>
{
    Q_OBJECT

public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    /// Waits of one millisecond each, for the initial suggestions.
    static constexpr int initialSuggestionTimeout = 1'000;

    /// Without a field.
    static std::shared_ptr<SpecEntryTokenFieldDelegate>
    make(SpecificationManager &manager = SpecificationManager::shared());
    /// For a field, in which every kind of line end, and nothing else, ends a token.
    static std::shared_ptr<SpecEntryTokenFieldDelegate>
    make(TokenField &field, SpecificationManager &manager = SpecificationManager::shared());
    ~SpecEntryTokenFieldDelegate() override;

    /// Each of its characters ends a token; "\n" at first. Goes to the field at once.
    const QString &tokenSeparators() const { return m_tokenSeparators; }
    void setTokenSeparators(const QString &separators);

    /// Null if there is none, or if it is gone.
    TokenField *tokenField() const;
    /// Becomes the field's delegate, and gives it the separators.
    void setTokenField(TokenField *field);

    /// Whether the URLs of new tokens name the revision. True at first.
    bool constrainsURLsToSourceSpec() const { return m_constrainsURLsToSourceSpec; }
    void setConstrainsURLsToSourceSpec(bool constrains)
    {
        m_constrainsURLsToSourceSpec = constrains;
    }

    /// The labels of the entries that are offered while nothing is typed. Any thread.
    std::optional<QStringList> initialSuggestions() const;
    void setInitialSuggestions(const std::optional<QStringList> &labels);
    /// Whether such an offer waits, and blocks the main thread, until there are suggestions or a
    /// second has passed. Setting it to false ends a wait. Any thread.
    bool waitForInitialSuggestions() const { return m_waitForInitialSuggestions; }
    void setWaitForInitialSuggestions(bool waits) { m_waitForInitialSuggestions = waits; }

    /// The sheet in progress, or null.
    QWidget *specBrowserWindow() const { return m_specBrowserWindow; }
    /// The menu of all tokens, made on first use. Its object name is the string of the token that
    /// it is shown for.
    QMenu &tokenMenu();

    /// The entries of the tokens, without those of unknown references. Empty if the field holds
    /// anything but strings.
    std::vector<EntryPtr> selectedEntries() const;

    // Changes of the field's list, each of which the user can undo. Where the field holds anything
    // but strings they log that and change nothing.
    void insert(const QString &tokenString);
    /// Nothing happens beyond the ends.
    void replaceToken(int index, const QString &string);
    /// The first of that string, and so below.
    void replaceToken(const QString &tokenString, const QString &string);
    void deleteToken(const QString &tokenString);

    /// Has the user choose an entry in a sheet over the field's window, and inserts it.
    void insertTokenFromSpecEntryBrowser();

    // Actions of the menu, for the token that it is shown for.
    void viewTokenEntryInSpec();
    void previewTokenSpecReference();
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
