// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <exception>

class QWidget;

namespace Tavrin::Reader
{

/// Says over a window what could not be done, and why.
void complain(QWidget &window, const QString &message, const std::exception &error);

} // namespace Tavrin::Reader
