// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/citing/SpecEntryTokenFieldDelegate.h>

#include <QDebug>
#include <QHash>
#include <QThread>

#include <algorithm>

#include <Tavrin/interface/citing/SpecEntrySelectionViewController.h>
#include <Tavrin/interface/tokens/TokenField.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/interface/toolkit/Popover.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using SpecificationPtr = std::shared_ptr<Specification>;
using EntryPtr = std::shared_ptr<SpecificationEntry>;

/// Those of Unicode that end a line.
const QString newlines = u"\n\v\f\r\u0085\u2028\u2029"_s;

/// Of the window that the sheet is over, as long as that is large.
constexpr double sheetShare = 0.92;

QString suggestion(const SpecificationEntry &entry)
{
    QString text = entry.indexString() + u": "_s + entry.title();
    const auto specification = entry.specification();
    if (specification && !specification->revision().isEmpty())
        text += u" (R"_s + specification->revision() + u')';
    return text;
}

/// The first that has its files, the primary one before others.
SpecificationPtr firstReadable(const SpecificationManager &manager)
{
    const SpecificationPtr &primary = manager.primarySpecification();
    const auto &all = manager.specifications();
    if (primary && primary->areFileRequirementsSatisfied())
        return primary;
    if (!all.empty() && all.front()->areFileRequirementsSatisfied())
        return all.front();
    const auto found = std::find_if(all.begin() + !all.empty(), all.end(), [](const auto &each) {
        const auto &files = each->auxiliaryFileRequirements();
        return std::all_of(files.begin(), files.end(),
                           [](const auto &file) { return file->isSatisfied(); });
    });
    return found == all.end() ? primary : *found;
}

std::vector<EntryPtr> search(Specification &specification, const QString &text)
{
    if (specification.entries().isEmpty() && specification.areFileRequirementsSatisfied()) {
        try {
            specification.loadStructure();
        } catch (const std::exception &) {
            // Then there are no completions, and typing goes on.
        }
    }
    return specification.searchEntries(text, {});
}

} // namespace

std::shared_ptr<SpecEntryTokenFieldDelegate>
SpecEntryTokenFieldDelegate::make(SpecificationManager &manager)
{
    return std::shared_ptr<SpecEntryTokenFieldDelegate>(new SpecEntryTokenFieldDelegate(manager));
}

std::shared_ptr<SpecEntryTokenFieldDelegate>
SpecEntryTokenFieldDelegate::make(TokenField &field, SpecificationManager &manager)
{
    auto delegate = make(manager);
    delegate->setTokenField(&field);
    field.setTokenizingCharacters(newlines);
    return delegate;
}

SpecEntryTokenFieldDelegate::SpecEntryTokenFieldDelegate(SpecificationManager &manager)
    : m_manager(manager), m_filesChanged(m_manager.observeFiles([this] { specsChanged(); }))
{
}

SpecEntryTokenFieldDelegate::~SpecEntryTokenFieldDelegate() = default;

void SpecEntryTokenFieldDelegate::specsChanged()
{
    if (TokenField *field = tokenField())
        field->reloadTokens();
}

EntryPtr SpecEntryTokenFieldDelegate::entryFor(const QVariant &representedObject) const
{
    const auto *manager = m_manager.get();
    const bool isString = representedObject.metaType() == QMetaType::fromType<QString>();
    return manager && isString ? manager->entry(representedObject.toString()) : nullptr;
}

SpecificationPtr SpecEntryTokenFieldDelegate::searchSpecification() const
{
    const auto *manager = m_manager.get();
    return manager ? firstReadable(*manager) : nullptr;
}

void SpecEntryTokenFieldDelegate::setTokenSeparators(const QString &separators)
{
    m_tokenSeparators = separators;
    if (TokenField *field = tokenField())
        field->setTokenizingCharacters(separators);
}

TokenField *SpecEntryTokenFieldDelegate::tokenField() const
{
    return static_cast<TokenField *>(m_tokenField.data());
}

void SpecEntryTokenFieldDelegate::setTokenField(TokenField *field)
{
    TokenField *former = tokenField();
    if (former && former != field && former->delegate().get() == this)
        former->setDelegate({});
    m_tokenField = field;
    if (!field)
        return;
    field->setTokenizingCharacters(m_tokenSeparators);
    field->setDelegate(weak_from_this());
}

// Completion

