// SPDX-License-Identifier: MIT
#include "dialog/window/output_menu.h"

#include "dialog/job/pdf_output.h"
#include "dialog/window/damage_question.h"
#include "platform/foundation/display_text.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QStandardPaths>

#include <algorithm>

namespace halvern {

namespace {

const QString kEnding = QStringLiteral("pdf");

bool isOneOf(const std::vector<Photo>& photos, const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return !file.isEmpty() && std::ranges::any_of(photos, [&](const Photo& photo) {
        return QFileInfo(photo.path).canonicalFilePath() == file;
    });
}

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
    // A command would name files that are soon gone.
    if (!session_.areFilesBorrowed())
        connect(entries->addAction(tr("&Copy as Command")), &QAction::triggered, this,
                &OutputMenu::copyCommand);
    setMenu(entries);
}

// A field is taken as its editing leaves it.
void OutputMenu::endEditing()
{
    setFocus(Qt::OtherFocusReason);
}

// What is kept beside a borrowed file goes with it.
QString OutputMenu::startingFolder() const
{
    return session_.areFilesBorrowed() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                       : QFileInfo(session_.photos().front().path).absolutePath();
}

void OutputMenu::chooseFile()
{
    if (!session_.canPrint())
        return;
    endEditing();
    if (session_.hasBrokenFiles()) {
        askAboutDamagedPhotos(window(), session_, [this] { chooseFile(); });
        return;
    }
    const QFileInfo photo(session_.photos().front().path);
    auto* question =
        new QFileDialog(window(), tr("Print to a PDF File"), startingFolder(), tr("PDF files (*.pdf)"));
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

PdfOutput* OutputMenu::unfinished() const
{
    return file_ && !file_->isOver() ? file_ : nullptr;
}

void OutputMenu::write(const QString& path)
{
    if (path.isEmpty() || !session_.canPrint())
        return;
    if (isOneOf(session_.photos(), path)) {
        Q_EMIT failed(tr("%1 is one of the files to print. Choose another name.")
                          .arg(isolated(QFileInfo(path).fileName())));
        return;
    }
    const QString borrowed = QFileInfo(session_.photos().front().path).canonicalPath();
    if (session_.areFilesBorrowed() && QFileInfo(path).absoluteDir().canonicalPath() == borrowed) {
        Q_EMIT failed(tr("That folder goes when this window is closed. Choose another one."));
        return;
    }
    if (unfinished()) {
        Q_EMIT failed(tr("A file is being written still. Write the next one when it is there."));
        return;
    }
    file_ = session_.makePdf(path);
    connect(file_, &PdfOutput::progressed, this, &OutputMenu::progressed);
    connect(file_, &PdfOutput::finished, this, [this](const PdfOutcome& outcome) {
        file_->deleteLater();
        if (outcome.isWritten)
            Q_EMIT done(outcome.sentence);
        else
            Q_EMIT failed(outcome.sentence);
    });
    Q_EMIT progressed(0.0);
    file_->start();
}

void OutputMenu::copyCommand()
{
    if (!session_.canPrint())
        return;
    endEditing();
    QGuiApplication::clipboard()->setText(session_.command()); // plain: quoted for a shell
    Q_EMIT done(
        session_.model()->secrets().isEmpty()
            ? tr("The command that prints this again is on the clipboard.")
            : tr("The command that prints this again is on the clipboard, without your PIN or password."));
}

} // namespace halvern
