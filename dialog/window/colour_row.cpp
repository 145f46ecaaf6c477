// SPDX-License-Identifier: MIT
#include "dialog/window/colour_row.h"

#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace halvern {

namespace {

constexpr std::array kIntents{ColourIntent::perceptual, ColourIntent::relative, ColourIntent::saturation,
                              ColourIntent::absolute};
constexpr int kShortBox = 12;                    // characters
const QString kOtherFile = QStringLiteral("\n"); // no path of a file that is offered

void select(QComboBox* box, const QVariant& value)
{
    box->setCurrentIndex(box->findData(value));
}

} // namespace

ColourRow::ColourRow(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      who_(new QComboBox(this)),
      details_(new QWidget(this)),
      profile_(new QComboBox(this)),
      intent_(new QComboBox(this)),
      blackPoint_(new QCheckBox(tr("Compensate the black point"), this)),
      proof_(new QCheckBox(tr("Soft proof"), this)),
      paper_(new QCheckBox(tr("Paper white"), this)),
      gamut_(new QCheckBox(tr("Gamut warning"), this)),
      words_(new QLabel(this))
{
    who_->setObjectName(QStringLiteral("colourBy"));
    who_->addItem(tr("The printer manages colors"), false);
    who_->addItem(tr("This program manages colors"), true);
    who_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setPlainName(who_, tr("Colors"));
    words_->setObjectName(QStringLiteral("colourWords"));
    words_->setWordWrap(true);
    words_->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(who_);
    column->addWidget(makeDetails());
    column->addWidget(makeProof());
    column->addWidget(words_);
    connect(who_, &QComboBox::activated, this, &ColourRow::choose);
    connect(intent_, &QComboBox::activated, this, &ColourRow::choose);
    connect(blackPoint_, &QCheckBox::clicked, this, &ColourRow::choose);
    connect(profile_, &QComboBox::activated, this, &ColourRow::chooseProfile);
    for (QCheckBox* box : {proof_, paper_, gamut_})
        connect(box, &QCheckBox::clicked, this, &ColourRow::chooseProof);
    connect(&session_, &DialogSession::optionsChanged, this, &ColourRow::refresh);
    refresh();
}

QWidget* ColourRow::field() const
{
    return who_;
}

QWidget* ColourRow::makeDetails()
{
    profile_->setObjectName(QStringLiteral("colourProfile"));
    intent_->setObjectName(QStringLiteral("colourIntent"));
    blackPoint_->setObjectName(QStringLiteral("colourBlackPoint"));
    setPlainName(profile_, tr("Color profile"));
    setPlainName(intent_, tr("Rendering intent"));
    setPlainToolTip(intent_, tr("What becomes of colors that the printer cannot show"));
    setPlainToolTip(blackPoint_, tr("The photo's darkest tone becomes the paper's darkest"));
    for (QComboBox* box : {profile_, intent_}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(kShortBox);
    }
    for (const ColourIntent intent : kIntents)
        intent_->addItem(itemText(intentName(intent)), int(intent));
    auto* column = new QVBoxLayout(details_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(profile_, 3);
    row->addWidget(intent_, 2);
    column->addLayout(row);
    column->addWidget(blackPoint_);
    return details_;
}

QWidget* ColourRow::makeProof()
{
    proof_->setObjectName(QStringLiteral("softProof"));
    paper_->setObjectName(QStringLiteral("proofPaper"));
    gamut_->setObjectName(QStringLiteral("proofGamut"));
    setPlainToolTip(paper_, tr("The preview shows the paper's own white and the deepest black on it"));
    setPlainToolTip(gamut_, tr("The preview paints over in pink what the printer cannot show"));
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(14);
    for (QCheckBox* one : {proof_, paper_, gamut_})
        row->addWidget(one);
    row->addStretch();
    return box;
}

void ColourRow::listProfiles()
{
    const ColourSettings& colours = session_.page().colours;
    const PpdModel* model = session_.model();
    const QString own = model ? session_.colours().ownProfile(*model) : QString();
    profile_->clear();
    const auto nameOf = [&](const QString& path) {
        ColourSettings asked;
        asked.isByDialog = true;
        asked.profile = path;
        const PrinterProfile profile = session_.colours().profileFor(asked, model);
        return profile.name.isEmpty() ? QFileInfo(path).fileName() : profile.name;
    };
    profile_->addItem(own.isEmpty() ? tr("The printer's own: none is known")
                                    : itemText(tr("The printer's own: %1").arg(nameOf(own))),
                      QString());
    if (!colours.profile.isEmpty())
        profile_->addItem(itemText(nameOf(colours.profile)), colours.profile);
    profile_->addItem(tr("Another file..."), kOtherFile);
    select(profile_, colours.profile);
}

void ColourRow::refresh()
{
    const ColourSettings& colours = session_.page().colours;
    select(who_, colours.isByDialog);
    select(intent_, int(colours.intent));
    blackPoint_->setChecked(colours.compensatesBlack);
    // An absolute conversion keeps the paper's black as it keeps its white.
    blackPoint_->setEnabled(colours.intent != ColourIntent::absolute);
    details_->setVisible(colours.isByDialog);
    if (colours.isByDialog)
        listProfiles();
    setPlainText(words_, session_.colours().inWords(colours, session_.model()));
    refreshProof();
}

void ColourRow::refreshProof()
{
    const ProofSettings& proof = session_.colours().proof();
    const QString whyNot = session_.colours().whyNoProof(session_.page().colours, session_.model());
    const bool isOn = proof.isOn && whyNot.isEmpty();
    proof_->setChecked(isOn);
    paper_->setChecked(proof.showsPaper);
    gamut_->setChecked(proof.marksGamut);
    proof_->setEnabled(whyNot.isEmpty());
    paper_->setEnabled(isOn);
    gamut_->setEnabled(isOn);
    setPlainToolTip(proof_, whyNot.isEmpty() ? tr("The preview shows what the photo will look like on paper")
                                             : whyNot);
}

void ColourRow::chooseProof()
{
    session_.colours().setProof({proof_->isChecked(), paper_->isChecked(), gamut_->isChecked()});
    refreshProof();
}

void ColourRow::choose()
{
    PageSettings page = session_.page();
    page.colours.isByDialog = who_->currentData().toBool();
    page.colours.intent = ColourIntent(intent_->currentData().toInt());
    page.colours.compensatesBlack = blackPoint_->isChecked();
    session_.setPage(page);
}

void ColourRow::chooseProfile()
{
    const QString path = profile_->currentData().toString();
    if (path == kOtherFile)
        askForFile();
    else
        useProfile(path);
}

void ColourRow::useProfile(const QString& path)
{
    PageSettings page = session_.page();
    page.colours.profile = path;
    session_.setPage(page);
}

// Nothing waits for the answer: the window may go before there is one.
void ColourRow::askForFile()
{
    const QString chosen = session_.page().colours.profile;
    const QString folder =
        chosen.isEmpty() ? QStringLiteral("/usr/share/color/icc") : QFileInfo(chosen).path();
    auto* question = new QFileDialog(window(), tr("Choose a Color Profile"), folder,
                                     tr("Color profiles (*.icc *.icm *.ICC *.ICM);;All files (*)"));
    question->setObjectName(QStringLiteral("profileFile"));
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setFileMode(QFileDialog::ExistingFile);
    connect(question, &QFileDialog::fileSelected, this, &ColourRow::useProfile);
    connect(question, &QFileDialog::rejected, this, &ColourRow::refresh);
    question->open();
}

} // namespace halvern
