// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QPointer>
#include <QPushButton>

namespace halvern {

/// The button beside Print for what else can be made of the job: a PDF file, or the command that prints it
/// again. Main thread only.
class OutputMenu : public QPushButton {
    Q_OBJECT

public:
    /// `session` outlives it.
    OutputMenu(DialogSession& session, QWidget* parent);

    /// Asks for a file's name, and writes it when that is known. Returns at once.
    QString startingFolder() const;
    void chooseFile();

    /// Puts the command on the clipboard.
    void copyCommand();

    /// The file that is being written; null if there is none.
    PdfOutput* unfinished() const;

Q_SIGNALS:
    /// The share of the file that is written, 0 to 1.
    void progressed(double share);
    /// What was asked for is there; a sentence.
    void done(const QString& sentence);
    void failed(const QString& sentence);

private:
    void write(const QString& path);
    void endEditing();

    DialogSession& session_;
    QPointer<PdfOutput> file_;
};

} // namespace halvern
