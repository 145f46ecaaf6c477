// SPDX-License-Identifier: MIT
#include "dialog/window/paper_page.h"

#include "dialog/window/choice_list.h"
#include "platform/toolkit/choice_group.h"
#include "platform/toolkit/plain_text.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace halvern {

namespace {

const QString kPageSizeKey = QStringLiteral("PageSize");

} // namespace

PaperPage::PaperPage(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      paper_(new QComboBox(this)),
      papers_(new ChoiceList(paper_)),
      turn_(new QButtonGroup(this)),
      scaling_(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("pagePage"));
    paper_->setObjectName(QStringLiteral("paperSize"));
    paper_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    paper_->setMinimumContentsLength(18);
    paper_->setMaxVisibleItems(20);
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    form->setVerticalSpacing(14);
    form->setHorizontalSpacing(14);
    const auto addRow = [&](const QString& text, QWidget* field, QWidget* buddy) {
        auto* label = new QLabel(this);
        setPlainText(label, text);
        label->setBuddy(buddy);
        setPlainName(field, QString(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
        form->addRow(label, field);
    };
    addRow(tr("P&aper size:"), paper_, paper_);
    QWidget* turns = makeChoices(turn_, QStringLiteral("turn"),
                                 {{int(PageTurn::automatic), tr("As the photo")},
                                  {int(PageTurn::portrait), tr("Portrait")},
                                  {int(PageTurn::landscape), tr("Landscape")}});
    addRow(tr("Or&ientation:"), turns, turn_->button(int(PageTurn::automatic)));
    QWidget* scalings = makeChoices(scaling_, QStringLiteral("scaling"),
                                    {{int(Scaling::fit), tr("Fit the whole photo on the page")},
                                     {int(Scaling::fill), tr("Fill the page, cut what is over")},
                                     {int(Scaling::actualSize), tr("Actual size")}});
    addRow(tr("Photo si&ze:"), scalings, scaling_->button(int(Scaling::fit)));
    connect(paper_, &QComboBox::activated, this, &PaperPage::choosePaper);
    connect(turn_, &QButtonGroup::idClicked, this, &PaperPage::choosePage);
    connect(scaling_, &QButtonGroup::idClicked, this, &PaperPage::choosePage);
    refresh();
}

QWidget* PaperPage::makeChoices(QButtonGroup* group, const QString& name,
                                const QList<std::pair<int, QString>>& choices)
{
    auto* box = new ChoiceGroup(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 2, 0, 0);
    column->setSpacing(6);
    for (const auto& [id, text] : choices) {
        auto* button = new QRadioButton(text, box);
        button->setObjectName(QStringLiteral("%1%2").arg(name).arg(id));
        group->addButton(button, id);
        column->addWidget(button);
    }
    return box;
}

void PaperPage::refresh()
{
    const PpdModel* model = session_.model();
    paper_->setEnabled(model != nullptr);
    const std::shared_ptr<ppd_file_t> file = model ? model->sharedFile() : nullptr;
    if (!file || listedFor_.lock() != file) {
        listedFor_ = file;
        papers_->setChoices(model ? model->option(kPageSizeKey).choices : QList<ChoiceItem>());
    }
    papers_->select(model ? model->value(kPageSizeKey) : QString());
    const PageSettings& page = session_.page();
    turn_->button(int(page.turn))->setChecked(true);
    scaling_->button(int(page.scaling))->setChecked(true);
}

void PaperPage::choosePaper()
{
    session_.changeOption(kPageSizeKey, paper_->currentData());
    refresh(); // a refused choice goes back
}

void PaperPage::choosePage()
{
    PageSettings page = session_.page();
    page.turn = PageTurn(turn_->checkedId());
    page.scaling = Scaling(scaling_->checkedId());
    session_.setPage(page);
}

} // namespace halvern
