// SPDX-License-Identifier: MIT
#include "dialog/window/photo_page.h"

#include "platform/foundation/list_text.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/toolkit/plain_text.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>

#include <cmath>

namespace halvern {

namespace {

constexpr double kMegapixel = 1e6;
constexpr double kLongExposure = 0.3; // seconds; shorter ones are told as a fraction
constexpr int kMostStars = 5;

QString timeText(const QString& taken)
{
    const QDateTime time = QDateTime::fromString(taken, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    if (!time.isValid())
        return taken;
    // Cameras know no time zone.
    return listText({QLocale().toString(time.date(), QLocale::LongFormat),
                     QLocale().toString(time.time(), QLocale::ShortFormat)});
}

QString number(double value)
{
    return QLocale().toString(value, 'g', 4);
}

QString exposureText(const PhotoDetails& details)
{
    QStringList parts;
    if (details.exposure >= kLongExposure)
        parts.append(PhotoPage::tr("%1 s").arg(number(details.exposure)));
    else if (details.exposure > 0.0)
        parts.append(PhotoPage::tr("1/%1 s").arg(std::lround(1.0 / details.exposure)));
    if (details.aperture > 0.0)
        parts.append(PhotoPage::tr("f/%1").arg(number(details.aperture)));
    if (details.sensitivity > 0)
        parts.append(PhotoPage::tr("ISO %1").arg(details.sensitivity));
    if (details.focalLength > 0.0)
        parts.append(PhotoPage::tr("%1 mm").arg(number(details.focalLength)));
    return listText(parts);
}

QString colourText(const PhotoFacts& facts)
{
    if (!facts.colours.isEmpty())
        return facts.colours;
    if (facts.channels == 4)
        return PhotoPage::tr("CMYK without a profile; taken as ideal inks");
    if (facts.channels == 1)
        return PhotoPage::tr("Gray without a profile; taken as sRGB");
    switch (facts.colorTag) {
    case ColorTag::adobeRgb:
        return PhotoPage::tr("Adobe RGB, as the camera notes");
    case ColorTag::sRgb:
        return PhotoPage::tr("sRGB, as the file notes");
    case ColorTag::none:
        break;
    }
    return PhotoPage::tr("Not said; taken as sRGB");
}

QString starsText(int rating)
{
    return QString(rating, QChar(0x2605)) + QString(kMostStars - rating, QChar(0x2606));
}

QString sizeText(const QSize& pixels)
{
    return PhotoPage::tr("%1 x %2 pixels (%3 megapixels)")
        .arg(QString::number(pixels.width()), QString::number(pixels.height()),
             number(double(pixels.width()) * pixels.height() / kMegapixel));
}

} // namespace

PhotoPage::PhotoPage(QWidget* parent) : QWidget(parent), form_(new QFormLayout(this))
{
    setObjectName(QStringLiteral("photoPage"));
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setVerticalSpacing(10);
    form_->setHorizontalSpacing(14);
}

bool PhotoPage::isOf(const Photo& photo) const
{
    return keyOf(photo) == keyOf(photo_);
}

void PhotoPage::setPhoto(const Photo& photo)
{
    if (isOf(photo))
        return;
    photo_ = photo;
    photo_.preview = QImage();
    isRead_ = false;
    if (isVisible())
        read();
}

void PhotoPage::showEvent(QShowEvent* event)
{
    read();
    QWidget::showEvent(event);
}

void PhotoPage::read()
{
    if (isRead_)
        return;
    isRead_ = true;
    QPointer<PhotoPage> self(this);
    WorkQueue().async([self, photo = photo_] {
        const PhotoFacts facts = readPhotoFacts(photo);
        mainQueue().async([self, photo, facts] {
            if (self && self->isOf(photo))
                self->show(facts);
        });
    });
}

void PhotoPage::addRow(const QString& title, const QString& text)
{
    if (text.isEmpty())
        return;
    auto* label = new QLabel(this);
    setPlainText(label, text);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    form_->addRow(title, label);
}

void PhotoPage::show(const PhotoFacts& facts)
{
    while (form_->rowCount() > 0)
        form_->removeRow(0);
    const PhotoDetails& details = facts.details;
    addRow(tr("File:"), QFileInfo(photo_.path).fileName());
    addRow(tr("Folder:"), QFileInfo(photo_.path).absolutePath());
    addRow(tr("Kind:"), details.kind);
    if (!facts.problem.isEmpty()) {
        addRow(tr("Problem:"), facts.problem);
        return;
    }
    if (!photo_.isPdf) {
        addRow(tr("Size:"), sizeText(photo_.pixels));
        addRow(tr("Colors:"), colourText(facts));
    }
    addRow(tr("Taken:"), timeText(details.taken));
    addRow(tr("Camera:"), details.camera);
    addRow(tr("Lens:"), details.lens);
    addRow(tr("Exposure:"), exposureText(details));
    addRow(tr("Title:"), details.title);
    addRow(tr("Description:"), details.description);
    if (details.rating > 0)
        addRow(tr("Rating:"), starsText(details.rating));
}

} // namespace halvern
