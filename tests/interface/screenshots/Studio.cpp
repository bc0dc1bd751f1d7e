// SPDX-License-Identifier: Apache-2.0
#include "Studio.h"

#include <QApplication>
#include <QDir>
#include <QScopeGuard>
#include <QTest>
#include <QTextStream>
#include <QTranslator>

#include <Tavrin/platform/Translations.h>

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

QPalette darkPalette()
{
    QPalette palette(QColor(60, 62, 66), QColor(43, 45, 48));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::All, role, QColor(230, 230, 230));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(125, 128, 132));
    palette.setColor(QPalette::Base, QColor(33, 34, 37));
    palette.setColor(QPalette::AlternateBase, QColor(38, 40, 43));
    palette.setColor(QPalette::ToolTipBase, QColor(60, 62, 66));
    palette.setColor(QPalette::ToolTipText, QColor(230, 230, 230));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 152, 156));
    palette.setColor(QPalette::Link, QColor(100, 170, 255));
    palette.setColor(QPalette::Highlight, QColor(61, 125, 220));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

Studio::Studio(QString folder, QString corpus)
    : m_folder(std::move(folder)), m_corpus(std::move(corpus))
{
}

Studio::~Studio() = default;

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
    QTest::qWait(60);
    const QString path = QDir(m_folder).filePath(m_mode + u'/' + name + u".png"_s);
    if (!window.grab().save(path))
        QTextStream(stderr) << "screenshots: " << path << " could not be written\n";
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

std::shared_ptr<Specification> Studio::bindSample(SpecificationManager &manager,
                                                  const QString &name) const
{
    const QDir samples(QStringLiteral(TAVRIN_SAMPLES));
    manager.registerSpecification(QUrl::fromLocalFile(samples.filePath(name + u".xml"_s)),
                                  QUrl::fromLocalFile(samples.filePath(u"spec.dtd"_s)));
    return manager.bindAuxiliaryFile(QUrl::fromLocalFile(document(name + u".pdf"_s)));
}

} // namespace Tavrin::Testing
