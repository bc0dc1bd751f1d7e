// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayView>

#include <string_view>

namespace Tavrin::English
{

/// Calls back for each line of a file, without its end.
template <typename Callback>
void forEachLine(QByteArrayView file, Callback &&callback)
{
    std::string_view rest(file.data(), static_cast<std::size_t>(file.size()));
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        callback(rest.substr(0, end));
        if (end == std::string_view::npos)
            return;
        rest.remove_prefix(end + 1);
    }
}

} // namespace Tavrin::English
