// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/citing/SpecEntrySelectionViewController.h>

#include <QSignalBlocker>

#include <algorithm>
#include <iterator>
#include <utility>

#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "ui_SpecEntrySelectionViewController.h"

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

bool hasAllFiles(const Specification &specification)
{
    const auto &requirements = specification.auxiliaryFileRequirements();
    return std::all_of(requirements.begin(), requirements.end(),
                       [](const auto &requirement) { return requirement->isSatisfied(); });
}

/// Revisions of one specification often share their title.
QString distinctTitle(const Specification &specification,
                      const std::vector<std::shared_ptr<Specification>> &among)
{
    const auto same = std::count_if(among.begin(), among.end(), [&](const auto &other) {
        return other->title() == specification.title();
    });
    return same > 1 && !specification.revision().isEmpty()
               ? u"%1 (R%2)"_s.arg(specification.title(), specification.revision())
               : specification.title();
}

/// A view may be replaced by what its own button has begun, which is still under way then.
void releaseLater(ViewControllerPtr controller)
{
    auto *keeper = new QObject;
    QObject::connect(keeper, &QObject::destroyed, [kept = std::move(controller)] {});
    keeper->deleteLater();
}

/// Tab goes to the buttons behind what is above them.
void putBehind(QWidget &view, QWidget &buttons)
{
    QWidget *last = &view;
    for (QWidget *next = last->nextInFocusChain(); view.isAncestorOf(next);
         next = next->nextInFocusChain())
        last = next;
    for (QWidget *button : buttons.findChildren<QPushButton *>(Qt::FindDirectChildrenOnly)) {
        if (!view.isAncestorOf(button)) {
            QWidget::setTabOrder(last, button);
            last = button;
        }
    }
}

} // namespace

SpecEntrySelectionViewControllerDelegate::~SpecEntrySelectionViewControllerDelegate() = default;

SpecEntrySelectionViewController::SpecEntrySelectionViewController(const EntryPtr &selectedEntry,
                                                                   SpecificationManager &manager)
    : m_manager(manager), m_selectedEntry(selectedEntry)
{
}

SpecEntrySelectionViewController::~SpecEntrySelectionViewController() = default;

void SpecEntrySelectionViewController::setSelectedEntry(const EntryPtr &entry)
{
    m_selectedEntry = entry;
    Q_EMIT changed();
}

QString SpecEntrySelectionViewController::selectedEntryText() const
{
    return m_selectedEntry ? localized("Selected entry: %@", "entry browser indicator text")
                                 .replace("%@"_L1, m_selectedEntry->displayTitle())
                           : localized("No selected entry", "entry browser indicator text");
}

void SpecEntrySelectionViewController::specDetailViewController(SpecDetailViewController &,
                                                                const EntryPtr &selected)
{
    setSelectedEntry(selected);
}

// View

std::unique_ptr<QWidget> SpecEntrySelectionViewController::loadView()
{
    auto view = std::make_unique<QWidget>();
    Ui::SpecEntrySelectionViewController form;
    form.setupUi(view.get());
    m_containerView = form.containerView;
    form.specificationLabel->setText(localized("Specification:", "entry browser label"));
    form.cancelButton->setText(localized("Cancel", "entry browser button"));
    form.selectButton->setText(localized("Select", "entry browser button"));
    const auto update = [this, form] {
        const QSignalBlocker blocker(form.specificationPopUp);
        form.specificationPopUp->clear();
        for (const SpecificationPtr &each : m_availableSpecifications)
            form.specificationPopUp->addItem(distinctTitle(*each, m_availableSpecifications));
        const auto shown = std::find(m_availableSpecifications.begin(),
                                     m_availableSpecifications.end(), m_selectedSpecification);
        form.specificationPopUp->setCurrentIndex(
            shown == m_availableSpecifications.end()
                ? -1
                : static_cast<int>(shown - m_availableSpecifications.begin()));
        form.specificationLabel->setHidden(m_availableSpecifications.empty());
        form.specificationPopUp->setHidden(m_availableSpecifications.empty());
        form.selectedEntryLabel->setText(selectedEntryText());
        form.selectedEntryLabel->setHidden(controlsHidden());
        form.cancelButton->setHidden(controlsHidden());
        form.selectButton->setHidden(controlsHidden());
        form.selectButton->setEnabled(selectButtonEnabled());
    };
    // Ends with the view.
    connect(this, &SpecEntrySelectionViewController::changed, view.get(), update);
    connect(form.specificationPopUp, &QComboBox::activated, this, [this](int index) {
        setSelectedSpecification(m_availableSpecifications.at(static_cast<std::size_t>(index)));
    });
    connect(form.selectButton, &QPushButton::clicked, this,
            &SpecEntrySelectionViewController::selectButtonClicked);
    connect(form.cancelButton, &QPushButton::clicked, this,
            &SpecEntrySelectionViewController::cancelButtonClicked);
    return view;
}

void SpecEntrySelectionViewController::viewDidLoad()
{
    loadDetail();
    refreshAvailableSpecifications();
    m_filesChanged = m_manager.observeFiles([this] { specAuxiliaryFilesChanged(); });
}

