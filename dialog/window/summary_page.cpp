// SPDX-License-Identifier: MIT
#include "dialog/window/summary_page.h"

#include "dialog/job/job_in_words.h"
#include "dialog/options/ppd_keywords.h"
#include "dialog/preview/preview_widget.h"
#include "dialog/window/folded_list.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/numbers.h"
#include "platform/maker/backprint_text.h"
#include "platform/maker/summary_rules.h"
#include "platform/toolkit/plain_text.h"
#include "platform/toolkit/table_markup.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

// More than anybody reads, and few enough to be laid out at once.
constexpr qsizetype kMostLines = 100;
constexpr qsizetype kMostOff = 100;

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

QString inOneLine(const JobInWords& job)
{
    QStringList parts = job.problem.isEmpty() ? job.parts : job.parts + QStringList{job.problem};
    std::ranges::transform(parts, parts.begin(), itemText);
    return listText(parts);
}

} // namespace

SummaryPage::SummaryPage(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      lead_(new QLabel(this)),
      text_(new QLabel(this)),
      all_(new FoldedList(
          tr("All other settings"), [this](RowsOnDemand& rows) { fillAll(rows); }, this)),
      sent_(new FoldedList(
          tr("The options as they are sent"), [this](RowsOnDemand& rows) { fillSent(rows); }, this))
{
    setObjectName(QStringLiteral("summaryPage"));
    text_->setObjectName(QStringLiteral("summaryText"));
    all_->setObjectName(QStringLiteral("allSettings"));
    sent_->setObjectName(QStringLiteral("sentOptions"));
    QFont large = lead_->font();
    large.setBold(true);
    lead_->setFont(large);
    for (QLabel* label : {lead_, text_}) {
        label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    auto* copy = new QPushButton(tr("Cop&y"), this);
    copy->setObjectName(QStringLiteral("copySummary"));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, &SummaryPage::copy);
    auto* top = new QHBoxLayout;
    top->addWidget(lead_, 1);
    top->addWidget(copy, 0, Qt::AlignTop);
    connect(&session, &DialogSession::printerReady, this, [this] { others_.clear(); });
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(text_);
    column->addWidget(all_);
    column->addWidget(sent_);
    column->addStretch();
}

// In panels, or among what every job has.
QSet<QString> SummaryPage::shownElsewhere() const
{
    QSet<QString> keys{kPageSize, QStringLiteral("Collate")};
    for (const std::shared_ptr<Panel>& panel : session_.panels()) {
        for (const QString& key : panel->supportedPPDOptionKeys())
            keys.insert(key);
    }
    return keys;
}

SummaryPage::Line SummaryPage::line(const QString& key, const QString& title, const QString& value) const
{
    if (!changed_.contains(key))
        return {title, value};
    const QString byDefault = session_.printerDefaults().value(key);
    return {title, value, inUsersNumbers(session_.model()->choiceText(key, byDefault))};
}

QList<SummaryPage::Line> SummaryPage::jobLines() const
{
    QList<Line> lines{{tr("Printer"), session_.printerName()}};
    const PpdModel* model = session_.model();
    if (!model)
        return lines;
    lines.append(
        line(kPageSize, tr("Paper size"), inUsersNumbers(model->choiceText(kPageSize, valueOf(kPageSize)))));
    if (!session_.document())
        lines.append({tr("Photo size"), scalingText(session_.page().scaling)});
    if (!session_.photos().empty()) {
        const PageLayout layout = session_.layoutFor(session_.photos().front());
        lines.append({tr("Printed area"), pageSizeText(layout.visible().size())});
        const std::vector<size_t> printed = session_.printedPhotos();
        const QString count = QString::number(session_.photos().size());
        lines.append({tr("Pages"), printed.size() == session_.photos().size()
                                       ? count
                                       : tr("%1 of %2").arg(rangesOf(printed), count)});
        lines.append({tr("Job title"), session_.jobTitle()});
    }
    lines.append({tr("Copies"), options_.value(QStringLiteral("copies"))});
    return lines;
}

QString SummaryPage::valueOf(const QString& key) const
{
    const QString sent = options_.value(key);
    return session_.model() ? valueInModel(*session_.model(), key, sent) : sent;
}

bool SummaryPage::saysNothing(const QString& key) const
{
    return maker::saysNothing(key, [this](const QString& other) { return options_.value(other); });
}

// Nobody chose it, and it does nothing.
bool SummaryPage::isOff(const QString& key) const
{
    static const QStringList kOff{QStringLiteral("none"), QStringLiteral("false"), QStringLiteral("off"),
                                  QStringLiteral("no")};
    const QString value = options_.value(key);
    if (changed_.contains(key))
        return false;
    const bool isZero = !value.isEmpty() && leadingDouble(value) == 0.0 && value.front().isDigit();
    return isZero || kOff.contains(value.toLower());
}

// What no panel tells, as far as somebody changed it.
QList<SummaryPage::Line> SummaryPage::otherLines()
{
    const QSet<QString> owned = shownElsewhere();
    const PpdModel* model = session_.model();
    QStringList keys(changed_.cbegin(), changed_.cend());
    keys.removeIf([&](const QString& key) { return owned.contains(key) || saysNothing(key); });
    keys.sort();
    QList<Line> lines;
    for (const QString& key : std::as_const(keys)) {
        if (lines.size() == kMostLines)
            ++notListed_;
        else
            lines.append(
                line(key, model->optionText(key), inUsersNumbers(model->choiceText(key, valueOf(key)))));
    }
    return lines;
}

QList<SummaryPage::Line> SummaryPage::panelLines(halvern::Panel& panel)
{
    QMap<QString, QString> told = panel.summaryInfo();
    QList<Line> lines;
    const PpdModel* model = session_.model();
    for (const QString& key : panel.supportedPPDOptionKeys()) {
        const QString title = model->optionText(key);
        // A panel tells the choices that the PPD lists; a value of the user's own has no words there.
        QString value = told.contains(title) ? inUsersNumbers(told.take(title))
                                             : model->choiceText(key, model->kept().value(key));
        if (isBackLine(key))
            value = backprint::stringWithUnsafeCharacters(value);
        if (value.isEmpty() || saysNothing(key))
            continue;
        if (isOff(key))
            off_.append(title);
        else
            lines.append(line(key, title, value));
    }
    for (auto it = told.cbegin(); it != told.cend(); ++it)
        lines.append({it.key(), it.value()});
    return lines;
}

void SummaryPage::collect()
{
    sections_ = {};
    off_.clear();
    notListed_ = 0;
    options_ = session_.valuesToSend();
    changed_.clear();
    for (const QString& key : options_.differingFrom(session_.printerDefaults())) {
        const auto byDefault = session_.printerDefaults().constFind(key);
        // What the printer has no default for is a choice, too.
        const bool isKnown = byDefault != session_.printerDefaults().cend() ||
                             (session_.model() && session_.model()->choiceCount(key) > 0);
        if (isKnown && valueOf(key) != session_.printerDefaults().value(key))
            changed_.insert(key);
    }
    sections_.append({QString(), jobLines()});
    if (!session_.model())
        return;
    for (const std::shared_ptr<halvern::Panel>& panel : session_.panels())
        sections_.append({panel->panelName().value_or(QString()), panelLines(*panel)});
    sections_.append({session_.hasCustomPanels() ? tr("More options") : tr("Options"), otherLines()});
}

QString SummaryPage::row(const Line& line) const
{
    const bool isMarked = !line.byDefault.isEmpty();
    QString value =
        isMarked ? QStringLiteral("<b>%1</b>").arg(markupText(line.value)) : markupText(line.value);
    if (isMarked)
        value += QStringLiteral("<font color=\"%1\"> &nbsp;%2</font>")
                     .arg(palette().color(QPalette::PlaceholderText).name(),
                          markupText(tr("printer's default: %1").arg(line.byDefault)));
    return rowMarkup({QStringLiteral("<td width='16' style='padding:3px 0'><font color=\"%2\">%1</font></td>")
                          .arg(isMarked ? QStringLiteral("\u25CF") : QString(),
                               palette().color(QPalette::Highlight).name()),
                      QStringLiteral("<td style='padding:3px 0'>%1</td>").arg(markupText(line.title)),
                      QStringLiteral("<td width='16'></td>"),
                      QStringLiteral("<td style='padding:3px 0'>%1</td>").arg(value)});
}

QString SummaryPage::markup() const
{
    QString rows;
    for (const Section& section : sections_) {
        if (!section.title.isEmpty() && !section.lines.isEmpty())
            rows += rowMarkup({QStringLiteral("<td></td>"),
                               QStringLiteral("<td colspan='3' style='padding-top:14px'><b>%1</b></td>")
                                   .arg(markupText(section.title))});
        for (const Line& line : section.lines)
            rows += row(line);
    }
    const auto paragraph = [](const QString& text) {
        return QStringLiteral("<p style='margin-top:14px'>%1</p>").arg(markupText(text));
    };
    QString below;
    if (notListed_ > 0)
        below += paragraph(tr("%1 more are in the list of all other settings.").arg(notListed_));
    QStringList off = off_;
    if (off.size() > kMostOff)
        off = off.mid(0, kMostOff) << QStringLiteral("\u2026");
    if (!off.isEmpty())
        below += paragraph(tr("Off: %1").arg(listText(off)));
    return tableMarkup(rows) + below;
}

void SummaryPage::refresh()
{
    collect();
    const PpdModel* model = session_.model();
    setPlainText(lead_, inOneLine(session_.jobInWords()));
    setMarkup(text_, markup());
    for (FoldedList* list : {all_, sent_}) {
        list->setVisible(model != nullptr);
        list->refresh();
    }
}

void SummaryPage::fillAll(RowsOnDemand& rows)
{
    const PpdModel* model = session_.model();
    if (model && others_.isEmpty()) {
        const QSet<QString> owned = shownElsewhere();
        others_ = model->keys();
        others_.removeIf(
            [&](const QString& key) { return owned.contains(key) || model->isInstallable(key); });
    }
    rows.setRows(others_, [this](const QString& key) -> RowsOnDemand::Row {
        const PpdModel* now = session_.model();
        if (!now)
            return {};
        return {now->optionText(key), inUsersNumbers(now->choiceText(key, valueOf(key))),
                changed_.contains(key)};
    });
}

QString SummaryPage::asSent(const QString& key) const
{
    const PpdModel* model = session_.model();
    return model && model->isSecret(key) ? concealed() : options_.value(key);
}

void SummaryPage::fillSent(RowsOnDemand& rows) const
{
    QStringList keys;
    for (const OptionValue& option : options_.list())
        keys.append(option.key);
    rows.setRows(keys, [this](const QString& key) -> RowsOnDemand::Row {
        return {key, asSent(key), changed_.contains(key)};
    });
}

QString SummaryPage::asText() const
{
    QString text = lead_->text() + QLatin1Char('\n');
    for (const Section& section : sections_) {
        if (section.lines.isEmpty())
            continue;
        text += QLatin1Char('\n') + (section.title.isEmpty() ? QString() : section.title + QLatin1Char('\n'));
        for (const Line& line : section.lines)
            text += line.title + QStringLiteral(": ") + line.value + QLatin1Char('\n');
    }
    if (!off_.isEmpty())
        text += QLatin1Char('\n') + tr("Off: %1").arg(listText(off_)) + QLatin1Char('\n');
    text += QLatin1Char('\n') + tr("The options as they are sent") + QLatin1Char('\n');
    for (const OptionValue& option : options_.list())
        text += option.key + QLatin1Char('=') + asSent(option.key) + QLatin1Char('\n');
    return text;
}

void SummaryPage::copy() const
{
    QGuiApplication::clipboard()->setText(asText()); // plain: the clipboard's
}

void SummaryPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && isVisible())
        setMarkup(text_, markup());
    QWidget::changeEvent(event);
}

} // namespace halvern
