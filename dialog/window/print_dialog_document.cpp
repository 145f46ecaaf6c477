// SPDX-License-Identifier: MIT
// A document of another program's, of which no page is shown.
#include "dialog/window/print_dialog.h"

#include "dialog/job/job_in_words.h"
#include "dialog/preview/preview_widget.h"
#include "dialog/window/preview_side.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QPushButton>

namespace halvern {

namespace {

constexpr int kLongestApplication = 80;
constexpr int kLongestButton = 30;
constexpr qsizetype kPaperParts = 2; // of a job in words: the page's size, and what it is on

} // namespace

QString PrintDialog::printText() const
{
    const BlindDocument* document = session_.document();
    const QString wanted = document ? displayText(document->acceptText, kLongestButton) : QString();
    return wanted.isEmpty() ? tr("&Print") : wanted;
}

void PrintDialog::showDocument()
{
    const BlindDocument& document = *session_.document();
    const QString application = displayText(document.application, kLongestApplication);
    const QString title = displayText(session_.jobTitle(), kLongestApplication);
    BlankSheet sheet{session_.sheet(),
                     application.isEmpty() ? tr("An application") : application,
                     {},
                     session_.isTwoSided()};
    if (const std::optional<QMarginsF> margins = session_.documentMargins())
        sheet.layout.imageable &= QRectF(QPointF(), sheet.layout.page).marginsRemoved(*margins);
    if (!title.isEmpty() && title != application)
        sheet.lines.append(title);
    sheet.lines.append(document.isHere
                           ? tr("The document is printed as it came. Its pages cannot be shown here.")
                           : tr("The application makes its pages afterwards, for this sheet."));
    const QStringList paper = session_.jobInWords().parts.mid(0, kPaperParts);
    if (!paper.isEmpty())
        sheet.lines.append(displayText(listText(paper)));
    previewSide_->showBlank(sheet);
    setPlainTitle(this, application.isEmpty() ? tr("Print") : tr("Print - %1").arg(application));
}

} // namespace halvern
