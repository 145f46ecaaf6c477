// SPDX-License-Identifier: MIT
#include "dialog/window/damage_question.h"

#include "dialog/session/dialog_session.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace halvern {

namespace {

constexpr int kMostNamed = 5;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(DamageQuestion)
};

QString namedFiles(const QStringList& sentences)
{
    QStringList lines = sentences.mid(0, kMostNamed);
    if (sentences.size() > kMostNamed)
        lines.append(Words::tr("And %1 more.").arg(sentences.size() - kMostNamed));
    return lines.join(QStringLiteral("\n\n"));
}

} // namespace

void askAboutDamagedPhotos(QWidget* parent, DialogSession& session, const std::function<void()>& go)
{
    auto* box = new QMessageBox(QMessageBox::Warning, Words::tr("Print damaged photos?"),
                                namedFiles(session.damagedFiles()), QMessageBox::Cancel, parent);
    box->setObjectName(QStringLiteral("damageQuestion"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(Words::tr("What is missing comes out gray, or smeared."));
    const QPushButton* leaveOut = box->addButton(Words::tr("&Leave Them Out"), QMessageBox::DestructiveRole);
    const QPushButton* print = box->addButton(Words::tr("&Print All the Same"), QMessageBox::AcceptRole);
    box->setDefaultButton(QMessageBox::Cancel);
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
