// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"
#include "dialog/photo/decoder_process.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/cups_connection.h"

#include <QMap>
#include <QObject>

#include <map>
#include <vector>

class QTimer;

namespace halvern {

/// The photos of one dialog, read by workers and owned here. A file that cannot be read is told in a sentence
/// and costs no other. Main thread only, never waits.
class PhotoLoader : public QObject {
    Q_OBJECT

public:
    /// If not `printDamaged`, damaged files wait to be settled. The photos start as `placements` say, the
    /// last of which is also that of all that follow.
    PhotoLoader(QStringList files, bool printDamaged, QList<PhotoPlacement> placements = {});
    ~PhotoLoader() override;

    /// Starts to read. Once.
    void start();

    /// Whether all files have been read.
    bool isDone() const { return filesLeft_ == 0; }

    const std::vector<Photo>& photos() const { return photos_; }

    /// What the user wants of one photo.
    void setPlacement(size_t photo, const PhotoPlacement& placement);

    /// Somebody who decoded a photo has found that a part of it is missing.
    void noteDamage(const QString& path, int page);

    /// Reads these files too, behind the others.
    void add(const QStringList& files);

    /// Where they would be among all that were read, each as one page; ascending.
    const std::vector<size_t>& unreadablePlaces() const { return unreadablePlaces_; }

    /// A sentence for each file that cannot be read, until that is settled.
    const QStringList& unreadableFiles() const { return unreadableFiles_; }

    /// A sentence for each file of which a part is missing, until that is settled.
    QStringList damagedFiles() const;

    /// Takes these in place of all photos: the same ones in another order, fewer, or such as were taken out
    /// before.
    void arrange(std::vector<Photo> photos);

    /// Whether the photo is damaged, and nobody has said yet that it prints all the same.
    bool isOpen(const Photo& photo) const { return photo.isDamaged && openDamage_.contains(photo.path); }

    /// The photos that are open print as they are, or are left out; what cannot be read is left out.
    void settleDamaged(bool print);

Q_SIGNALS:
    /// As long as more photos come, one after the other, a few times a second.
    void changed();
    /// A file could not be read; a sentence.
    void failed(const QString& sentence);
    /// A part of a file is missing; a sentence.
    void damaged(const QString& sentence);

private:
    void read(const QStringList& files);
    void takeInOrder(quint64 number, const PhotoFile& file);
    void take(const PhotoFile& file);
    void tellSoon();
    void tellDamage(const QString& path, const QString& sentence);

    DecoderLease decoders_; // warm while photos may be read
    QStringList files_;
    bool printDamaged_;
    QList<PhotoPlacement> placements_;
    std::vector<Photo> photos_;
    std::vector<size_t> unreadablePlaces_;
    size_t placesRead_ = 0; // with these
    QStringList unreadableFiles_;
    QMap<QString, QString> openDamage_; // sentences, by the files' paths
    quint64 lastId_ = 0;
    int filesLeft_;
    QTimer* telling_; // until it has run out, nothing is told
    bool hasNews_ = false;
    cups::CancelFlag stop_;
    std::vector<WorkQueue> readers_; // the files are given to them in turn
    quint64 numberGiven_ = 0;
    quint64 numberTaken_ = 0;
    std::map<quint64, PhotoFile> early_; // files that were read before those in front of them
};

} // namespace halvern