std::optional<QStringList> SpecEntryTokenFieldDelegate::initialSuggestions() const
{
    const std::lock_guard lock(m_suggestionsMutex);
    return m_initialSuggestions;
}

void SpecEntryTokenFieldDelegate::setInitialSuggestions(const std::optional<QStringList> &labels)
{
    const std::lock_guard lock(m_suggestionsMutex);
    m_initialSuggestions = labels;
}

std::optional<QStringList> SpecEntryTokenFieldDelegate::awaitInitialSuggestions() const
{
    auto labels = initialSuggestions();
    for (int i = 0; i < initialSuggestionTimeout && !labels && m_waitForInitialSuggestions; ++i) {
        QThread::msleep(1);
        labels = initialSuggestions();
    }
    return labels;
}

TokenFieldDelegate::Completions SpecEntryTokenFieldDelegate::completions(const QString &substring)
{
    Completions result;
    result.selectedIndex = -1;
    if (substring.isEmpty()) {
        const auto labels = awaitInitialSuggestions();
        const auto specification = searchSpecification();
        if (!labels || !specification)
            return result;
        for (const QString &label : *labels) {
            if (const auto entry = specification->entry(label))
                result.texts += suggestion(*entry);
        }
    } else if (const auto specification = searchSpecification()) {
        for (const EntryPtr &entry : search(*specification, substring))
            result.texts += suggestion(*entry);
    }
    return result;
}

// Tokens

QString SpecEntryTokenFieldDelegate::reference(const SpecificationEntry &entry) const
{
    const auto specification = entry.specification();
    return specification ? specification->generateURL(entry, true, m_constrainsURLsToSourceSpec)
                         : entry.label();
}

QVariant SpecEntryTokenFieldDelegate::representedObject(const QString &editingString)
{
    return representedObjects({editingString}).first();
}

QVariantList SpecEntryTokenFieldDelegate::representedObjects(const QStringList &editingStrings)
{
    // The entries are gone through once, however many strings there are.
    QHash<QString, QVariant> wanted;
    for (const QString &string : editingStrings)
        wanted.insert(string, {});
    qsizetype missing = wanted.size();
    if (const auto *manager = m_manager.get()) {
        manager->entryWhere([&](const SpecificationEntry &entry) {
            const auto found = wanted.find(suggestion(entry));
            if (found != wanted.end() && !found->isValid()) {
                *found = reference(entry);
                --missing;
            }
            return missing == 0;
        });
    }
    QVariantList result;
    result.reserve(editingStrings.size());
    for (const QString &string : editingStrings) {
        const QVariant object = wanted.value(string);
        result += object.isValid() ? object : QVariant(string);
    }
    return result;
}

QString SpecEntryTokenFieldDelegate::displayString(const QVariant &representedObject)
{
    if (representedObject.metaType() != QMetaType::fromType<QString>())
        return {};
    const auto entry = entryFor(representedObject);
    return entry ? suggestion(*entry) : representedObject.toString();
}

QString SpecEntryTokenFieldDelegate::editingString(const QVariant &representedObject)
{
    return displayString(representedObject);
}

bool SpecEntryTokenFieldDelegate::hasMenu(const QVariant &representedObject)
{
    const auto *manager = m_manager.get();
    return manager && manager->canDisplayDetailViewController() && entryFor(representedObject);
}

QMenu &SpecEntryTokenFieldDelegate::tokenMenu()
{
    if (!m_tokenMenu) {
        m_tokenMenu = std::make_unique<QMenu>();
        m_tokenMenu->addAction(localized("Edit…", "token field menu item"), this,
                               &SpecEntryTokenFieldDelegate::viewTokenEntryInSpec);
        m_tokenMenu->addAction(localized("Preview", "token field menu item"), this,
                               &SpecEntryTokenFieldDelegate::previewTokenSpecReference);
        m_tokenMenu->addAction(localized("Delete", "token field menu item"), this,
                               &SpecEntryTokenFieldDelegate::deleteTokenEntry);
    }
    return *m_tokenMenu;
}

QMenu *SpecEntryTokenFieldDelegate::menu(const QVariant &representedObject)
{
    tokenMenu().setObjectName(representedObject.toString());
    return m_tokenMenu.get();
}

