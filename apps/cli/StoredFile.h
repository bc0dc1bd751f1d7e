// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QUrl>

#include <Tavrin/model/Specification.h>

namespace Tavrin::Cli
{

/// How the program shows a file that was imported.
namespace StoredFile
{

/// Its name, where it lies, and the specification that it is bound to, if any.
void print(const QUrl &file, const Specification *specification);
QJsonObject json(const QUrl &file, const Specification *specification);

} // namespace StoredFile

} // namespace Tavrin::Cli
