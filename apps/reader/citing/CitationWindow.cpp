// SPDX-License-Identifier: Apache-2.0
#include <reader/citing/CitationWindow.h>

#include <QCloseEvent>
#include <QFileDialog>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QVBoxLayout>

#include <Tavrin/interface/citing/SpecEntryTokenFieldDelegate.h>
#include <Tavrin/interface/tokens/TokenField.h>
#include <Tavrin/interface/toolkit/SegmentedControl.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <reader/citing/CitationModel.h>
#include <reader/panes/Complaint.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize firstSize(760, 460);
constexpr int listWidth = 240;
constexpr int padding = 8;
constexpr int addSegment = 0;

/// What the sheet before closing is ended with.
enum Answer { Keep, Save, Discard };

QString fileFilter()
{
    return localized("Citations (*.json)", "filter of a dialog");
}

QStringList strings(const QVariant &objectValue)
{
    QStringList result;
    const QVariantList values = objectValue.toList();
    for (const QVariant &value : values)
        result += value.toString();
    return result;
}

} // namespace

CitationWindow::CitationWindow(SpecificationManager &manager, QWidget *parent)
    : QMainWindow(parent),
      m_model(new CitationModel(this)),
      m_list(new QListView),
      m_control(new SegmentedControl),
      m_form(new QWidget),
      m_text(new QPlainTextEdit),
      m_tokens(new TokenField),
      m_tokenDelegate(SpecEntryTokenFieldDelegate::make(*m_tokens, manager))
{
    setAttribute(Qt::WA_DeleteOnClose);
    resize(firstSize);
    auto *splitter = new QSplitter;
    splitter->addWidget(makeList());
    splitter->addWidget(makeForm());
    splitter->setSizes({listWidth, firstSize.width() - listWidth});
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    makeMenus();
    connect(m_model, &CitationModel::edited, this, [this] { setWindowModified(true); });
    connect(m_text, &QPlainTextEdit::textChanged, this, &CitationWindow::storeCitation);
    connect(m_tokens, &TokenField::objectValueChanged, this, &CitationWindow::storeCitation);
    setPath({});
    CitationDocument fresh;
    fresh.citations.emplace_back();
    showDocument(std::move(fresh));
    m_text->setFocus(Qt::OtherFocusReason);
}

CitationWindow::~CitationWindow() = default;

QWidget *CitationWindow::makeList()
{
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(padding, padding, 0, padding);
    m_list->setModel(m_model);
    m_list->setAccessibleName(localized("Passages", "name of a list"));
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_control->addSegment(u"+"_s, localized("Add a passage", "button"));
    m_control->addSegment(u"−"_s, localized("Remove the passage", "button"));
    connect(m_control, &SegmentedControl::pressed, this, [this](int segment) {
        if (segment == addSegment)
            addCitation();
        else
            removeCitation();
    });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { showCitation(current.row()); });
    layout->addWidget(m_list);
    layout->addWidget(m_control, 0, Qt::AlignLeading);
    return pane;
}

QWidget *CitationWindow::makeForm()
{
    auto *layout = new QVBoxLayout(m_form);
    layout->setContentsMargins(padding, padding, padding, padding);
    auto *textLabel = new QLabel(localized("&Passage", "label of a field"));
    textLabel->setBuddy(m_text);
    m_text->setAccessibleName(localized("Passage", "name of a field"));
    m_text->setTabChangesFocus(true);
    auto *tokenLabel = new QLabel(localized("&Cites", "label of a field"));
    tokenLabel->setBuddy(m_tokens);
    m_tokens->setAccessibleName(localized("Cited entries", "name of a field"));
    m_tokens->setPlaceholderText(
        localized("Type a number or words of a title", "placeholder of a field"));
    auto *choose = new QPushButton(localized("Choose in Document…", "button"));
    connect(choose, &QPushButton::clicked, this,
            [this] { m_tokenDelegate->insertTokenFromSpecEntryBrowser(); });
    layout->addWidget(textLabel);
    layout->addWidget(m_text, 1);
    layout->addWidget(tokenLabel);
    layout->addWidget(m_tokens);
    layout->addWidget(choose, 0, Qt::AlignLeading);
    return m_form;
}

void CitationWindow::makeMenus()
{
    QMenu *file = menuBar()->addMenu(localized("&File", "menu"));
    file->addAction(localized("&Open…", "menu item"), QKeySequence::Open, this,
                    [this] { whenSaved([this] { chooseFile(); }); });
    file->addAction(localized("&Save", "menu item"), QKeySequence::Save, this, [this] {
        if (m_path.isEmpty())
            chooseName([] {});
        else
            save(m_path);
    });
    file->addAction(localized("Save &As…", "menu item"), QKeySequence::SaveAs, this,
                    [this] { chooseName([] {}); });
    file->addSeparator();
    file->addAction(localized("&Close", "menu item"), QKeySequence::Close, this, &QWidget::close);
    QMenu *references = menuBar()->addMenu(localized("&References", "menu"));
    references->addAction(localized("&Audit…", "menu item"), this,
                          [this] { Q_EMIT auditRequested(this->references()); });
    references->addAction(localized("Show &Coverage in Document", "menu item"), this,
                          [this] { Q_EMIT coverageRequested(this->references()); });
}

