// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/Sheet.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

namespace
{

constexpr int margin = 20;
constexpr int narrowest = 340;
/// Texts that are longer scroll, so that the buttons stay on the screen.
constexpr int longestText = 2'000;

QLabel *makeLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->hide();
    return label;
}

} // namespace

Sheet::Sheet(QWidget &window)
    : QDialog(window.window(), Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_message(makeLabel(this)),
      m_informative(makeLabel(this)),
      m_contents(new QVBoxLayout),
      m_buttons(new QHBoxLayout)
{
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(narrowest);
    QFont bold = font();
    bold.setBold(true);
    m_message->setFont(bold);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 2);
    layout->addWidget(m_message);
    layout->addLayout(m_contents, 1);
    layout->addLayout(m_buttons);
    m_contents->addWidget(m_informative);
    m_buttons->addStretch();
}

Sheet::~Sheet() = default;

void Sheet::setMessageText(const QString &text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    setWindowTitle(text);
    setAccessibleName(text);
}

QString Sheet::messageText() const
{
    return m_message->text();
}

void Sheet::setInformativeText(const QString &text)
{
    m_informative->setText(text);
    m_informative->setVisible(!text.isEmpty());
    if (text.size() <= longestText)
        return;
    auto *scrollArea = new QScrollArea(this);
    scrollArea->setWidgetResizable(true);
    m_contents->removeWidget(m_informative);
    scrollArea->setWidget(m_informative);
    m_contents->insertWidget(0, scrollArea);
}

QString Sheet::informativeText() const
{
    return m_informative->text();
}

void Sheet::setAccessoryView(std::unique_ptr<QWidget> view)
{
    m_contents->addWidget(view.release(), 1);
}

QPushButton *Sheet::addButton(const QString &title, int result)
{
    auto *button = new QPushButton(title, this);
    const bool isFirst = m_buttons->count() == 1;
    button->setDefault(isFirst);
    button->setAutoDefault(isFirst);
    m_buttons->insertWidget(1, button);
    connect(button, &QPushButton::clicked, this, [this, result] { end(result); });
    return button;
}

void Sheet::begin(Completion completion)
{
    m_completion = std::move(completion);
    open();
}

void Sheet::end(int result)
{
    if (std::exchange(m_isEnding, true))
        return;
    // The completion may begin the next sheet of the window, so this one goes first.
    done(result);
    if (const auto completion = std::exchange(m_completion, {}))
        completion(result);
}

Sheet *Sheet::showMessage(QWidget &window, const QString &message, const QString &informativeText)
{
    auto *sheet = new Sheet(window);
    sheet->setMessageText(message);
    sheet->setInformativeText(informativeText);
    sheet->addButton(localized("OK", "alert button"), QDialog::Accepted);
    sheet->begin();
    return sheet;
}

void Sheet::reject()
{
    if (m_endsOnEscape)
        end(QDialog::Rejected);
}

} // namespace Tavrin
