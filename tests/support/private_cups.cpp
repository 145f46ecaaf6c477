#include "tests/support/private_cups.h"

#include "tests/support/child_process.h"

#include <QFile>
#include <QRegularExpression>

#include <cups/cups.h>

namespace halvern {

namespace {

constexpr int kScriptTimeout = 60'000;

void setEnvironment(const QByteArray& name, const std::optional<QByteArray>& value)
{
    if (value)
        qputenv(name.constData(), *value);
    else
        qunsetenv(name.constData());
}

} // namespace

ScriptResult runPrivateCups(const QStringList& arguments)
{
    ChildProcess script;
    if (!script.start(QStringLiteral(HALVERN_TEST_SCRIPTS "/private-cups"), arguments,
                      {{"HALVERN_PRINTER_BIN", HALVERN_TEST_PRINTER_BIN}}))
        return {-1, QString(), QStringLiteral("scripts/private-cups does not start")};
    const int status = script.wait(kScriptTimeout);
    return {status, QString::fromUtf8(script.standardOutput()), QString::fromUtf8(script.standardError())};
}

std::map<QByteArray, QByteArray> parseAssignments(const QString& text)
{
    static const QRegularExpression kLine(QStringLiteral("^export ([A-Z_]+)='(.*)'$"),
                                          QRegularExpression::MultilineOption);
    std::map<QByteArray, QByteArray> found;
    for (auto lines = kLine.globalMatch(text); lines.hasNext();) {
        const auto line = lines.next();
        QString value = line.captured(2);
        value.replace(QStringLiteral("'\\''"), QStringLiteral("'"));
        found[line.captured(1).toLatin1()] = value.toUtf8();
    }
    return found;
}

PrivateCups::PrivateCups()
{
    const ScriptResult result = runPrivateCups({QStringLiteral("start"), dir()});
    if (result.status != 0) {
        error_ = result.error;
        return;
    }
    for (const auto& [name, value] : parseAssignments(result.output)) {
        saved_[name] = qEnvironmentVariableIsSet(name.constData()) ? std::optional(qgetenv(name.constData()))
                                                                   : std::nullopt;
        setEnvironment(name, value);
    }
    cupsSetServer(nullptr);
    running_ = true;
}

PrivateCups::~PrivateCups()
{
    stop();
    for (const auto& [name, value] : saved_)
        setEnvironment(name, value);
    cupsSetServer(nullptr);
}

bool PrivateCups::stop()
{
    if (!running_)
        return true;
    const ScriptResult result = runPrivateCups({QStringLiteral("stop"), dir()});
    running_ = false;
    error_ = result.error;
    return result.status == 0;
}

bool PrivateCups::addQueue(const QString& name, const QString& ppd, const QString& uri,
                           const QStringList& more)
{
    QStringList arguments = {QStringLiteral("add-queue"), dir(), name};
    if (!ppd.isEmpty())
        arguments << QStringLiteral("--ppd") << ppd;
    if (!uri.isEmpty())
        arguments << QStringLiteral("--uri") << uri;
    const ScriptResult result = runPrivateCups(arguments + more);
    error_ = result.error;
    return result.status == 0;
}

QString PrivateCups::dir() const
{
    return folder_.path();
}

QString PrivateCups::jobsDir() const
{
    return dir() + QStringLiteral("/jobs");
}

QString PrivateCups::jobFile(int job, const QString& file) const
{
    return QStringLiteral("%1/%2/%3").arg(jobsDir()).arg(job).arg(file);
}

std::optional<std::map<QString, QString>> PrivateCups::receivedOptions(int job) const
{
    QFile file(jobFile(job, QStringLiteral("options.txt")));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QString text = QString::fromUtf8(file.readAll());
    text.replace(QStringLiteral("\n\t"), QStringLiteral("\v"));
    std::map<QString, QString> options;
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        options[line.left(equals)] = line.mid(equals + 1).replace(QLatin1Char('\v'), QLatin1Char('\n'));
    }
    return options;
}

} // namespace halvern