void CitationWindow::open(const QString &path)
{
    try {
        showDocument(CitationDocument::read(path));
        setPath(path);
    } catch (const CitationDocument::Error &error) {
        complain(*this, localized("The citations could not be opened.", "alert"), error);
    }
}

bool CitationWindow::save(const QString &path)
{
    m_tokens->tokenizeText();
    try {
        m_model->document().write(path);
        setPath(path);
        return true;
    } catch (const CitationDocument::Error &error) {
        complain(*this, localized("The citations could not be saved.", "alert"), error);
        return false;
    }
}

void CitationWindow::setPath(const QString &path)
{
    m_path = path;
    setWindowFilePath(path);
    const QString name = path.isEmpty() ? localized("New Citations", "title of a window")
                                        : QFileInfo(path).fileName();
    setWindowTitle(name + u"[*]"_s);
    setWindowModified(false);
}

void CitationWindow::showDocument(CitationDocument document)
{
    m_model->setDocument(std::move(document));
    select(m_model->rowCount() > 0 ? 0 : -1);
}

void CitationWindow::select(int row)
{
    m_list->setCurrentIndex(m_model->index(row));
    showCitation(row);
}

void CitationWindow::showCitation(int row)
{
    const QScopedValueRollback showing(m_isShowing, true);
    m_row = row;
    const Citation *shown = m_model->citation(row);
    const Citation citation = shown ? *shown : Citation();
    m_form->setEnabled(shown);
    m_text->setPlainText(citation.text);
    QVariantList references;
    for (const QString &reference : citation.references)
        references += reference;
    m_tokens->setObjectValue(references);
    m_control->setSegmentEnabled(1, shown);
}

void CitationWindow::storeCitation()
{
    if (!m_isShowing)
        m_model->setCitation(m_row, {m_text->toPlainText(), strings(m_tokens->objectValue())});
}

void CitationWindow::addCitation()
{
    select(m_model->append());
    m_text->setFocus(Qt::OtherFocusReason);
}

void CitationWindow::removeCitation()
{
    const int row = m_row;
    m_model->remove(row);
    select(std::min(row, m_model->rowCount() - 1));
}

ReferenceCoverage CitationWindow::references() const
{
    ReferenceCoverage references;
    for (const Citation &citation : m_model->document().citations) {
        for (const QString &reference : citation.references)
            references.push_back({reference, citation.text});
    }
    return references;
}

FileChooser CitationWindow::chooser()
{
    return {u"Citations"_s, localized("Open Citations", "title of a dialog"),
            QFileDialog::ExistingFile, fileFilter()};
}

void CitationWindow::chooseFile()
{
    chooser().open(*this, [this](const QStringList &paths) { open(paths.front()); });
}

void CitationWindow::chooseName(const std::function<void()> &then)
{
    auto *dialog =
        new QFileDialog(this, localized("Save Citations", "title of a dialog"), {}, fileFilter());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(u"json"_s);
    connect(dialog, &QFileDialog::fileSelected, this, [this, then](const QString &path) {
        if (save(path))
            then();
    });
    dialog->open();
}

void CitationWindow::whenSaved(const std::function<void()> &then)
{
    if (!isUnsaved()) {
        then();
        return;
    }
    auto *sheet = new Sheet(*this);
    sheet->setMessageText(localized("Do you want to save the changes?", "alert"));
    sheet->setInformativeText(localized("They are lost if you don't.", "alert"));
    sheet->addButton(localized("Save", "alert button"), Save);
    sheet->addButton(localized("Cancel", "alert button"), Keep);
    sheet->addButton(localized("Don't Save", "alert button"), Discard);
    sheet->begin([this, then](int answer) {
        if (answer == Save && m_path.isEmpty())
            chooseName(then);
        else if (answer == Discard || (answer == Save && save(m_path)))
            then();
    });
}

bool CitationWindow::isUnsaved()
{
    m_tokens->tokenizeText();
    return isWindowModified();
}

void CitationWindow::closeWhenSaved(const std::function<void()> &then)
{
    whenSaved([this, then] {
        setWindowModified(false);
        close();
        then();
    });
}

void CitationWindow::closeEvent(QCloseEvent *event)
{
    if (!isUnsaved()) {
        QMainWindow::closeEvent(event);
        return;
    }
    event->ignore();
    closeWhenSaved([] {});
}

} // namespace Tavrin::Reader
