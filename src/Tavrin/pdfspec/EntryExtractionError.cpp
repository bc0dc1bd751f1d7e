// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/EntryExtractionError.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

QString message(EntryExtractionError::Kind kind, const QString &title, int page,
                const QString &text)
{
    switch (kind) {
    case EntryExtractionError::Kind::EntryTitleNotFound:
        return u"no heading \"%1\" on page %2, which begins \"%3\""_s.arg(title).arg(page).arg(
            text);
    case EntryExtractionError::Kind::TitleNotFoundInFilteredText:
        return u"the heading \"%1\" is not in the body of page %2, which begins \"%3\""_s.arg(title)
            .arg(page)
            .arg(text);
    case EntryExtractionError::Kind::UnableToGeneratePresentationText:
        break;
    }
    return u"the pages have no text"_s;
}

} // namespace

EntryExtractionError::EntryExtractionError(Kind errorKind, const QString &entryTitle, int pageIndex,
                                           const QString &pageText)
    : std::runtime_error(
          message(errorKind, entryTitle, pageIndex, pageText.simplified()).toStdString()),
      kind(errorKind),
      title(entryTitle),
      page(pageIndex),
      text(pageText)
{
}

} // namespace Tavrin
