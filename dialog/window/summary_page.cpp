// SPDX-License-Identifier: MIT
#include "dialog/window/summary_page.h"

#include "dialog/preview/preview_widget.h"
#include "dialog/window/options_page.h"
#include "platform/foundation/numbers.h"
#include "platform/maker/backprint_text.h"
#include "platform/maker/summary_rules.h"
#include "platform/printing/ppd.h"
#include "platform/toolkit/plain_text.h"

#include <algorithm>

namespace halvern {

namespace {

const QString kPageSize = QStringLiteral("PageSize");

// More than anybody reads, and few enough to be laid out at once.
constexpr qsizetype kMostLines = 100;
constexpr qsizetype kMostOff = 100;

QString heading(const QString& text)
{
    return QStringLiteral("<tr><td colspan='2' style='padding-top:14px'><b>%1</b></td></tr>")
        .arg(markupText(text));
}

QString tableRow(const QString& name, const QString& value)
{
    return QStringLiteral(
               "<tr><td style='padding:3px 18px 3px 0'>%1</td><td style='padding:3px 0'><b>%2</b></td></tr>")
        .arg(markupText(name), markupText(value));
}

// A line for the back of the picture is kept in the form that travels, and read in the one that prints.
bool isBackLine(const QString& key)
{
    return key.startsWith(QLatin1StringView("CVP"));
}

QString scalingText(Scaling scaling)
{
    switch (scaling) {
    case Scaling::fit:
        return SummaryPage::tr("Fit");
    case Scaling::fill:
        return SummaryPage::tr("Fill");
    case Scaling::actualSize:
        break;
    }
    return SummaryPage::tr("Actual size");
}

} // namespace

SummaryPage::SummaryPage(DialogSession& session, QWidget* parent) : QLabel(parent), session_(session)
{
    setObjectName(QStringLiteral("summaryPage"));
    setAlignment(Qt::AlignTop | Qt::AlignLeading);
    setMargin(9);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

QList<SummaryPage::Line> SummaryPage::jobLines() const
{
    QList<Line> lines{{tr("Printer"), session_.printerName()}};
    const PpdModel* model = session_.model();
    if (!model)
        return lines;
    lines.append({tr("Paper size"), inUsersNumbers(model->choiceText(kPageSize, model->value(kPageSize)))});
    lines.append({tr("Photo size"), scalingText(session_.page().scaling)});
    if (!session_.photos().empty()) {
        const PageLayout layout = session_.layoutFor(session_.photos().front());
        lines.append({tr("Printed area"), pageSizeText(layout.visible().size())});
        lines.append({tr("Pages"), QString::number(session_.chosenPages().pages.size())});
    }
    lines.append({tr("Copies"), QString::number(session_.page().copies)});
    return lines;
}

// Nobody chose it, and it does nothing.
bool SummaryPage::isOff(const QString& key) const
{
    static const QStringList kOff{QStringLiteral("none"), QStringLiteral("false"), QStringLiteral("off"),
                                  QStringLiteral("no")};
    PpdModel& model = *session_.model();
    const QString value = model.value(key);
    if (value != ppd::defaultChoice(model.file(), key))
        return false;
    const bool isZero = !value.isEmpty() && leadingDouble(value) == 0.0 && value.front().isDigit();
    return isZero || kOff.contains(value.toLower());
}

QList<SummaryPage::Line> SummaryPage::linesOf(const QStringList& keys)
{
    const PpdModel* model = session_.model();
    const QMap<QString, QString> values = model->values();
    QList<Line> lines;
    for (const QString& key : keys) {
        if (maker::saysNothing(key, values))
            continue;
        if (isOff(key))
            off_.append(model->optionText(key));
        else if (lines.size() == kMostLines)
            ++notListed_;
        else
            lines.append({model->optionText(key), inUsersNumbers(model->choiceText(key, values.value(key)))});
    }
    return lines;
}

QList<SummaryPage::Line> SummaryPage::panelLines(halvern::Panel& panel)
{
    QMap<QString, QString> told = panel.summaryInfo();
    QList<Line> lines;
    const PpdModel* model = session_.model();
    const QMap<QString, QString> values = model->values();
    for (const QString& key : panel.supportedPPDOptionKeys()) {
        const QString title = model->optionText(key);
        // A panel tells the choices that the PPD lists; a value of the user's own has no words there.
        QString value = told.contains(title) ? inUsersNumbers(told.take(title))
                                             : model->choiceText(key, model->kept().value(key));
        if (isBackLine(key))
            value = backprint::stringWithUnsafeCharacters(value);
        if (value.isEmpty() || maker::saysNothing(key, values))
            continue;
        if (isOff(key))
            off_.append(title);
        else
            lines.append({title, value});
    }
    for (auto it = told.cbegin(); it != told.cend(); ++it)
        lines.append({it.key(), it.value()});
    return lines;
}

void SummaryPage::refresh()
{
    off_.clear();
    notListed_ = 0;
    QString rows;
    const auto add = [&](const QList<Line>& lines) {
        for (const Line& line : lines)
            rows += tableRow(line.title, line.value);
    };
    add(jobLines());
    if (session_.model()) {
        for (const std::shared_ptr<halvern::Panel>& panel : session_.panels()) {
            const QList<Line> lines = panelLines(*panel);
            if (!lines.isEmpty())
                rows += heading(panel->panelName().value_or(QString()));
            add(lines);
        }
        QStringList others;
        for (const QString& key : optionsWithoutPanel(session_)) {
            if (!session_.model()->isInstallable(key))
                others.append(key);
        }
        const QList<Line> lines = linesOf(others);
        if (!lines.isEmpty())
            rows += heading(session_.hasCustomPanels() ? tr("More options") : tr("Options"));
        add(lines);
    }
    QString off;
    if (notListed_ > 0)
        off = QStringLiteral("<p style='margin-top:14px'>%1</p>")
                  .arg(markupText(tr("%1 more are on the page of options.").arg(notListed_)));
    if (off_.size() > kMostOff)
        off_ = off_.mid(0, kMostOff) << QStringLiteral("\u2026");
    if (!off_.isEmpty())
        off += QStringLiteral("<p style='margin-top:14px'>%1</p>")
                   .arg(markupText(tr("Off: %1").arg(off_.join(QStringLiteral(", ")))));
    setMarkup(this, QStringLiteral("<table>%1</table>%2").arg(rows, off));
}

} // namespace halvern