std::optional<QStringList> SpecEntryTokenFieldDelegate::strings() const
{
    const TokenField *field = tokenField();
    if (!field)
        return {};
    QStringList result;
    for (const QVariant &object : field->objectValue().toList()) {
        if (object.metaType() != QMetaType::fromType<QString>())
            return {};
        result += object.toString();
    }
    return result;
}

std::optional<QStringList> SpecEntryTokenFieldDelegate::stringsToChange() const
{
    auto result = strings();
    if (!result) {
        const TokenField *field = tokenField();
        qCWarning(interfaceLog) << "Couldn't get token field's object value:"
                                << (field ? field->objectValue() : QVariant());
    }
    return result;
}

std::vector<EntryPtr> SpecEntryTokenFieldDelegate::selectedEntries() const
{
    std::vector<EntryPtr> result;
    for (const QString &string : strings().value_or(QStringList())) {
        if (auto entry = entryFor(string))
            result.push_back(std::move(entry));
    }
    return result;
}

void SpecEntryTokenFieldDelegate::insert(const QString &tokenString)
{
    if (auto list = stringsToChange())
        tokenField()->editObjectValue(*list << tokenString);
}

void SpecEntryTokenFieldDelegate::replaceToken(int index, const QString &string)
{
    auto list = stringsToChange();
    if (!list || index < 0 || index >= list->size())
        return;
    (*list)[index] = string;
    tokenField()->editObjectValue(*list);
}

void SpecEntryTokenFieldDelegate::replaceToken(const QString &tokenString, const QString &string)
{
    auto list = stringsToChange();
    const qsizetype index = list ? list->indexOf(tokenString) : -1;
    if (index < 0)
        return;
    (*list)[index] = string;
    tokenField()->editObjectValue(*list);
}

void SpecEntryTokenFieldDelegate::deleteToken(const QString &tokenString)
{
    auto list = stringsToChange();
    if (list && list->removeOne(tokenString))
        tokenField()->editObjectValue(*list);
}

// Actions

void SpecEntryTokenFieldDelegate::deleteTokenEntry()
{
    deleteToken(tokenMenu().objectName());
}

void SpecEntryTokenFieldDelegate::previewTokenSpecReference()
{
    TokenField *field = tokenField();
    auto *manager = m_manager.get();
    if (!field || !manager)
        return;
    if (auto summary = manager->summaryLookup(tokenMenu().objectName()))
        Popover::show(std::move(summary), field->rect(), *field);
}

void SpecEntryTokenFieldDelegate::viewTokenEntryInSpec()
{
    const QString former = tokenMenu().objectName();
    openSelectionSheet(entryFor(former),
                       [this, former](const SpecEntrySelectionViewController &controller) {
                           if (const auto &entry = controller.selectedEntry())
                               replaceToken(former, reference(*entry));
                       });
}

void SpecEntryTokenFieldDelegate::insertTokenFromSpecEntryBrowser()
{
    openSelectionSheet(nullptr, [this](const SpecEntrySelectionViewController &controller) {
        const auto &entry = controller.selectedEntry();
        if (!entry || !tokenField())
            return;
        insert(reference(*entry));
        tokenField()->setFocus(Qt::OtherFocusReason);
    });
}

void SpecEntryTokenFieldDelegate::openSelectionSheet(const EntryPtr &entry, Choice chosen)
{
    TokenField *field = tokenField();
    auto *manager = m_manager.get();
    // A field that is in no window that anybody sees has nothing for a sheet to be over.
    if (!field || !manager || !field->window()->isVisible() || m_specBrowserWindow)
        return;
    auto controller = std::make_shared<SpecEntrySelectionViewController>(entry, *manager);
    auto *sheet = new Sheet(*field);
    sheet->setWindowTitle(localized("Select an Entry", "entry browser title"));
    // The prompt to import has no button that ends the sheet.
    sheet->setWindowFlag(Qt::WindowCloseButtonHint);
    sheet->setAccessoryView(std::unique_ptr<QWidget>(controller->view()));
    sheet->resize((field->window()->size() * sheetShare).expandedTo(sheet->sizeHint()));
    m_specBrowserWindow = sheet;
    sheet->begin([weak = weak_from_this(), controller, chosen = std::move(chosen)](int result) {
        const auto self = weak.lock();
        if (!self)
            return;
        self->m_specBrowserWindow.clear();
        if (result == SpecEntrySelectionViewController::Selected)
            chosen(*controller);
    });
}

} // namespace Tavrin
