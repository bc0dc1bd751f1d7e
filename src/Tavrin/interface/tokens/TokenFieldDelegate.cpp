// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenFieldDelegate.h>

namespace Tavrin
{

TokenFieldDelegate::~TokenFieldDelegate() = default;

TokenFieldDelegate::Completions TokenFieldDelegate::completions(const QString &)
{
    return {};
}

QVariant TokenFieldDelegate::representedObject(const QString &editingString)
{
    return editingString;
}

QVariantList TokenFieldDelegate::representedObjects(const QStringList &editingStrings)
{
    QVariantList result;
    result.reserve(editingStrings.size());
    for (const QString &string : editingStrings)
        result += representedObject(string);
    return result;
}

QString TokenFieldDelegate::displayString(const QVariant &)
{
    return {};
}

QString TokenFieldDelegate::editingString(const QVariant &)
{
    return {};
}

bool TokenFieldDelegate::hasMenu(const QVariant &)
{
    return false;
}

QMenu *TokenFieldDelegate::menu(const QVariant &)
{
    return nullptr;
}

} // namespace Tavrin
