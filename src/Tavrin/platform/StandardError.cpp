// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/StandardError.h>

#include <utility>

#include <Tavrin/platform/LineStream.h>

namespace Tavrin
{

namespace
{

LineStream &stream()
{
    static LineStream theStream(stderr);
    return theStream;
}

} // namespace

void standardError(const QString &message)
{
    stream().write(message);
}

StandardErrorRedirection::StandardErrorRedirection(Receiver receiver)
{
    stream().push(std::move(receiver));
}

StandardErrorRedirection::~StandardErrorRedirection()
{
    stream().pop();
}

} // namespace Tavrin