void SpecEntrySelectionViewController::viewDidAppear()
{
    // Escape and the window's frame end a sheet, too.
    auto *sheet = qobject_cast<Sheet *>(view()->window());
    if (!sheet || sheet == m_sheet)
        return;
    m_sheet = sheet;
    connect(sheet, &QDialog::finished, this, &SpecEntrySelectionViewController::tellDelegate);
}

// Specifications

void SpecEntrySelectionViewController::refreshAvailableSpecifications()
{
    m_availableSpecifications.clear();
    if (const auto *manager = m_manager.get()) {
        const auto &all = manager->specifications();
        std::copy_if(all.begin(), all.end(), std::back_inserter(m_availableSpecifications),
                     [](const SpecificationPtr &each) { return hasAllFiles(*each); });
    }
    Q_EMIT changed();
}

SpecEntrySelectionViewController::SpecificationPtr
SpecEntrySelectionViewController::primarySpecification() const
{
    const auto *manager = m_manager.get();
    return manager ? manager->primarySpecification() : nullptr;
}

void SpecEntrySelectionViewController::loadDetail()
{
    SpecificationPtr specification = m_selectedEntry ? m_selectedEntry->specification() : nullptr;
    if (!specification)
        specification = primarySpecification();
    if (specification)
        showSpecification(specification, m_selectedEntry);
}

void SpecEntrySelectionViewController::setSelectedSpecification(
    const SpecificationPtr &specification)
{
    if (!specification)
        return;
    const bool isOwn = m_selectedEntry && m_selectedEntry->specification() == specification;
    setSelectedEntry(isOwn ? m_selectedEntry : nullptr);
    showSpecification(specification, m_selectedEntry);
}

void SpecEntrySelectionViewController::removeShown()
{
    if (!m_shown)
        return;
    if (m_shown->isViewLoaded())
        m_shown->view()->hide();
    if (m_currentDetailController)
        m_currentDetailController->setDelegate({});
    m_currentDetailController.reset();
    releaseLater(std::exchange(m_shown, nullptr));
}

std::shared_ptr<SpecDetailViewController>
SpecEntrySelectionViewController::makeDetail(const SpecificationPtr &specification) const
{
    if (!std::dynamic_pointer_cast<PDFSpecification>(specification)) {
        return std::dynamic_pointer_cast<SpecDetailViewController>(
            specification->detailViewController());
    }
    if (!specification->areFileRequirementsSatisfied())
        return nullptr;
    auto detail = SpecPDFViewController::make(specification);
    if (auto *manager = m_manager.get())
        detail->setManager(*manager);
    return detail;
}

void SpecEntrySelectionViewController::showSpecification(const SpecificationPtr &specification,
                                                         const EntryPtr &entry)
{
    m_selectedSpecification = specification;
    if (m_currentDetailController && m_currentDetailController->specification() == specification) {
        if (entry)
            m_currentDetailController->selectEntry(entry);
        Q_EMIT changed();
        return;
    }
    removeShown();
    m_currentDetailController = makeDetail(specification);
    m_controlsHidden = !m_currentDetailController;
    if (m_currentDetailController) {
        m_shown = m_currentDetailController;
        m_currentDetailController->setDelegate(
            std::shared_ptr<SpecDetailViewControllerDelegate>(shared_from_this(), this));
        m_currentDetailController->setAllowsEntrySelection(true);
        if (entry)
            m_currentDetailController->selectEntry(entry);
    } else if (auto *manager = m_manager.get()) {
        m_shown = manager->makeNoSpecsController();
    }
    if (m_shown && m_containerView) {
        m_containerView->layout()->addWidget(m_shown->view());
        putBehind(*m_shown->view(), *view());
    }
    Q_EMIT changed();
}

void SpecEntrySelectionViewController::specAuxiliaryFilesChanged()
{
    refreshAvailableSpecifications();
    const auto &available = m_availableSpecifications;
    const auto isAvailable = [&available](const SpecificationPtr &specification) {
        return std::find(available.begin(), available.end(), specification) != available.end();
    };
    if (!m_currentDetailController) {
        loadDetail();
        return;
    }
    if (isAvailable(m_currentDetailController->specification()))
        return;
    if (isAvailable(m_selectedSpecification))
        setSelectedSpecification(m_selectedSpecification);
    else
        setSelectedSpecification(available.empty() ? primarySpecification() : available.front());
}

// Ending

void SpecEntrySelectionViewController::tellDelegate(int result)
{
    if (std::exchange(m_hasEnded, true))
        return;
    if (const auto delegate = m_delegate.lock())
        delegate->specEntrySelectionViewController(*this, result);
}

void SpecEntrySelectionViewController::end(int result)
{
    const auto self = shared_from_this();
    tellDelegate(result);
    QWidget *shown = isViewLoaded() ? view() : nullptr;
    if (auto *sheet = shown ? qobject_cast<Sheet *>(shown->window()) : nullptr)
        sheet->end(result);
}

} // namespace Tavrin
