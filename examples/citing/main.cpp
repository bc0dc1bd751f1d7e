// SPDX-License-Identifier: Apache-2.0
// A form whose user cites entries: a field of references, a sheet to choose one in the document, an
// audit of what is cited, and files that are imported by dropping them.
//
// usage: citing MAPS [DOC.pdf]
#include <QApplication>
#include <QBoxLayout>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTextStream>

#include <Tavrin/interface/audit/SpecAuditBrowserController.h>
#include <Tavrin/interface/citing/SpecEntrySelectionViewController.h>
#include <Tavrin/interface/citing/SpecEntryTokenFieldDelegate.h>
#include <Tavrin/interface/files/AuxiliaryFileImport.h>
#include <Tavrin/interface/tokens/TokenField.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/manager/SpecificationManager.h>

namespace
{

class Form : public QWidget
{
public:
    Form()
    {
        setAcceptDrops(true);
        auto *layout = new QVBoxLayout(this);
        //! [field]
        auto *field = new Tavrin::TokenField;
        // The field does not keep it.
        m_delegate = Tavrin::SpecEntryTokenFieldDelegate::make(*field);
        // What objectValue() gave when the form was stored.
        field->setObjectValue(QStringList{QStringLiteral("spec://4.2.1/manual/1")});
        //! [field]
        layout->addWidget(field);
        layout->addWidget(new QPushButton(QStringLiteral("Choose…"), this));
        layout->addWidget(new QPushButton(QStringLiteral("Audit"), this));
        const auto buttons = findChildren<QPushButton *>();
        connect(buttons.at(0), &QPushButton::clicked, this, &Form::choose);
        connect(buttons.at(1), &QPushButton::clicked, this, &Form::audit);
    }

protected:
    void dragEnterEvent(QDragEnterEvent *event) override
    {
        event->setAccepted(event->mimeData()->hasUrls());
    }

    void dropEvent(QDropEvent *event) override
    {
        const QList<QUrl> urls = event->mimeData()->urls();
        importFiles({urls.begin(), urls.end()});
    }

private:
    void choose()
    {
        //! [choose]
        const auto chooser = std::make_shared<Tavrin::SpecEntrySelectionViewController>();
        auto *sheet = new Tavrin::Sheet(*this);
        sheet->setAccessoryView(std::unique_ptr<QWidget>(chooser->view()));
        sheet->begin([this, chooser](int result) {
            if (result == Tavrin::SpecEntrySelectionViewController::Selected)
                m_delegate->insert(chooser->selectedEntry()->label());
        });
        //! [choose]
        sheet->resize(900, 600);
    }

    void audit()
    {
        QStringList labels;
        for (const auto &entry : m_delegate->selectedEntries())
            labels += entry->label();
        //! [audit]
        const auto specification = std::dynamic_pointer_cast<Tavrin::PDFSpecification>(
            Tavrin::SpecificationManager::shared().primarySpecification());
        if (!specification)
            return;
        m_audit = std::make_shared<Tavrin::SpecAuditBrowserController>(labels, specification);
        m_audit->view()->show();
        //! [audit]
    }

    void importFiles(const std::vector<QUrl> &urls)
    {
        //! [import]
        auto *import = new Tavrin::AuxiliaryFileImport(this);
        connect(import, &Tavrin::AuxiliaryFileImport::finished, this,
                [this, import](const std::vector<Tavrin::AuxiliaryFileImport::Failure> &failures) {
                    Tavrin::AuxiliaryFileImport::showFailures(this, failures);
                    import->deleteLater();
                });
        import->start(urls, this);
        //! [import]
    }

    std::shared_ptr<Tavrin::SpecEntryTokenFieldDelegate> m_delegate;
    std::shared_ptr<Tavrin::SpecAuditBrowserController> m_audit;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("citing"));
    const QStringList arguments = QApplication::arguments();
    try {
        auto &manager = Tavrin::SpecificationManager::shared();
        manager.loadSpecInformation(QUrl::fromLocalFile(arguments.at(1)));
        if (arguments.size() > 2)
            manager.bindAuxiliaryFile(QUrl::fromLocalFile(arguments.at(2)));
    } catch (const std::exception &error) {
        QTextStream(stderr) << QString::fromUtf8(error.what()) << '\n';
        return 2;
    }
    Form form;
    form.show();
    return QApplication::exec();
}
