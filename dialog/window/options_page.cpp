// SPDX-License-Identifier: MIT
#include "dialog/window/options_page.h"

#include "dialog/window/choice_list.h"
#include "platform/toolkit/plain_text.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kRowsAtOnce = 16;
constexpr int kUsualRows = 160;
// How much of a choice is seen before it is cut.
constexpr int kLeastLetters = 14;
constexpr int kMostLetters = 24;

QLabel* heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(parent);
    setPlainText(label, text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

QStringList optionsWithoutPanel(DialogSession& session)
{
    QSet<QString> owned{QStringLiteral("PageSize"), QStringLiteral("Collate")};
    for (const std::shared_ptr<Panel>& panel : session.panels()) {
        for (const QString& key : panel->supportedPPDOptionKeys())
            owned.insert(key);
    }
    const PpdModel* model = session.model();
    QStringList keys = model ? model->keys() : QStringList();
    keys.removeIf([&](const QString& key) {
        return owned.contains(key) || (!model->isInstallable(key) && model->choiceCount(key) < 2);
    });
    return keys;
}

OptionsPage::OptionsPage(DialogSession& session, QWidget* parent)
    : QWidget(parent), session_(session), more_(new QLabel(tr("More options follow..."), this))
{
    setObjectName(QStringLiteral("optionsPage"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(more_);
    more_->hide();
    more_->installEventFilter(this);
    timer_.setSingleShot(true);
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &OptionsPage::addRows);
}

void OptionsPage::rebuild()
{
    boxes_.clear();
    if (content_) {
        content_->hide();
        content_->deleteLater();
    }
    content_ = new QWidget(this);
    form_ = new QFormLayout(content_);
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form_->setVerticalSpacing(8);
    form_->setHorizontalSpacing(14);
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, content_);
    keys_ = optionsWithoutPanel(session_);
    built_ = 0;
    group_.clear();
    addRows();
}

// A few at once, and those of a very long list only when somebody comes to its end: a printer may have ten
// thousand options, and each row is four widgets.
void OptionsPage::addRows()
{
    const PpdModel* model = session_.model();
    for (int i = 0; model && i < kRowsAtOnce && built_ < keys_.size(); ++i)
        addOption(model->option(keys_[built_++]));
    const bool isComplete = !model || built_ >= keys_.size();
    more_->setVisible(!isComplete);
    if (!isComplete && (built_ < kUsualRows || !more_->visibleRegion().isEmpty()))
        timer_.start();
}

bool OptionsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == more_ && event->type() == QEvent::Paint)
        timer_.start();
    return QWidget::eventFilter(watched, event);
}

void OptionsPage::addOption(const OptionItem& option)
{
    if (option.group != group_) {
        group_ = option.group;
        form_->addRow(heading(group_, content_));
        if (option.isInstallable)
            form_->addRow(new QLabel(tr("Set by whoever installed the printer."), content_));
    }
    auto* label = new QLabel(content_);
    setPlainText(label, captionText(option.text) + QLatin1Char(':'));
    if (option.isInstallable) {
        const PpdModel* model = session_.model();
        auto* built = new QLabel(content_);
        built->setObjectName(QStringLiteral("installed.") + option.key);
        setPlainText(built, model->choiceText(option.key, model->value(option.key)));
        form_->addRow(label, built);
        return;
    }
    QComboBox* box = makeBox(option);
    label->setBuddy(box);
    form_->addRow(label, box);
    refreshBox(option.key);
}

QComboBox* OptionsPage::makeBox(const OptionItem& option)
{
    auto* box = new QComboBox(content_);
    box->setObjectName(QStringLiteral("option.") + option.key);
    setPlainName(box, option.text);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    qsizetype longest = 0;
    for (const ChoiceItem& choice : option.choices)
        longest = std::max(longest, choice.text.size());
    box->setMinimumContentsLength(std::clamp(int(longest), kLeastLetters, kMostLetters));
    auto* list = new ChoiceList(box);
    list->setChoices(option.choices);
    const QString byDefault = session_.model()->unlistedDefault(option.key);
    if (!byDefault.isEmpty())
        box->setPlaceholderText(displayText(tr("%1 (the printer's default)").arg(byDefault)));
    boxes_.insert(option.key, {box, list});
    connect(box, &QComboBox::activated, this, [this, key = option.key] { choose(key); });
    return box;
}

void OptionsPage::refresh()
{
    for (auto it = boxes_.cbegin(); it != boxes_.cend(); ++it)
        refreshBox(it.key());
}

void OptionsPage::refreshBox(const QString& key)
{
    if (const PpdModel* model = session_.model())
        boxes_.value(key).choices->select(model->value(key));
}

void OptionsPage::choose(const QString& key)
{
    session_.changeOption(key, boxes_.value(key).box->currentData());
    refresh(); // a refused choice goes back
}

} // namespace halvern
