// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/StandardOutput.h>

#include <utility>

#include <Tavrin/platform/LineStream.h>

namespace Tavrin
{

namespace
{

LineStream &stream()
{
    static LineStream theStream(stdout);
    return theStream;
}

} // namespace

void standardOutput(const QString &message)
{
    stream().write(message);
}

StandardOutputRedirection::StandardOutputRedirection(Receiver receiver)
{
    stream().push(std::move(receiver));
}

StandardOutputRedirection::~StandardOutputRedirection()
{
    stream().pop();
}

} // namespace Tavrin
