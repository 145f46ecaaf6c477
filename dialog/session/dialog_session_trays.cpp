// SPDX-License-Identifier: MIT
// What a printer that tells of its trays has to do with the options.
#include "dialog/options/ppd_keywords.h"
#include "dialog/session/dialog_session.h"

#include "dialog/session/seen_printers.h"
#include "platform/foundation/display_text.h"

#include <QCoreApplication>

#include <algorithm>

namespace halvern {

namespace {

const QString kMediaType = QStringLiteral("MediaType");

struct DialogSessionTraysWords {
    Q_DECLARE_TR_FUNCTIONS(RefilledTray)
};

// As far as the options are set for it.
QString followedInWords(const PpdModel& model, const TrayPaper& paper)
{
    const TrayChoice choice = choiceFor(model, paper);
    QStringList parts;
    if (!choice.page.isEmpty() && model.value(kPageSize) == choice.page)
        parts.append(isolated(paperInWords(model, paper)));
    if (!choice.type.isEmpty() && model.value(kMediaType) == choice.type)
        parts.append(isolated(paperTypeText(model, paper)));
    return parts.join(QStringLiteral(", "));
}

QString refilledInWords(const PpdModel& model, const TrayPaper& paper, bool hasChanged)
{
    const QString tray = isolated(trayText(model, paper));
    const QString followed = hasChanged ? followedInWords(model, paper) : QString();
    QString sentence =
        followed.isEmpty()
            ? DialogSessionTraysWords::tr("\"%1\" has other paper now.").arg(tray)
            : DialogSessionTraysWords::tr("\"%1\" has other paper now, and the page follows: %2.")
                  .arg(tray, followed);
    const QString kind = choiceFor(model, paper).type;
    const bool isOtherKind =
        !paper.type.isEmpty() && !model.value(kMediaType).isEmpty() && model.value(kMediaType) != kind;
    if (isOtherKind)
        sentence +=
            QLatin1Char(' ') +
            DialogSessionTraysWords::tr("Its kind, %1, could not be chosen: the paper type is still \"%2\".")
                .arg(isolated(paperTypeText(model, paper)),
                     isolated(model.choiceText(kMediaType, model.value(kMediaType))));
    return isOtherKind || !followed.isEmpty() ? sentence : QString();
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
    return model() ? halvern::lowSupplies(report().supplies, !look().isGray) : QString();
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
    return options_.chooseTogether(
        {{kPageSize, choice.page}, {QStringLiteral("InputSlot"), choice.slot}, {kMediaType, choice.type}});
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
        const bool hasChanged = !setAsTray(*refilled).isEmpty();
        const QString sentence = refilledInWords(*model(), *refilled, hasChanged);
        if (hasChanged && !sentence.isEmpty())
            Q_EMIT trayRefilled(sentence);
        else if (!sentence.isEmpty())
            Q_EMIT notice(sentence);
    }
    // One that its server knows may be switched off all the same.
    if (report().isThere && !report().isSilent && request_.remembers)
        SeenPrinters::note(printerName());
    Q_EMIT reportChanged();
}

} // namespace halvern
