// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/HostApplication.h>

#include <QCoreApplication>
#include <QStandardPaths>

#include <mutex>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

struct ChosenIdentifier {
    std::mutex mutex;
    QString text;

    static ChosenIdentifier &shared()
    {
        static ChosenIdentifier identifier;
        return identifier;
    }
};

QString chosenIdentifier()
{
    ChosenIdentifier &chosen = ChosenIdentifier::shared();
    const std::scoped_lock lock(chosen.mutex);
    return chosen.text;
}

QString applicationIdentifier()
{
    const QString application = QCoreApplication::applicationName();
    const QString organization = QCoreApplication::organizationName();
    return organization.isEmpty() || application.isEmpty() ? application
                                                           : organization + u'.' + application;
}

} // namespace

std::optional<QString> userDataDirectory()
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

QString libraryIdentifier()
{
    return u"tavrin"_s;
}

QString hostIdentifier()
{
    const QString chosen = chosenIdentifier();
    QString identifier = chosen.isEmpty() ? applicationIdentifier() : chosen;
    identifier.replace(u'/', u'_').remove(QChar(u'\0'));
    const bool leadsElsewhere = identifier == "."_L1 || identifier == ".."_L1;
    return leadsElsewhere ? QString() : identifier;
}

void setHostIdentifier(const QString &identifier)
{
    ChosenIdentifier &chosen = ChosenIdentifier::shared();
    const std::scoped_lock lock(chosen.mutex);
    chosen.text = identifier;
}

} // namespace Tavrin
