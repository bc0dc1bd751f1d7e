// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>

#include <Tavrin/model/ReferenceCoverage.h>

#include <reader/citing/CitationDocument.h>
#include <reader/files/FileChooser.h>

class QListView;
class QPlainTextEdit;

namespace Tavrin
{
class SegmentedControl;
class SpecEntryTokenFieldDelegate;
class SpecificationManager;
class TokenField;
} // namespace Tavrin

namespace Tavrin::Reader
{

class CitationModel;

/// A form in which a work cites entries: passages on the left, the text of one and the entries that
/// it cites on the right. Deletes itself when closed.
class CitationWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Cites entries that the manager knows.
    explicit CitationWindow(SpecificationManager &manager, QWidget *parent = nullptr);
    ~CitationWindow() override;

    /// Asks for a file with a document.
    static FileChooser chooser();

    /// Shows the document of a file; a broken one is told, and nothing changes.
    void open(const QString &path);
    /// False if it could not be written, which is told.
    bool save(const QString &path);
    /// Whether changes would be lost, also those that are being typed.
    bool isUnsaved();
    /// Closes the window and goes on, after a question where changes would be lost: unless the user
    /// keeps the window.
    void closeWhenSaved(const std::function<void()> &then);

    /// All that the document cites, with the passage that does.
    ReferenceCoverage references() const;

    CitationModel &citations() const { return *m_model; }
    TokenField &tokenField() const { return *m_tokens; }
    QPlainTextEdit &textField() const { return *m_text; }

Q_SIGNALS:
    /// What the document cites is to be audited, or marked in the specification.
    void auditRequested(const Tavrin::ReferenceCoverage &references);
    void coverageRequested(const Tavrin::ReferenceCoverage &references);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *makeList();
    QWidget *makeForm();
    void makeMenus();
    void chooseFile();
    void chooseName(const std::function<void()> &then);
    /// Asks where nothing may be lost, and goes on unless the user keeps the document.
    void whenSaved(const std::function<void()> &then);
    void setPath(const QString &path);
    void showDocument(CitationDocument document);
    void select(int row);
    void showCitation(int row);
    void storeCitation();
    void addCitation();
    void removeCitation();

    CitationModel *m_model;
    QListView *m_list;
    SegmentedControl *m_control;
    QWidget *m_form;
    QPlainTextEdit *m_text;
    TokenField *m_tokens;
    std::shared_ptr<SpecEntryTokenFieldDelegate> m_tokenDelegate;
    QString m_path;
    int m_row = -1;
    bool m_isShowing = false;
};

} // namespace Tavrin::Reader
