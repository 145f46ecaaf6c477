#include "dialog/window/options_page.h"

#include "dialog/preview/preview_widget.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

QLabel* heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QString scalingText(Scaling scaling)
{
    switch (scaling) {
    case Scaling::fit:
        return OptionsPage::tr("Fit");
    case Scaling::fill:
        return OptionsPage::tr("Fill");
    case Scaling::actualSize:
        break;
    }
    return OptionsPage::tr("Actual size");
}

} // namespace

QList<OptionItem> optionsWithoutPanel(DialogSession& session)
{
    QStringList owned{QStringLiteral("PageSize")};
    for (const std::shared_ptr<Panel>& panel : session.panels())
        owned += panel->supportedPPDOptionKeys();
    QList<OptionItem> options = session.model() ? session.model()->options() : QList<OptionItem>();
    options.removeIf([&](const OptionItem& option) {
        return option.isInstallable || owned.contains(option.key) || option.choices.size() < 2;
    });
    return options;
}

SummaryLines ownSummary(DialogSession& session)
{
    SummaryLines lines{{OptionsPage::tr("Printer"), session.printerName()}};
    const PpdModel* model = session.model();
    if (!model)
        return lines;
    const QString size = QStringLiteral("PageSize");
    lines.append({OptionsPage::tr("Paper size"), model->choiceText(size, model->value(size))});
    lines.append({OptionsPage::tr("Photo size"), scalingText(session.page().scaling)});
    if (!session.photos().empty()) {
        const PageLayout layout = session.layoutFor(session.photos().front());
        lines.append({OptionsPage::tr("Printed area"), pageSizeText(layout.visible().size())});
        lines.append({OptionsPage::tr("Pages"), QString::number(session.photos().size())});
    }
    lines.append({OptionsPage::tr("Copies"), QString::number(session.page().copies)});
    for (const OptionItem& option : optionsWithoutPanel(session))
        lines.append({option.text, model->choiceText(option.key, model->value(option.key))});
    return lines;
}

OptionsPage::OptionsPage(DialogSession& session, QWidget* parent) : QWidget(parent), session_(session)
{
    setObjectName(QStringLiteral("optionsPage"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
}

void OptionsPage::rebuild()
{
    boxes_.clear();
    if (content_) {
        content_->hide();
        content_->deleteLater();
    }
    content_ = new QWidget(this);
    auto* form = new QFormLayout(content_);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setVerticalSpacing(8);
    form->setHorizontalSpacing(14);
    QString group;
    for (const OptionItem& option : optionsWithoutPanel(session_)) {
        if (option.group != group) {
            group = option.group;
            form->addRow(heading(group, content_));
        }
        addOption(form, option);
    }
    auto* column = static_cast<QVBoxLayout*>(layout());
    column->insertWidget(0, content_);
    refresh();
}

void OptionsPage::addOption(QFormLayout* form, const OptionItem& option)
{
    auto* box = new QComboBox(content_);
    box->setObjectName(QStringLiteral("option.") + option.key);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(14);
    for (const ChoiceItem& choice : option.choices)
        box->addItem(choice.text, choice.keyword);
    auto* label = new QLabel(option.text + QLatin1Char(':'), content_);
    label->setBuddy(box);
    box->setAccessibleName(option.text);
    form->addRow(label, box);
    boxes_.insert(option.key, box);
    connect(box, &QComboBox::activated, this, [this, key = option.key] { choose(key); });
}

void OptionsPage::refresh()
{
    const PpdModel* model = session_.model();
    for (auto it = boxes_.cbegin(); model && it != boxes_.cend(); ++it) {
        const QString current = model->value(it.key());
        if (it.value()->findData(current) < 0 && !current.isEmpty())
            it.value()->addItem(current, current);
        it.value()->setCurrentIndex(it.value()->findData(current));
    }
}

void OptionsPage::choose(const QString& key)
{
    session_.changeOption(key, boxes_.value(key)->currentData());
    refresh(); // a refused choice goes back
}

} // namespace halvern
