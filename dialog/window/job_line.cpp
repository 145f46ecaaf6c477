// SPDX-License-Identifier: MIT
#include "dialog/window/job_line.h"

#include "dialog/job/job_in_words.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QEvent>

namespace halvern {

namespace {

constexpr int kLongestPart = 60;
constexpr int kLongestWarning = 120;

QString warningColour(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? QStringLiteral("#ff966e")
                                                             : QStringLiteral("#aa3c0a");
}

} // namespace

JobLine::JobLine(DialogSession& session, QWidget* parent) : QLabel(parent), session_(session)
{
    setObjectName(QStringLiteral("jobLine"));
    setWordWrap(true);
    setMinimumHeight(fontMetrics().lineSpacing()); // what is below stays where it is when the words come
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    connect(&soon_, &QTimer::timeout, this, &JobLine::refresh);
    const auto follow = [this] { soon_.start(); };
    connect(&session, &DialogSession::optionsChanged, this, follow);
    connect(&session, &DialogSession::offerChanged, this, follow);
    connect(&session, &DialogSession::reportChanged, this, follow);
    connect(&session, &DialogSession::photosChanged, this, follow);
    connect(&session, &DialogSession::printerSelected, this, follow);
    connect(&session, &DialogSession::printerFailed, this, follow);
    refresh();
}

void JobLine::refresh()
{
    soon_.stop();
    const JobInWords job = session_.jobInWords();
    QStringList parts;
    for (const QString& part : job.parts)
        parts.append(markupText(isolated(part, kLongestPart)));
    for (const auto& [words, form] :
         {std::pair(job.problem, QStringLiteral("<b><font color=\"%1\">%2</font></b>")),
          std::pair(job.warning, QStringLiteral("<font color=\"%1\">%2</font>"))}) {
        if (!words.isEmpty())
            parts.append(form.arg(warningColour(palette()), markupText(isolated(words, kLongestWarning))));
    }
    const QString markup = listText(parts);
    // Laying the same words out again costs more than working them out.
    if (markup == shown_)
        return;
    shown_ = markup;
    setMarkup(this, markup);
}

void JobLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        soon_.start();
    QLabel::changeEvent(event);
}

} // namespace halvern
