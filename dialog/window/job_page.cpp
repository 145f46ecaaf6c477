// SPDX-License-Identifier: MIT
#include "dialog/window/job_page.h"

#include "platform/toolkit/plain_text.h"

#include <QComboBox>
#include <QDateTime>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimeEdit>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

const QString kPriority = QStringLiteral("job-priority");
const QString kHold = QStringLiteral("job-hold-until");
const QString kSheets = QStringLiteral("job-sheets");
const QString kAtTime = QStringLiteral("at-time"); // of ours; the server is given the time itself
const QString kServerTime = QStringLiteral("HH:mm");
const QString kCoverPanel = QStringLiteral("CoverPageKind");
constexpr int kLongestTitle = 255;

struct NamedText {
    const char* keyword;
    const char* text;
};

constexpr std::array kHolds{
    NamedText{"no-hold", QT_TRANSLATE_NOOP("halvern::JobPage", "At once")},
    NamedText{"indefinite", QT_TRANSLATE_NOOP("halvern::JobPage", "When somebody releases it")},
    NamedText{"day-time", QT_TRANSLATE_NOOP("halvern::JobPage", "By day, from 6:00")},
    NamedText{"evening", QT_TRANSLATE_NOOP("halvern::JobPage", "In the evening, from 18:00")},
    NamedText{"night", QT_TRANSLATE_NOOP("halvern::JobPage", "At night, from 18:00")},
    NamedText{"second-shift", QT_TRANSLATE_NOOP("halvern::JobPage", "In the second shift, from 16:00")},
    NamedText{"third-shift", QT_TRANSLATE_NOOP("halvern::JobPage", "In the third shift, from 0:00")},
    NamedText{"weekend", QT_TRANSLATE_NOOP("halvern::JobPage", "At the weekend")},
};

constexpr std::array kBanners{
    NamedText{"none", QT_TRANSLATE_NOOP("halvern::JobPage", "None")},
    NamedText{"standard", QT_TRANSLATE_NOOP("halvern::JobPage", "Standard")},
    NamedText{"unclassified", QT_TRANSLATE_NOOP("halvern::JobPage", "Unclassified")},
    NamedText{"confidential", QT_TRANSLATE_NOOP("halvern::JobPage", "Confidential")},
    NamedText{"classified", QT_TRANSLATE_NOOP("halvern::JobPage", "Classified")},
    NamedText{"secret", QT_TRANSLATE_NOOP("halvern::JobPage", "Secret")},
    NamedText{"topsecret", QT_TRANSLATE_NOOP("halvern::JobPage", "Top secret")},
};

template <size_t N> QString textFor(const std::array<NamedText, N>& names, const QString& keyword)
{
    const auto found = std::ranges::find_if(
        names, [&](const NamedText& row) { return keyword == QLatin1StringView(row.keyword); });
    return found == names.end() ? displayText(keyword) : JobPage::tr(found->text);
}

// The server counts in universal time; the date only matters for the clock's changes.
QTime fromServer(const QString& time)
{
    const QTime read = QTime::fromString(time.left(5), kServerTime);
    return read.isValid() ? QDateTime(QDate::currentDate(), read, Qt::UTC).toLocalTime().time() : QTime();
}

QString toServer(const QTime& time)
{
    return QDateTime(QDate::currentDate(), time).toUTC().time().toString(kServerTime);
}

// A value that is not in the list gets a row.
void select(QComboBox* box, const QString& value, const QString& text)
{
    if (box->findData(value) < 0)
        box->addItem(itemText(text), value);
    box->setCurrentIndex(box->findData(value));
}

Panel* coverPanel(const DialogSession& session)
{
    for (const std::shared_ptr<Panel>& panel : session.panels()) {
        if (panel->panelKind().value_or(QString()).endsWith(kCoverPanel))
            return panel.get();
    }
    return nullptr;
}

} // namespace

