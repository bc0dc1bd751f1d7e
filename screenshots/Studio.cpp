// SPDX-License-Identifier: Apache-2.0
#include "Studio.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QTest>
#include <QTextStream>
#include <QTranslator>

#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/platform/Translations.h>

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

QPalette darkPalette()
{
    QPalette palette(QColor(60, 62, 66), QColor(43, 45, 48));
    const std::pair<QPalette::ColorRole, QColor> colors[] = {
        {QPalette::WindowText, QColor(230, 230, 230)},
        {QPalette::Text, QColor(230, 230, 230)},
        {QPalette::ButtonText, QColor(230, 230, 230)},
        {QPalette::Base, QColor(33, 34, 37)},
        {QPalette::AlternateBase, QColor(38, 40, 43)},
        {QPalette::ToolTipBase, QColor(60, 62, 66)},
        {QPalette::ToolTipText, QColor(230, 230, 230)},
        {QPalette::PlaceholderText, QColor(150, 152, 156)},
        {QPalette::Link, QColor(100, 170, 255)},
        {QPalette::Highlight, QColor(61, 125, 220)},
        {QPalette::HighlightedText, Qt::white},
    };
    for (const auto &[role, color] : colors)
        palette.setColor(QPalette::All, role, color);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(125, 128, 132));
    return palette;
}

bool isDrawn(const QWidget &window)
{
    const auto views = window.findChildren<EntryHighlightPDFView *>();
    return std::all_of(views.begin(), views.end(), [](const EntryHighlightPDFView *view) {
        return !view->document() || (view->isFullyDrawn() && view->textOf(view->currentPage()));
    });
}

} // namespace

Studio::Studio(QString folder, QString corpus)
    : m_folder(std::move(folder)), m_corpus(std::move(corpus))
{
}

void Studio::takeAll(Pictures pictures)
{
    takeIn(u"light"_s, pictures);
    const QPalette light = QApplication::palette();
    QApplication::setPalette(darkPalette());
    takeIn(u"dark"_s, pictures);
    QApplication::setPalette(light);
    {
        const auto translator = installTranslations(QLocale(QLocale::German));
        takeIn(u"german"_s, pictures);
    }
    QApplication::setLayoutDirection(Qt::RightToLeft);
    takeIn(u"rtl"_s, pictures);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void Studio::takeIn(const QString &mode, Pictures pictures)
{
    m_mode = mode;
    QDir().mkpath(QDir(m_folder).filePath(mode));
    pictures(*this);
    for (QWidget *window : QApplication::topLevelWidgets())
        window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Studio::shoot(QWidget &window, const QString &name)
{
    waitFor([&window] { return isDrawn(window); });
    QTest::qWait(60);
    const QString path = QDir(m_folder).filePath(m_mode + u'/' + name + u".png"_s);
    if (!window.grab().save(path))
        QTextStream(stderr) << "screenshots: " << path << " could not be written\n";
}

void Studio::shoot(QWidget &window, const QString &name, QWidget &above)
{
    QTest::qWait(60);
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    painter.drawPixmap(window.mapFromGlobal(above.mapToGlobal(QPoint())), above.grab());
    painter.end();
    QLabel whole;
    whole.setPixmap(picture);
    whole.resize(window.size());
    whole.show();
    shoot(whole, name);
}

bool Studio::waitFor(const std::function<bool()> &condition)
{
    constexpr int patience = 20'000;
    const bool holds = QTest::qWaitFor(condition, patience);
    if (!holds)
        QTextStream(stderr) << "screenshots: a window did not get ready in time\n";
    return holds;
}

QString Studio::document(const QString &name) const
{
    return QDir(m_corpus).filePath(name);
}

std::shared_ptr<PDFSpecification> Studio::bindSample(SpecificationManager &manager) const
{
    const QDir samples(QStringLiteral(TAVRIN_SAMPLES));
    manager.registerSpecification(QUrl::fromLocalFile(samples.filePath(u"slepc.xml"_s)),
                                  QUrl::fromLocalFile(samples.filePath(u"spec.dtd"_s)));
    return std::dynamic_pointer_cast<PDFSpecification>(
        manager.bindAuxiliaryFile(QUrl::fromLocalFile(document(u"slepc.pdf"_s))));
}

} // namespace Tavrin::Testing
