// SPDX-License-Identifier: MIT
#include "dialog/session/photo_loader.h"

#include "dialog/page/photo_opening.h"
#include "dialog/page/photo_problem.h"
#include "platform/foundation/threads/work_queue.h"

#include <QFileInfo>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kTellEvery = 100; // milliseconds
constexpr int kMostReaders = 4; // each may have a photo in memory

} // namespace

PhotoLoader::PhotoLoader(QStringList files, bool printDamaged, QList<PhotoPlacement> placements)
    : files_(std::move(files)),
      printDamaged_(printDamaged),
      placements_(std::move(placements)),
      filesLeft_(int(files_.size())),
      telling_(new QTimer(this)),
      stop_(cups::makeCancelFlag()),
      readers_(size_t(std::clamp(QThread::idealThreadCount(), 1, kMostReaders)))
{
    telling_->setSingleShot(true);
    telling_->setInterval(kTellEvery);
    connect(telling_, &QTimer::timeout, this, [this] {
        if (hasNews_)
            tellSoon();
    });
}

PhotoLoader::~PhotoLoader()
{
    stop_->store(true);
}

void PhotoLoader::start()
{
    read(files_);
}

void PhotoLoader::add(const QStringList& files)
{
    filesLeft_ += int(files.size());
    read(files);
    Q_EMIT changed();
}

void PhotoLoader::read(const QStringList& files)
{
    QPointer<PhotoLoader> self(this);
    for (const QString& path : files) {
        const quint64 number = numberGiven_++;
        const bool isQueued = readers_[number % readers_.size()].async([self, number, path, stop = stop_] {
            if (stop->load())
                return;
            PhotoFile file = openPhotoFile(path);
            mainQueue().async([self, number, file = std::move(file)] {
                if (self)
                    self->takeInOrder(number, file);
            });
        });
        if (!isQueued)
            mainQueue().async([self, number, path] {
                if (self)
                    self->takeInOrder(
                        number,
                        {{},
                         tr("\"%1\" cannot be read now: the computer is too busy. Close something and "
                            "open it again.")
                             .arg(QFileInfo(path).fileName())});
            });
    }
}

// Several are read at a time, and one of them may take longer than the next: their order stays what was
// given.
void PhotoLoader::takeInOrder(quint64 number, const PhotoFile& file)
{
    early_.emplace(number, file);
    const QPointer<PhotoLoader> self(this);
    while (self && !early_.empty() && early_.begin()->first == numberTaken_) {
        const PhotoFile next = std::move(early_.extract(early_.begin()).mapped());
        ++numberTaken_;
        take(next);
    }
}

void PhotoLoader::take(const PhotoFile& file)
{
    --filesLeft_;
    if (file.pages.empty())
        unreadablePlaces_.push_back(placesRead_++);
    for (const Photo& page : file.pages) {
        photos_.push_back(page);
        photos_.back().id = ++lastId_;
        photos_.back().isFileDamaged = !file.problem.isEmpty();
        ++placesRead_;
        photos_.back().printsDamaged = printDamaged_;
        if (photos_.size() > kKeptPreviews)
            photos_.back().preview = QImage();
        if (!placements_.isEmpty())
            photos_.back().placement = placements_[std::min(qsizetype(placesRead_), placements_.size()) - 1];
    }
    if (!file.problem.isEmpty() && file.pages.empty()) {
        unreadableFiles_.append(file.problem);
        Q_EMIT failed(file.problem);
    } else if (!file.problem.isEmpty()) {
        tellDamage(file.pages.front().path, file.problem);
    }
    tellSoon();
}

// Laying a thousand photos out again for each that comes would keep the window from answering. The first one
// and the last one do not wait.
void PhotoLoader::tellSoon()
{
    hasNews_ = telling_->isActive() && !isDone();
    if (hasNews_)
        return;
    if (isDone())
        telling_->stop();
    else
        telling_->start();
    Q_EMIT changed();
}

void PhotoLoader::noteDamage(const QString& path, int page)
{
    const auto isIt = [&](const Photo& photo) { return photo.path == path && photo.page == page; };
    const auto isNews = [&](const Photo& photo) { return isIt(photo) && !photo.isDamaged; };
    if (std::ranges::none_of(photos_, isNews))
        return;
    for (Photo& photo : photos_) {
        photo.isDamaged = photo.isDamaged || isIt(photo);
        photo.isFileDamaged = photo.isFileDamaged || photo.path == path;
    }
    tellDamage(path, photoProblem(PhotoFault::partMissing, path));
}

void PhotoLoader::tellDamage(const QString& path, const QString& sentence)
{
    if (!printDamaged_)
        openDamage_.insert(path, sentence);
    Q_EMIT damaged(sentence);
}

void PhotoLoader::setPlacement(size_t photo, const PhotoPlacement& placement)
{
    if (photo < photos_.size())
        photos_[photo].placement = held(placement);
}

// Only what is still there is asked about.
QStringList PhotoLoader::damagedFiles() const
{
    QStringList sentences;
    for (auto it = openDamage_.cbegin(); it != openDamage_.cend(); ++it) {
        if (std::ranges::find(photos_, it.key(), &Photo::path) != photos_.end())
            sentences.append(*it);
    }
    return sentences;
}

void PhotoLoader::arrange(std::vector<Photo> photos)
{
    photos_ = std::move(photos);
    Q_EMIT changed();
}

void PhotoLoader::settleDamaged(bool print)
{
    unreadableFiles_.clear();
    if (!print)
        std::erase_if(photos_, [this](const Photo& photo) { return isOpen(photo); });
    openDamage_.clear();
    if (!print)
        Q_EMIT changed();
}

} // namespace halvern