JobPage::JobPage(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      form_(new QFormLayout(this)),
      title_(new QLineEdit(this)),
      priority_(new QSpinBox(this)),
      hold_(new QComboBox(this)),
      time_(new QTimeEdit(this)),
      before_(new QComboBox(this)),
      after_(new QComboBox(this)),
      bannerNote_(new QLabel(this))
{
    setObjectName(QStringLiteral("jobPage"));
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setVerticalSpacing(14);
    form_->setHorizontalSpacing(14);
    title_->setObjectName(QStringLiteral("jobTitle"));
    title_->setMaxLength(kLongestTitle);
    priority_->setObjectName(QStringLiteral("jobPriority"));
    priority_->setRange(1, 100);
    priority_->setToolTip(tr("1 waits longest, 100 goes first"));
    before_->setObjectName(QStringLiteral("bannerBefore"));
    after_->setObjectName(QStringLiteral("bannerAfter"));
    bannerNote_->setWordWrap(true);
    addRow(tr("&Title:"), title_, title_);
    addRow(tr("Pr&iority:"), priority_, priority_);
    addRow(tr("Print &when:"), makeHold(), hold_);
    addRow(tr("Page &before:"), before_, before_);
    addRow(tr("Page &after:"), after_, after_);
    form_->addRow(QString(), bannerNote_);
    connect(title_, &QLineEdit::textEdited, this, [this](const QString& text) {
        PageSettings page = session_.page();
        page.title = text;
        session_.setPage(page);
    });
    connect(priority_, &QSpinBox::valueChanged, this,
            [this](int value) { session_.setJobAttribute(kPriority, QString::number(value)); });
    connect(hold_, &QComboBox::activated, this, &JobPage::chooseHold);
    connect(time_, &QTimeEdit::editingFinished, this, &JobPage::chooseHold);
    for (QComboBox* box : {before_, after_})
        connect(box, &QComboBox::activated, this, &JobPage::chooseBanners);
    connect(&session_, &DialogSession::photosChanged, this, &JobPage::refresh);
    refresh();
}

QWidget* JobPage::makeHold()
{
    hold_->setObjectName(QStringLiteral("jobHold"));
    time_->setObjectName(QStringLiteral("jobTime"));
    time_->setDisplayFormat(QLocale().timeFormat(QLocale::ShortFormat));
    setPlainName(hold_, tr("Print when"));
    setPlainName(time_, tr("Time of day"));
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    row->addWidget(hold_, 1);
    row->addWidget(time_);
    return box;
}

void JobPage::addRow(const QString& text, QWidget* field, QWidget* buddy)
{
    auto* label = new QLabel(this);
    setPlainText(label, text);
    label->setBuddy(buddy);
    setPlainName(field, QString(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    form_->addRow(label, field);
}

void JobPage::listOffer()
{
    const JobOffer& offer = session_.jobOffer();
    if (offer == listed_)
        return;
    listed_ = offer;
    for (QComboBox* box : {hold_, before_, after_})
        box->clear();
    for (const NamedText& row : kHolds) {
        const QString keyword = QLatin1StringView(row.keyword);
        if (offer.holds.contains(keyword))
            hold_->addItem(textFor(kHolds, keyword), keyword);
    }
    if (!offer.holds.isEmpty())
        hold_->addItem(tr("At a time of day"), kAtTime);
    for (const QString& sheet : offer.sheets) {
        for (QComboBox* box : {before_, after_})
            box->addItem(itemText(textFor(kBanners, sheet)), sheet);
    }
}

void JobPage::refresh()
{
    const PpdModel* model = session_.model();
    setEnabled(model != nullptr);
    listOffer();
    if (title_->text() != session_.page().title)
        title_->setText(session_.page().title); // plain: a field holds a value
    title_->setPlaceholderText(displayText(session_.jobTitle()));
    const int priority = model ? model->value(kPriority).toInt() : 0;
    const QSignalBlocker quiet(priority_);
    priority_->setValue(priority > 0 ? priority : listed_.priority);
    refreshHold();
    refreshBanners();
}

void JobPage::refreshHold()
{
    const PpdModel* model = session_.model();
    const QString chosen = model ? model->value(kHold) : QString();
    const QString value = chosen.isEmpty() ? listed_.hold : chosen;
    const QTime time = fromServer(value);
    form_->setRowVisible(hold_->parentWidget(), !listed_.holds.isEmpty() || !chosen.isEmpty());
    select(hold_, time.isValid() ? kAtTime : value, textFor(kHolds, value));
    time_->setVisible(time.isValid());
    if (time.isValid() && !time_->hasFocus())
        time_->setTime(time);
}

void JobPage::refreshBanners()
{
    Panel* panel = coverPanel(session_);
    const PpdModel* model = session_.model();
    QStringList sheets =
        model ? model->value(kSheets).split(QLatin1Char(','), Qt::SkipEmptyParts) : QStringList();
    if (sheets.isEmpty() && model)
        sheets = listed_.byDefault;
    const bool isOurs = !panel && listed_.sheets.size() > 1;
    for (QComboBox* box : {before_, after_})
        form_->setRowVisible(box, isOurs);
    form_->setRowVisible(bannerNote_, panel != nullptr);
    if (panel)
        setPlainText(bannerNote_, tr("Pages before and after the job are decided on the page \"%1\".")
                                      .arg(isolated(panel->panelName().value_or(QString()))));
    const auto show = [&](QComboBox* box, qsizetype place) {
        const QString sheet = sheets.value(place, QStringLiteral("none"));
        select(box, sheet, textFor(kBanners, sheet));
    };
    if (isOurs) {
        show(before_, 0);
        show(after_, 1);
    }
}

void JobPage::chooseHold()
{
    QString value = hold_->currentData().toString();
    if (value == kAtTime) {
        const bool isNew = !time_->isVisible();
        if (isNew)
            time_->setTime(QTime(QTime::currentTime().addSecs(3600).hour(), 0));
        value = toServer(time_->time());
    }
    session_.setJobAttribute(kHold, value);
    refreshHold();
}

void JobPage::chooseBanners()
{
    session_.setJobAttribute(kSheets, before_->currentData().toString() + QLatin1Char(',') +
                                          after_->currentData().toString());
    refreshBanners();
}

} // namespace halvern
