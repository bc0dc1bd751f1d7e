// SPDX-License-Identifier: Apache-2.0
#include <reader/panes/Complaint.h>

#include <Tavrin/interface/toolkit/Sheet.h>

namespace Tavrin::Reader
{

void complain(QWidget &window, const QString &message, const std::exception &error)
{
    Sheet::showMessage(window, message, QString::fromUtf8(error.what()));
}

} // namespace Tavrin::Reader
