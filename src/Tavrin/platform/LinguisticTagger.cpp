// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/LinguisticTagger.h>

namespace Tavrin
{

LinguisticTaggerError::LinguisticTaggerError(const QString &text)
    : std::runtime_error(text.toStdString()), message(text)
{
}

LinguisticTagger::~LinguisticTagger() = default;

} // namespace Tavrin
