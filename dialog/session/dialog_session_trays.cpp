// SPDX-License-Identifier: MIT
// What a printer that tells of its trays has to do with the options.
#include "dialog/session/dialog_session.h"

#include "dialog/session/seen_printers.h"
#include "platform/foundation/display_text.h"

#include <algorithm>

namespace halvern {

namespace {

const QString kPaperFeed = QStringLiteral("PaperFeed");

bool isColourless(const PpdModel& model)
{
    return model.value(QStringLiteral("ColorModel")).contains(QLatin1StringView("gray"), Qt::CaseInsensitive);
}

bool isSamePaper(const TrayPaper& a, const TrayPaper& b)
{
    return a.type == b.type && a.points == b.points && a.isRoll == b.isRoll;
}

} // namespace

QList<TrayPaper> DialogSession::trays() const
{
    const bool hasOwnFeed = model() && model()->choiceCount(kPaperFeed) > 0;
    return model() && !hasOwnFeed ? report().trays : QList<TrayPaper>();
}

int DialogSession::trayInUse() const
{
    return model() ? halvern::trayInUse(*model(), trays()) : -1;
}

std::optional<NotLoaded> DialogSession::notLoaded() const
{
    return model() ? findNotLoaded(*model(), trays()) : std::nullopt;
}

QString DialogSession::lowSupplies() const
{
    return model() ? halvern::lowSupplies(report().supplies, !isColourless(*model())) : QString();
}

void DialogSession::useTray(int tray)
{
    const QList<TrayPaper> papers = trays();
    if (tray < 0 || tray >= papers.size())
        return;
    setAsTray(papers[tray]);
    inUse_ = papers[tray];
}

QList<SideChange> DialogSession::setAsTray(const TrayPaper& paper)
{
    const TrayChoice choice = choiceFor(*model(), paper);
    return options_.chooseTogether({{QStringLiteral("PageSize"), choice.page},
                                    {QStringLiteral("InputSlot"), choice.slot},
                                    {QStringLiteral("MediaType"), choice.type}});
}

// Whoever prints from a tray and puts other paper into it means to print on that.
void DialogSession::takeReport()
{
    const QList<TrayPaper> now = trays();
    const int used = model() ? halvern::trayInUse(*model(), lastTrays_) : -1;
    if (used >= 0)
        inUse_ = lastTrays_[used];
    const bool isUsed = inUse_ && model() && halvern::trayInUse(*model(), {*inUse_}) == 0;
    if (!isUsed)
        inUse_.reset();
    const bool isLaidOut = document() && document()->isHere;
    const auto refilled = std::ranges::find_if(now, [this](const TrayPaper& paper) {
        return inUse_ && paper.source == inUse_->source && !isSamePaper(paper, *inUse_);
    });
    // Two papers in one tray, as some say of a feed: then none of them has replaced the other.
    const bool isStillThere = inUse_ && std::ranges::any_of(now, [this](const TrayPaper& paper) {
                                  return paper.source == inUse_->source && isSamePaper(paper, *inUse_);
                              });
    lastTrays_ = now;
    if (refilled != now.end() && !isStillThere && !isLaidOut && request_.isAttended) {
        inUse_ = *refilled;
        const QList<SideChange> changes = setAsTray(*refilled);
        if (!changes.isEmpty())
            Q_EMIT trayRefilled(tr("\"%1\" has other paper now, and the page follows: %2, %3.")
                                    .arg(isolated(trayText(*model(), *refilled)),
                                         isolated(paperInWords(*model(), *refilled)),
                                         isolated(paperTypeText(*model(), *refilled))));
    }
    // One that its server knows may be switched off all the same.
    if (report().isThere && !report().isSilent && request_.remembers)
        SeenPrinters::note(printerName());
    Q_EMIT reportChanged();
}

} // namespace halvern
