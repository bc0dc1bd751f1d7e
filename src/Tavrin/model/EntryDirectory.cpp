// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/EntryDirectory.h>

#include <mutex>
#include <utility>

namespace Tavrin::EntryDirectory
{

namespace
{

struct Directory {
    std::mutex mutex;
    Lookup lookup;
};

Directory &directory()
{
    static Directory instance;
    return instance;
}

} // namespace

void setLookup(Lookup lookup)
{
    const std::lock_guard lock(directory().mutex);
    directory().lookup = std::move(lookup);
}

std::shared_ptr<SpecificationEntry> entry(const QString &label)
{
    Lookup lookup;
    {
        const std::lock_guard lock(directory().mutex);
        lookup = directory().lookup;
    }
    return lookup ? lookup(label) : nullptr;
}

} // namespace Tavrin::EntryDirectory
