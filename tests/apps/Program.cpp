// SPDX-License-Identifier: Apache-2.0
#include "Program.h"

#include <QJsonDocument>
#include <QProcess>

#include <stdexcept>

#include <support/Test.h>

namespace Tavrin::Testing
{

namespace
{

QJsonDocument parsed(const QString &text)
{
    QJsonParseError error{};
    QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (document.isNull())
        throw std::runtime_error((error.errorString() + u'\n' + text).toStdString());
    return document;
}

} // namespace

QJsonObject ProgramRun::object() const
{
    return parsed(output).object();
}

QJsonArray ProgramRun::array() const
{
    return parsed(output).array();
}

void expectRefusal(const ProgramRun &run, const QString &fault)
{
    SCOPED_TRACE(fault.toStdString());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, QString());
    EXPECT_THAT(run.errors, AllOf(Begins(u"tavrin: "), Holds(fault)));
    EXPECT_EQ(run.errors.count(u'\n'), 1) << run.errors.toStdString();
}

ProgramRun runTavrin(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TAVRIN_PROGRAM), arguments);
    const bool hasEnded =
        process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    return {hasEnded ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace Tavrin::Testing
