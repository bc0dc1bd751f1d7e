// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/StandardOutput.h>

#include <utility>

#include <Tavrin/platform/LineStream.h>

namespace Tavrin
{

namespace
{

LineStream &outputStream()
{
    static LineStream theStream(stdout);
    return theStream;
}

} // namespace

void standardOutput(const QString &message)
{
    outputStream().write(message);
}

StandardOutputRedirection::StandardOutputRedirection(Receiver receiver)
{
    outputStream().push(std::move(receiver));
}

StandardOutputRedirection::~StandardOutputRedirection()
{
    outputStream().pop();
}

} // namespace Tavrin
