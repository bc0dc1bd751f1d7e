// SPDX-License-Identifier: Apache-2.0
// What every test is written in: matchers, the project's own names, and literals of texts.
#pragma once

#include <QString>

#include <gmock/gmock.h>

/// How a text is told when an expectation fails.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace Tavrin::Testing
{

/// Of texts of any kind.
MATCHER_P(Holds, part, "")
{
    return arg.contains(part);
}
MATCHER_P(Begins, part, "")
{
    return arg.startsWith(part);
}
MATCHER_P(Ends, part, "")
{
    return arg.endsWith(part);
}

} // namespace Tavrin::Testing

using namespace Qt::StringLiterals;
using namespace Tavrin;
using namespace Tavrin::Testing;
using testing::AllOf;
using testing::Contains;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsNull;
using testing::Not;
using testing::NotNull;
using testing::Pair;
using testing::UnorderedElementsAre;
