// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/Translations.h>

#include <QCoreApplication>

/// A static library would leave the resource out otherwise. The macro wants no namespace.
static void registerTranslations()
{
    Q_INIT_RESOURCE(tavrin_translations);
}

namespace Tavrin
{

using namespace Qt::StringLiterals;

std::unique_ptr<QTranslator> installTranslations(const QLocale &locale)
{
    registerTranslations();
    auto translator = std::make_unique<QTranslator>();
    const bool isInstalled =
        translator->load(locale, u"tavrin"_s, u"_"_s, u":/tavrin/translations"_s) &&
        QCoreApplication::installTranslator(translator.get());
    return isInstalled ? std::move(translator) : nullptr;
}

} // namespace Tavrin
