// SPDX-License-Identifier: MIT
#include "dialog/window/output_menu.h"

#include "dialog/job/pdf_output.h"
#include "dialog/window/damage_question.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>

namespace halvern {

namespace {

const QString kEnding = QStringLiteral("pdf");

} // namespace

OutputMenu::OutputMenu(DialogSession& session, QWidget* parent)
    : QPushButton(tr("More"), parent), session_(session)
{
    setObjectName(QStringLiteral("outputButton"));
    setAutoDefault(false);
    setMinimumSize(84, 32);
    auto* entries = new QMenu(this);
    connect(entries->addAction(tr("Print to a &PDF File...")), &QAction::triggered, this,
            &OutputMenu::chooseFile);
    connect(entries->addAction(tr("&Copy as Command")), &QAction::triggered, this, &OutputMenu::copyCommand);
    setMenu(entries);
}

// A field is taken as its editing leaves it.
void OutputMenu::endEditing()
{
    setFocus(Qt::OtherFocusReason);
}

void OutputMenu::chooseFile()
{
    if (!session_.canPrint())
        return;
    endEditing();
    if (!session_.damagedFiles().isEmpty()) {
        askAboutDamagedPhotos(window(), session_, [this] { chooseFile(); });
        return;
    }
    const QFileInfo photo(session_.photos().front().path);
    auto* question =
        new QFileDialog(window(), tr("Print to a PDF File"), photo.absolutePath(), tr("PDF files (*.pdf)"));
    question->setObjectName(QStringLiteral("pdfFile"));
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setAcceptMode(QFileDialog::AcceptSave);
    question->setDefaultSuffix(kEnding);
    // Never the photo itself, which may be a PDF.
    const QString ending = photo.suffix().compare(kEnding, Qt::CaseInsensitive) == 0
                               ? QStringLiteral("-print.pdf")
                               : QStringLiteral(".pdf");
    question->selectFile(photo.completeBaseName() + ending);
    connect(question, &QFileDialog::fileSelected, this, &OutputMenu::write);
    question->open();
}

void OutputMenu::write(const QString& path)
{
    if (path.isEmpty() || !session_.canPrint())
        return;
    PdfOutput* const file = session_.makePdf(path);
    connect(file, &PdfOutput::progressed, this, &OutputMenu::progressed);
    connect(file, &PdfOutput::finished, this, [this, file](const PdfOutcome& outcome) {
        file->deleteLater();
        if (outcome.isWritten)
            Q_EMIT done(outcome.sentence);
        else
            Q_EMIT failed(outcome.sentence);
    });
    Q_EMIT progressed(0.0);
    file->start();
}

void OutputMenu::copyCommand()
{
    if (!session_.canPrint())
        return;
    endEditing();
    QGuiApplication::clipboard()->setText(session_.command()); // plain: quoted for a shell
    Q_EMIT done(tr("The command that prints this again is on the clipboard."));
}

} // namespace halvern
