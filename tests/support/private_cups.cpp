// SPDX-License-Identifier: MIT
#include "tests/support/private_cups.h"
#include "tests/support/text.h"

#include <QFile>
#include <QRegularExpression>

#include <cups/cups.h>

#include <memory>

namespace halvern {
namespace {

void setEnvironment(const QByteArray& name, const std::optional<QByteArray>& value)
{
    if (value)
        qputenv(name.constData(), *value);
    else
        qunsetenv(name.constData());
}

} // namespace

ProgramResult runPrivateCups(const QStringList& arguments)
{
    return runProgram(q(HALVERN_TEST_SCRIPTS "/private-cups"), arguments,
                      {{"HALVERN_PRINTER_BIN", HALVERN_TEST_PRINTER_BIN}});
}

std::map<QByteArray, QByteArray> parseAssignments(const QString& text)
{
    static const QRegularExpression kLine(q("^export ([A-Z_]+)='(.*)'$"),
                                          QRegularExpression::MultilineOption);
    std::map<QByteArray, QByteArray> found;
    for (auto lines = kLine.globalMatch(text); lines.hasNext();) {
        const auto line = lines.next();
        QString value = line.captured(2);
        value.replace(q("'\\''"), q("'"));
        found[line.captured(1).toLatin1()] = value.toUtf8();
    }
    return found;
}

QStringList jobAttribute(int job, const char* name)
{
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const std::unique_ptr<ipp_t, decltype(&ippDelete)> answer(
        cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/jobs"), &ippDelete);
    ipp_attribute_t* found = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO);
    QStringList values;
    for (int i = 0; found && i < ippGetCount(found); ++i)
        values.append(QString::fromUtf8(ippGetString(found, i, nullptr)));
    return values;
}

PrivateCups::PrivateCups()
{
    const ProgramResult result = runPrivateCups({q("start"), dir()});
    if (result.status != 0)
        qFatal("the private print server does not start: %s", qPrintable(result.error));
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
    const ProgramResult result = runPrivateCups({q("stop"), dir()});
    running_ = false;
    error_ = result.error;
    return result.status == 0;
}

bool PrivateCups::addQueue(const QString& name, const QString& ppd, const QString& uri,
                           const QStringList& more)
{
    QStringList arguments = {q("add-queue"), dir(), name};
    if (!ppd.isEmpty())
        arguments << q("--ppd") << ppd;
    if (!uri.isEmpty())
        arguments << q("--uri") << uri;
    const ProgramResult result = runPrivateCups(arguments + more);
    error_ = result.error;
    return result.status == 0;
}

QString PrivateCups::dir() const
{
    return folder_.path();
}

QString PrivateCups::jobsDir() const
{
    return dir() + q("/jobs");
}

QString PrivateCups::jobFile(int job, const QString& file) const
{
    return q("%1/%2/%3").arg(jobsDir()).arg(job).arg(file);
}

std::optional<std::map<QString, QString>> PrivateCups::receivedOptions(int job) const
{
    QFile file(jobFile(job, q("options.txt")));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QString text = QString::fromUtf8(file.readAll());
    text.replace(q("\n\t"), q("\v"));
    std::map<QString, QString> options;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const qsizetype equals = line.indexOf(u'=');
        options[line.left(equals)] = line.mid(equals + 1).replace(u'\v', u'\n');
    }
    return options;
}

} // namespace halvern
