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
#include <QPointer>
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

QFileDialog* PhotoAdding::makeChooser(QWidget* parent, const QString& title)
{
    QStringList patterns;
    for (const QString& suffix : photoSuffixes())
        patterns.append(QStringLiteral("*.") + suffix);
    const QString photos = tr("Photos") + QStringLiteral(" (%1)").arg(patterns.join(QLatin1Char(' ')));
    auto* dialog = new QFileDialog(parent, title, QString(), photos + QStringLiteral(";;*"));
    dialog->setObjectName(QStringLiteral("choosePhotos"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    return dialog;
}

QStringList PhotoAdding::askForFirst()
{
    const std::unique_ptr<QFileDialog> dialog(makeChooser(nullptr, tr("Choose Photos")));
    return dialog->exec() == QDialog::Accepted ? dialog->selectedFiles() : QStringList();
}

void PhotoAdding::choose()
{
    QFileDialog* dialog = makeChooser(window_, tr("Add Photos"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
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
    if (const auto image = data.imageData().value<QImage>(); !image.isNull())
        addPicture(image);
}

// A picture without a file gets one for as long as the dialog is there.
void PhotoAdding::addPicture(const QImage& image)
{
    const auto kept =
        std::make_shared<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/pasted-XXXXXX.png"));
    const QPointer<PhotoAdding> self(this);
    disk_.async([self, kept, image] {
        const bool isKept = kept->open() && image.save(kept.get(), "PNG") && kept->flush();
        mainQueue().async([self, kept, isKept] {
            if (!self)
                return;
            if (!isKept) {
                Q_EMIT self->failed(
                    tr("The picture cannot be kept in a temporary file. Make room on the disk."));
                return;
            }
            self->pasted_.push_back(kept);
            self->session_.addPhotos({kept->fileName()});
        });
    });
}

void PhotoAdding::addNamed(const QStringList& names)
{
    const QPointer<PhotoAdding> self(this);
    disk_.async([self, names] {
        QStringList problems;
        const QStringList files = withFoldersOpened(names, &problems);
        mainQueue().async([self, problems, files] {
            for (qsizetype i = 0; self && i < problems.size(); ++i)
                Q_EMIT self->failed(problems[i]);
            if (self && !files.isEmpty())
                self->session_.addPhotos(files);
        });
    });
}

bool PhotoAdding::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
        event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event);
    if (!holdsPhotos(*drop->mimeData()))
        return QObject::eventFilter(watched, event);
    // Whoever gives photos keeps them, also if a move was meant.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop)
        add(*drop->mimeData());
    return true;
}

} // namespace halvern
