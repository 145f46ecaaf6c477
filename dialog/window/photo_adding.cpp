// SPDX-License-Identifier: MIT
#include "dialog/window/photo_adding.h"

#include "dialog/page/photo_names.h"
#include "dialog/session/dialog_session.h"

#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QShortcut>
#include <QTemporaryFile>
#include <QToolButton>
#include <QUrl>

namespace halvern {

PhotoAdding::PhotoAdding(QWidget* window, DialogSession& session)
    : QObject(window), window_(window), session_(session)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
    connect(new QShortcut(QKeySequence::Open, window), &QShortcut::activated, this, &PhotoAdding::choose);
    connect(new QShortcut(QKeySequence::Paste, window), &QShortcut::activated, this, &PhotoAdding::paste);
}

QToolButton* PhotoAdding::makeButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("addPhotos"));
    button->setText(tr("Add..."));
    button->setToolTip(tr("Add photos; they can be dropped on the window and pasted, too"));
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, &PhotoAdding::choose);
    return button;
}

void PhotoAdding::choose()
{
    QStringList patterns;
    for (const QString& suffix : photoSuffixes())
        patterns.append(QStringLiteral("*.") + suffix);
    const QString photos = tr("Photos") + QStringLiteral(" (%1)").arg(patterns.join(QLatin1Char(' ')));
    auto* dialog = new QFileDialog(window_, tr("Add Photos"), QString(), photos + QStringLiteral(";;*"));
    dialog->setObjectName(QStringLiteral("choosePhotos"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    connect(dialog, &QFileDialog::filesSelected, this, &PhotoAdding::addNamed);
    dialog->open();
}

void PhotoAdding::paste()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data && holdsPhotos(*data))
        add(*data);
    else
        Q_EMIT failed(tr("The clipboard holds no photo. Copy a picture, or files of photos, first."));
}

bool PhotoAdding::holdsPhotos(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return data.hasImage() ||
           std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

void PhotoAdding::add(const QMimeData& data)
{
    QStringList names;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            names.append(url.toLocalFile());
    }
    if (!names.isEmpty()) {
        addNamed(names);
        return;
    }
    // A picture without a file gets one for as long as the dialog is there.
    auto* file = new QTemporaryFile(QDir::tempPath() + QStringLiteral("/pasted-XXXXXX.png"), this);
    const auto image = data.imageData().value<QImage>();
    if (!image.isNull() && file->open() && image.save(file, "PNG") && file->flush())
        session_.addPhotos({file->fileName()});
    else
        Q_EMIT failed(tr("The picture cannot be kept in a temporary file. Make room on the disk."));
}

void PhotoAdding::addNamed(const QStringList& names)
{
    QStringList problems;
    const QStringList files = withFoldersOpened(names, &problems);
    for (const QString& problem : problems)
        Q_EMIT failed(problem);
    if (!files.isEmpty())
        session_.addPhotos(files);
}

bool PhotoAdding::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != window_ || (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop))
        return QObject::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event);
    if (!holdsPhotos(*drop->mimeData()))
        return QObject::eventFilter(watched, event);
    drop->acceptProposedAction();
    if (event->type() == QEvent::Drop)
        add(*drop->mimeData());
    return true;
}

} // namespace halvern
