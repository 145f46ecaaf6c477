// SPDX-License-Identifier: MIT
#include "dialog/window/damage_question.h"

#include "dialog/session/dialog_session.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace halvern {

namespace {

constexpr int kMostNamed = 5;

struct DamageQuestionWords {
    Q_DECLARE_TR_FUNCTIONS(DamageQuestion)
};

QString namedFiles(const QStringList& sentences)
{
    QStringList lines = sentences.mid(0, kMostNamed);
    if (sentences.size() > kMostNamed)
        lines.append(DamageQuestionWords::tr("And %1 more.").arg(sentences.size() - kMostNamed));
    return lines.join(QStringLiteral("\n\n"));
}

// The box, with its list of all files behind a button where there are many.
QMessageBox* makeBox(const DialogSession& session, QWidget* parent)
{
    const bool hasDamaged = !session.damagedFiles().isEmpty();
    const QStringList sentences = session.unreadableFiles() + session.damagedFiles();
    auto* box = new QMessageBox(QMessageBox::Warning,
                                hasDamaged ? DamageQuestionWords::tr("Print damaged photos?")
                                           : DamageQuestionWords::tr("Print without these files?"),
                                namedFiles(sentences), QMessageBox::Cancel, parent);
    box->setObjectName(QStringLiteral("damageQuestion"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    if (sentences.size() > kMostNamed)
        box->setDetailedText(sentences.join(QStringLiteral("\n"))); // plain: a field for plain text shows it
    box->setInformativeText(
        hasDamaged ? DamageQuestionWords::tr("What is missing comes out gray, or smeared. Files that cannot "
                                             "be read are left out.")
                   : DamageQuestionWords::tr("Files that cannot be read are left out."));
    box->setDefaultButton(QMessageBox::Cancel);
    return box;
}

} // namespace

void askAboutDamagedPhotos(QWidget* parent, DialogSession& session, const std::function<void()>& go)
{
    const bool hasDamaged = !session.damagedFiles().isEmpty();
    QMessageBox* box = makeBox(session, parent);
    const QPushButton* leaveOut =
        hasDamaged ? box->addButton(DamageQuestionWords::tr("&Leave Them Out"), QMessageBox::DestructiveRole)
                   : box->addButton(DamageQuestionWords::tr("&Print the Others"), QMessageBox::AcceptRole);
    const QPushButton* print =
        hasDamaged ? box->addButton(DamageQuestionWords::tr("&Print All the Same"), QMessageBox::AcceptRole)
                   : nullptr;
    QObject::connect(box, &QMessageBox::buttonClicked, parent,
                     [leaveOut, print, &session, go](const QAbstractButton* button) {
                         if (button != leaveOut && button != print)
                             return;
                         session.settleDamaged(button == print);
                         if (session.canPrint())
                             go();
                     });
    box->open();
}

} // namespace halvern
