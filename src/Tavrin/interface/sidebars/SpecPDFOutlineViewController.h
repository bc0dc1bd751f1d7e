// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QSet>

#include <memory>

#include <Tavrin/interface/sidebars/SpecPDFSourceList.h>
#include <Tavrin/interface/toolkit/ViewController.h>

class QLabel;
class QLineEdit;
class QModelIndex;
class QTreeView;

namespace Tavrin
{

class OutlineItem;
class OutlineModel;

/// The document's outline, as a tree that leads into the document, with a field to filter it by.
///
/// The item that holds the current entry is selected, and the delegate hears of that as of an item
/// that the reader selects. The selection then follows the place where the reader is; of that the
/// delegate hears nothing. Main thread.
///
/// SpecPDFViewController::make puts one into its sidebar. A document without an outline leaves the
/// tree empty and hides the field.
class TAVRIN_WIDGETS_EXPORT SpecPDFOutlineViewController : public ViewController,
                                                           public SpecPDFSourceList
{
    Q_OBJECT

public:
    explicit SpecPDFOutlineViewController(QObject *parent = nullptr);
    ~SpecPDFOutlineViewController() override;

    std::shared_ptr<PDFSpecification::Entry> entry() const override { return m_entry; }
    /// Reads the outline again and selects the entry's place. What was expanded is forgotten.
    void setEntry(const std::shared_ptr<PDFSpecification::Entry> &entry) override;
    std::shared_ptr<PDFSpecification> specification() const override { return m_specification; }
    /// Reads the outline again. One whose document isn't there shows nothing.
    void setSpecification(const std::shared_ptr<PDFSpecification> &specification) override;
    std::shared_ptr<SpecPDFSourceListDelegate> delegate() const override
    {
        return m_delegate.lock();
    }
    void setDelegate(const std::weak_ptr<SpecPDFSourceListDelegate> &delegate) override
    {
        m_delegate = delegate;
    }

    /// Selects the item that holds the place, unless the reader is busy with the tree. Below an
    /// item that the reader has collapsed nothing is expanded for it.
    void showsPlace(const HostPDFDestination &place) override;

    /// The tree; null before the view is loaded and after it went.
    QTreeView *outlineView() const;

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;

private:
    void reload();
    void select(const HostPDFDestination &place);
    const OutlineItem &itemAt(const HostPDFDestination &place) const;
    const OutlineItem &nextStepDown(const OutlineItem &item, const HostPDFDestination &place) const;
    QModelIndex expandTowards(const QModelIndex &index);

    void choose(const QModelIndex &index);
    void chooseFromField();
    bool isReaderBusy() const;

    void filter(const QString &text);
    void rememberExpanded();
    void restoreExpanded();

    std::shared_ptr<PDFSpecification::Entry> m_entry;
    std::shared_ptr<PDFSpecification> m_specification;
    std::weak_ptr<SpecPDFSourceListDelegate> m_delegate;
    std::unique_ptr<OutlineItem> m_wrappedOutlineRoot;
    std::unique_ptr<OutlineModel> m_model;
    QPointer<QTreeView> m_outlineView;
    QPointer<QLineEdit> m_filterField;
    QPointer<QLabel> m_noMatchesLabel;
    /// What was open before the tree was filtered.
    QSet<const OutlineItem *> m_expandedItems;
    QSet<const OutlineItem *> m_collapsedByReader;
    /// While it is set, changes of the tree are not the reader's.
    bool m_isChangingTree = false;
    /// Runs from the latest choice on.
    QElapsedTimer m_sinceChoice;
};

} // namespace Tavrin
