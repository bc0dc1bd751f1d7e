// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/StandardError.h>

#include <utility>

#include <Tavrin/platform/LineStream.h>

namespace Tavrin
{

namespace
{

LineStream &errorStream()
{
    static LineStream theStream(stderr);
    return theStream;
}

} // namespace

void standardError(const QString &message)
{
    errorStream().write(message);
}

StandardErrorRedirection::StandardErrorRedirection(Receiver receiver)
{
    errorStream().push(std::move(receiver));
}

StandardErrorRedirection::~StandardErrorRedirection()
{
    errorStream().pop();
}

} // namespace Tavrin
