// SPDX-License-Identifier: MIT
#include "dialog/job/job_read_back.h"

#include "dialog/job/ipp_options.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/list_text.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

constexpr qsizetype kMostTold = 8;

struct JobReadBackWords {
    Q_DECLARE_TR_FUNCTIONS(JobReadBack)
};

// A server's account of a job begins with one of these.
constexpr std::array kAccounts{"job-",        "time-at-",   "date-time-at-", "document-",     "printer-",
                               "attributes-", "number-of-", "original-",     "output-device-"};

// Among them, what decides how a job is printed.
constexpr std::array kOptionsOfJobs{"job-sheets", "job-hold-until", "job-priority", "job-billing",
                                    "printer-resolution"};

struct Filled {
    const char* name;
    const char* value; ///< that a server fills in, and that changes nothing
};

constexpr std::array kFilledIn{
    Filled{"job-sheets", "none,none"},
    Filled{"job-sheets", "none"},
    Filled{"job-hold-until", "no-hold"},
    Filled{"job-priority", "50"},
};

QString text(ipp_attribute_t* attribute)
{
    const size_t length = ippAttributeString(attribute, nullptr, 0);
    QByteArray bytes(qsizetype(length) + 1, '\0');
    ippAttributeString(attribute, bytes.data(), size_t(bytes.size()));
    bytes.chop(1);
    return QString::fromUtf8(bytes);
}

bool isAccount(const QByteArray& name)
{
    return std::ranges::none_of(kOptionsOfJobs, [&](const char* option) { return name == option; }) &&
           std::ranges::any_of(kAccounts, [&](const char* account) { return name.startsWith(account); });
}

bool changesNothing(const QByteArray& name, const QString& value)
{
    return std::ranges::any_of(kFilledIn, [&](const Filled& row) {
        return name == row.name && value == QLatin1StringView(row.value);
    });
}

// The server gives a second banner page to who asked for one only.
bool isSame(const QString& name, const QString& sent, const QString& held)
{
    return sent == held ||
           (name == QLatin1StringView("job-sheets") && held == sent + QStringLiteral(",none"));
}

QString told(const QString& key, const QString& value)
{
    return isolated(key + QLatin1Char('=') + value, 120);
}

QString listed(QStringList texts)
{
    if (texts.size() > kMostTold)
        texts = texts.mid(0, kMostTold) << QStringLiteral("\u2026");
    return listText(texts);
}

} // namespace

JobReadBack compareJob(const OptionValues& sent, _ipp_s* answer)
{
    JobReadBack result{true, {}, {}};
    // As attributes, because the server gives some of them a type of its own.
    const cups::Ipp ours(ippNew());
    for (const OptionValue& option : sent) {
        const ipp_attribute_t* held = ippFindAttribute(answer, option.key.toUtf8().constData(), IPP_TAG_ZERO);
        const bool isText =
            held && !ippFindAttribute(answer, option.key.toUtf8().constData(), IPP_TAG_BEGIN_COLLECTION);
        addJobOption(ours.get(), option, isText ? Collections::asText : Collections::whole);
    }
    for (ipp_attribute_t* a = ippFirstAttribute(ours.get()); a; a = ippNextAttribute(ours.get())) {
        ipp_attribute_t* held = ippFindAttribute(answer, ippGetName(a), IPP_TAG_ZERO);
        const QString name = QString::fromUtf8(ippGetName(a));
        if (!held)
            result.changed.append({name, text(a), std::nullopt});
        else if (!isSame(name, text(a), text(held)))
            result.changed.append({name, text(a), text(held)});
    }
    for (ipp_attribute_t* a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        const QByteArray name(ippGetName(a));
        if (name.isEmpty() || ippGetGroupTag(a) != IPP_TAG_JOB || isAccount(name) ||
            ippFindAttribute(ours.get(), name.constData(), IPP_TAG_ZERO))
            continue;
        if (const QString value = text(a); !changesNothing(name, value))
            result.added.append({QString::fromUtf8(name), value});
    }
    return result;
}

void JobReadBack::conceal(const QSet<QString>& secrets)
{
    for (OptionValue& option : added) {
        if (secrets.contains(option.key))
            option.value = concealed();
    }
    for (ChangedOption& option : changed) {
        if (!secrets.contains(option.key))
            continue;
        option.sent = concealed();
        if (option.held)
            option.held = concealed();
    }
}

JobReadBack readBackJob(cups::Connection& server, const QString& queue, int jobId, const OptionValues& sent)
{
    if (!server.isConnected())
        return {};
    cups::Ipp request = cups::newRequest(IPP_OP_GET_JOB_ATTRIBUTES, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "all");
    const cups::Ipp answer = server.request(std::move(request), "/jobs/");
    return server.failed(answer) ? JobReadBack() : compareJob(sent, answer.get());
}

QString readBackSentence(const JobReadBack& job, int jobId)
{
    if (!job.isKnown)
        return JobReadBackWords::tr("The print server does not tell what it holds of job %1.").arg(jobId);
    if (job.isEqual())
        return JobReadBackWords::tr("The print server holds job %1 exactly as it was sent.").arg(jobId);
    QStringList added;
    for (const OptionValue& option : job.added)
        added.append(told(option.key, option.value));
    QStringList changed;
    for (const ChangedOption& option : job.changed)
        changed.append(option.held ? JobReadBackWords::tr("%1 instead of %2")
                                         .arg(told(option.key, *option.held), isolated(option.sent, 120))
                                   : JobReadBackWords::tr("without %1").arg(told(option.key, option.sent)));
    QStringList sentences;
    if (!added.isEmpty())
        sentences.append(JobReadBackWords::tr("Added to job %1 by the print server or the queue: %2.")
                             .arg(QString::number(jobId), listed(added)));
    if (!changed.isEmpty())
        sentences.append(JobReadBackWords::tr("Changed in job %1 by the print server: %2.")
                             .arg(QString::number(jobId), listed(changed)));
    return sentences.join(QLatin1Char(' '));
}

} // namespace halvern
