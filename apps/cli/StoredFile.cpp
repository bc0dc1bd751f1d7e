// SPDX-License-Identifier: Apache-2.0
#include "StoredFile.h"

#include <QFileInfo>

#include "Console.h"

namespace Tavrin::Cli::StoredFile
{

using namespace Qt::StringLiterals;

void print(const QUrl &file, const Specification *specification)
{
    Console::print(Console::strong(file.fileName()));
    if (specification) {
        Console::print(u"    %1  ·  %2, %3"_s.arg(
            specification->title(), specification->identifier(), specification->revision()));
    }
    Console::print(u"    "_s + Console::faint(file.toLocalFile()));
}

QJsonObject json(const QUrl &file, const Specification *specification)
{
    QJsonObject object{{u"name"_s, file.fileName()},
                       {u"path"_s, file.toLocalFile()},
                       {u"bytes"_s, QFileInfo(file.toLocalFile()).size()}};
    if (specification) {
        object[u"specification"_s] = specification->identifier();
        object[u"revision"_s] = specification->revision();
        object[u"title"_s] = specification->title();
    }
    return object;
}

} // namespace Tavrin::Cli::StoredFile
