// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/StopWords.h>

#include <QFile>

#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/TerminalStyle.h>

/// A static library's resources are linked only if something names them. The macro works outside
/// of namespaces alone.
static void loadResources()
{
    Q_INIT_RESOURCE(enhance);
}

namespace Tavrin
{

using namespace Qt::StringLiterals;

QStringList readStopWords()
{
    loadResources();
    QFile file(u":/tavrin/stop_words.txt"_s);
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly)) {
        standardError(red(u"Error loading stop words: "_s + file.errorString()));
        return {};
    }
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

} // namespace Tavrin
